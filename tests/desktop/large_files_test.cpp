#include "built_program.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace dorvan::test {
namespace {

// A diagram without data, its distances those of places on a line.
std::string DiagramOf(int records) {
    const std::string count = std::to_string(records);
    std::string bytes = "Dorvan DIAGRAM 3.3\r\n\r\n[HEADER]\r\nType=1\r\nDescription=\r\nRecCount=" + count +
                        "\r\nVarCount=2\r\nSecLimit_1=1.000\r\nSecLimit_2=2.000\r\nSecLimit_3=3.000\r\n"
                        "SecLimit_4=4.000\r\nDistType=3\r\nDiagType=2\r\nPar_R=0\r\nPar_P=0\r\n\r\n"
                        "[RECORD_LABEL]\r\n";
    for (int i = 1; i <= records; ++i) bytes += "rec" + std::to_string(i) + "\r\n";
    bytes += "\r\n[VARIABLE_LABEL]\r\nN/A\r\n\r\n[DATA]\r\nN/A\r\n\r\n[MATRIX]\r\n";
    for (int i = 1; i <= records; ++i)
        for (int j = 1; j <= records; ++j)
            bytes += std::to_string(std::abs(i - j)) + ".125" + (j < records ? ";" : "\r\n");
    return bytes;
}

std::size_t PeakWith(int records) {
    const BuiltProgram::Home home;
    const std::string file = home.folder / "d.dgr";
    writeFile(file, DiagramOf(records));
    const BuiltProgram program(home, {file});
    return program.PeakOfMemory();
}

// Beside what any diagram takes.
TEST(LargeFiles, ADiagramTakesLessThanEightTimesTheSizeOfItsFile) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "what is freed is kept for a while";
#endif
    const std::size_t size = DiagramOf(900).size();
    ASSERT_GT(size, std::size_t(5) << 20);
    const std::size_t small = PeakWith(3);
    const std::size_t large = PeakWith(900);
    EXPECT_LT(large - small, 8 * size);
    EXPECT_GT(large - small, size / 2) << "the file is not open";
}

} // namespace
} // namespace dorvan::test
