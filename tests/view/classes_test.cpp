#include "numbers/runtime_failure.h"
#include "view/classes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace dorvan::test {
namespace {

Array1<float> Limits(float first, float second, float third, float fourth) {
    Array1<float> limits(4);
    limits.Cells() = {first, second, third, fourth};
    return limits;
}

float Below(float value) { return std::nextafter(value, -std::numeric_limits<float>::infinity()); }

TEST(ClassifyCell, SectionsIncludeTheirLowerLimitAndExcludeTheUpperOne) {
    const auto limits = Limits(1, 2, 3, 4);
    EXPECT_EQ(ClassifyCell(0.0f, limits), 5);
    EXPECT_EQ(ClassifyCell(-0.0f, limits), 5);
    EXPECT_EQ(ClassifyCell(Below(1.0f), limits), 5);
    EXPECT_EQ(ClassifyCell(1.0f, limits), 4);
    EXPECT_EQ(ClassifyCell(Below(2.0f), limits), 4);
    EXPECT_EQ(ClassifyCell(2.0f, limits), 3);
    EXPECT_EQ(ClassifyCell(Below(3.0f), limits), 3);
    EXPECT_EQ(ClassifyCell(3.0f, limits), 2);
    EXPECT_EQ(ClassifyCell(Below(4.0f), limits), 2);
    EXPECT_EQ(ClassifyCell(4.0f, limits), 1);
    EXPECT_EQ(ClassifyCell(1e30f, limits), 1);
}

TEST(ClassifyCell, NegativeAndMissingDistancesAreInNoClass) {
    const auto limits = Limits(1, 2, 3, 4);
    EXPECT_EQ(ClassifyCell(Below(0.0f), limits), 6);
    EXPECT_EQ(ClassifyCell(-1.0f, limits), 6);
    EXPECT_EQ(ClassifyCell(NaValue, limits), 6);
}

TEST(ClassifyCell, EqualLimitsLeaveTheMiddleClassesEmpty) {
    const auto limits = Limits(2, 2, 2, 2);
    EXPECT_EQ(ClassifyCell(0.0f, limits), 5);
    EXPECT_EQ(ClassifyCell(Below(2.0f), limits), 5);
    EXPECT_EQ(ClassifyCell(2.0f, limits), 1);
    EXPECT_EQ(ClassifyCell(3.0f, limits), 1);
}

TEST(ClassifyCell, AZeroDistanceIsNotTheNearestWhenTheFirstLimitIsZeroOrLess) {
    EXPECT_EQ(ClassifyCell(0.0f, Limits(0, 1, 2, 3)), 4);
    EXPECT_EQ(ClassifyCell(0.0f, Limits(-1, 0, 1, 2)), 3);
    EXPECT_EQ(ClassifyCell(-0.5f, Limits(-1, 0, 1, 2)), 4) << "a negative value can lie between two limits";
    EXPECT_EQ(ClassifyCell(-0.5f, Limits(-4, -3, -2, -1)), 1);
}

TEST(ClassifyCell, TheFirstTestThatHoldsDecidesWhenLimitsDoNotRise) {
    EXPECT_EQ(ClassifyCell(0.7f, Limits(1, 0.5f, 3, 10)), 5) << "also above the second limit";
    EXPECT_EQ(ClassifyCell(1.0f, Limits(1, 0.5f, 3, 10)), 3) << "no value reaches class 4";
    EXPECT_EQ(ClassifyCell(1.7f, Limits(1, 2, 1.5f, 5)), 4) << "also above the third limit";
    EXPECT_EQ(ClassifyCell(8.0f, Limits(1, 2, 9, 5)), 3) << "also above the fourth limit";
    EXPECT_EQ(ClassifyCell(9.0f, Limits(1, 2, 9, 5)), 1);
    EXPECT_EQ(ClassifyCell(4.0f, Limits(4, 3, 2, 8)), 2) << "the classes 4 and 3 are empty";
}

TEST(ClassifyCell, AValueThatPassesEveryTestBelowTheFourthLimitHasNoClass) {
    EXPECT_EQ(ClassifyCell(-2.0f, Limits(-1, -1, -1, 5)), 6);
    EXPECT_EQ(ClassifyCell(1.0f, Limits(0.5f, 0.25f, 2.0f, 7)), 3) << "the third test holds";
    EXPECT_EQ(ClassifyCell(1.0f, Limits(0.5f, 0.75f, 0.5f, 0.25f)), 1) << "not below the fourth limit";
    EXPECT_EQ(ClassifyCell(1.0f, Limits(0.5f, 0.75f, 0.5f, 7.0f)), 2);
    EXPECT_EQ(ClassifyCell(-1.0f, Limits(0, 0, 0, 0)), 6);
}

TEST(ClassifyCell, FewerThanFourLimitsAreASubscriptFailure) {
    EXPECT_THROW(ClassifyCell(1.0f, Array1<float>(3)), RuntimeFailure);
    EXPECT_THROW(ClassifyCell(1.0f, Array1<float>()), RuntimeFailure);
}

DiagramDocument Square(int count) {
    DiagramDocument document;
    document.RecCount = static_cast<std::int16_t>(count);
    document.Matrix = FloatTable(count, count);
    document.SectionLimits = Limits(1, 2, 3, 4);
    for (int i = 1; i <= count; ++i)
        for (int j = 1; j <= count; ++j)
            document.Matrix(i, j) = static_cast<float>((i * 31 + j * 17) % 60) / 10.0f - 0.5f;
    return document;
}

TEST(ClassifyDiagram, ClassifiesEveryCellLikeClassifyCell) {
    auto document = Square(40);
    document.Classes = Array2<std::int16_t>(40, 40);
    ClassifyDiagram(document);
    std::vector<int> counts(7);
    for (int i = 1; i <= 40; ++i)
        for (int j = 1; j <= 40; ++j) {
            ASSERT_EQ(document.Classes(i, j), ClassifyCell(document.Matrix(i, j), document.SectionLimits));
            ++counts.at(std::size_t(document.Classes(i, j)));
        }
    EXPECT_EQ(counts[0], 0);
    for (int number = 1; number <= 6; ++number) EXPECT_GT(counts[std::size_t(number)], 0) << number;
}

TEST(ClassifyDiagram, TheDiagonalIsClassifiedLikeAnyCell) {
    auto document = Square(2);
    document.Matrix = FloatTable(2, 2);
    ClassifyDiagram(document);
    EXPECT_EQ(document.Classes(1, 1), 5);
    document.SectionLimits = Limits(0, 1, 2, 3);
    ClassifyDiagram(document);
    EXPECT_EQ(document.Classes(2, 2), 4);
}

TEST(ClassifyDiagram, SizesTheClassesAndRefusesASmallerMatrix) {
    auto document = Square(3);
    document.Classes = {};
    ClassifyDiagram(document);
    EXPECT_EQ(document.Classes.Rows(), 3);
    EXPECT_EQ(document.Classes.Columns(), 3);
    document.RecCount = 4;
    EXPECT_THROW(ClassifyDiagram(document), RuntimeFailure);
}

} // namespace
} // namespace dorvan::test
