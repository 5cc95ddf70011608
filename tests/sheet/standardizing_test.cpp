#include "sheet/standardizing.h"

#include "numbers/number_text.h"
#include "support/expect_failure.h"

#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

namespace dorvan::test {

namespace {

FloatTable TableOf(std::int32_t columns, std::initializer_list<float> cells) {
    FloatTable table(static_cast<std::int32_t>(cells.size()) / columns, columns);
    table.Cells() = cells;
    return table;
}

// As a sheet shows them.
std::vector<std::string> Shown(const FloatTable& table) {
    std::vector<std::string> texts;
    for (const float value : table.Cells()) texts.push_back(FormatPattern(value, "###0.000", '.'));
    return texts;
}

int ToRange(FloatTable& table) {
    int told = 0;
    StandardizeToRange(table, [&] { ++told; });
    return told;
}

using Texts = std::vector<std::string>;

} // namespace

TEST(StandardizeByDeviation, DividesByTheDeviationOfASample) {
    FloatTable table = TableOf(1, {1, 3});
    StandardizeByDeviation(table);
    EXPECT_EQ(Shown(table), (Texts{"-0.707", "0.707"}));
}

TEST(StandardizeByDeviation, TakesEachVariableByItself) {
    FloatTable table = TableOf(2, {1, 10, 2, 30, 3, 50, 4, -10});
    StandardizeByDeviation(table);
    EXPECT_EQ(Shown(table),
              (Texts{"-1.162", "-0.387", "-0.387", "0.387", "0.387", "1.162", "1.162", "-1.162"}));
}

TEST(StandardizeByDeviation, TheSumRunsIn32Bits) {
    // 16777216 + 1 is 16777216 in 32 bits, so the mean is a third of that; in 64 bits it would be one third
    // more.
    FloatTable table = TableOf(1, {16777216.0f, 1.0f, 0.0f});
    StandardizeByDeviation(table);
    const double mean = 16777216.0 / 3;
    const double squares = (16777216.0 - mean) * (16777216.0 - mean) + (1 - mean) * (1 - mean) + mean * mean;
    const double deviation = std::sqrt(squares / 2);
    EXPECT_EQ(table(1, 1), float((16777216.0 - mean) / deviation));
    EXPECT_EQ(table(2, 1), float((1.0 - mean) / deviation));
    EXPECT_EQ(table(3, 1), float((0.0 - mean) / deviation));
}

TEST(StandardizeByDeviation, SquaresRunIn64Bits) {
    FloatTable table = TableOf(1, {1e30f, -1e30f, 0}); // their squares are beyond 32 bits
    StandardizeByDeviation(table);
    EXPECT_EQ(Shown(table), (Texts{"1.000", "-1.000", "0.000"}));
}

TEST(StandardizeByDeviation, AConstantVariableIsAnInvalidDivision) {
    FloatTable table = TableOf(2, {1, 7, 3, 7});
    EXPECT_FAILURE(Failure::DivisionByZero, StandardizeByDeviation(table));
}

TEST(StandardizeByDeviation, ASumBeyond32BitsOverflows) {
    FloatTable table = TableOf(1, {3e38f, 3e38f});
    EXPECT_FAILURE(Failure::Overflow, StandardizeByDeviation(table));
}

TEST(StandardizeToRange, RunsFromZeroToAHundred) {
    FloatTable table = TableOf(1, {10, 20, 30});
    EXPECT_EQ(ToRange(table), 0);
    EXPECT_EQ(Shown(table), (Texts{"0.000", "50.000", "100.000"}));
}

TEST(StandardizeToRange, TheEndsMayStandAnywhere) {
    FloatTable table = TableOf(2, {3, -5, 1, 5, 2, 0});
    EXPECT_EQ(ToRange(table), 0);
    EXPECT_EQ(Shown(table), (Texts{"100.000", "0.000", "0.000", "100.000", "50.000", "50.000"}));
}

TEST(StandardizeToRange, ComputesIn64Bits) {
    FloatTable table = TableOf(1, {-3e38f, 3e38f, 0.1f}); // the range is beyond 32 bits
    ToRange(table);
    EXPECT_EQ(table(2, 1), 100.0f);
    EXPECT_EQ(table(3, 1), 50.0f);
    FloatTable thirds = TableOf(1, {0.1f, 0.7f, 0.3f});
    ToRange(thirds);
    EXPECT_EQ(thirds(3, 1), float((double(0.3f) - double(0.1f)) / (double(0.7f) - double(0.1f)) * 100));
}

TEST(StandardizeToRange, AConstantVariableKeepsItsValuesAndIsToldOnceARecord) {
    FloatTable table = TableOf(3, {7, 1, 5, 7, 2, 5, 7, 3, 5});
    EXPECT_EQ(ToRange(table), 6);
    EXPECT_EQ(Shown(table),
              (Texts{"7.000", "0.000", "5.000", "7.000", "50.000", "5.000", "7.000", "100.000", "5.000"}));
}

TEST(StandardizeToRange, ATableWithoutVariablesStaysAsItIs) {
    FloatTable table(3, 0);
    EXPECT_EQ(ToRange(table), 0);
    StandardizeByDeviation(table);
    EXPECT_EQ(table.Columns(), 0);
}

} // namespace dorvan::test
