#include "support/golden.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace dorvan::test {

namespace fs = std::filesystem;

std::string fileBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        ADD_FAILURE() << "cannot read " << path;
        return {};
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file) ADD_FAILURE() << "cannot write " << path;
}

std::string sourcePath(const std::string& path) { return DORVAN_SOURCE_FOLDER "/" + path; }

std::string goldenBytes(const std::string& name) { return fileBytes(sourcePath("tests/" + name)); }

::testing::AssertionResult matchesGolden(std::string_view actual, const std::string& name) {
    const fs::path kept = fs::path(DORVAN_ACTUAL_FOLDER) / name;
    fs::create_directories(kept.parent_path());
    writeFile(kept.string(), actual);
    if (!fs::exists(sourcePath("tests/" + name)))
        return ::testing::AssertionFailure() << "no golden file " << name << "; the actual bytes are kept";
    const std::string golden = goldenBytes(name);
    if (golden == actual) return ::testing::AssertionSuccess();
    const auto [left, right] = std::mismatch(golden.begin(), golden.end(), actual.begin(), actual.end());
    return ::testing::AssertionFailure() << name << " differs at offset " << (left - golden.begin()) << ": "
                                         << golden.size() << " bytes wanted, " << actual.size() << " written";
}

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "dorvan-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

} // namespace dorvan::test
