#include "fuzz/readers.h"
#include "support/golden.h"

#include <filesystem>

namespace dorvan::test {

// Every seed, among them what the fuzzers found, through the fuzzers' own entry, and cut off at every byte.
void checkSeeds(const std::string& name, void (*check)(std::string_view)) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(sourcePath("fuzz/seeds/" + name))) {
        const std::string bytes = fileBytes(entry.path());
        EXPECT_NO_THROW(check(bytes)) << entry.path();
        for (std::size_t size = 0; size < std::min<std::size_t>(bytes.size(), 1000); ++size)
            EXPECT_NO_THROW(check({bytes.data(), size})) << entry.path() << " cut off at " << size;
        ++count;
    }
    EXPECT_GT(count, 0);
}

TEST(FuzzSeeds, DataFile) { checkSeeds("data_file", fuzz::checkDataFile); }
TEST(FuzzSeeds, MatrixFile) { checkSeeds("matrix_file", fuzz::checkMatrixFile); }
TEST(FuzzSeeds, DiagramFile) { checkSeeds("diagram_file", fuzz::checkDiagramFile); }

} // namespace dorvan::test
