#include "distance/distance.h"
#include "distance/plain_measures.h"
#include "support/expect_failure.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

// Many pairs side by side against the plain definition: the same bits, the same failures.
namespace dorvan {
namespace {

using Draw = std::function<float(std::mt19937&)>;

FloatTable RandomSheet(std::int32_t n, std::int32_t m, std::uint32_t seed, const Draw& draw) {
    std::mt19937 random(seed);
    FloatTable values(n, m);
    for (float& value : values.Cells()) value = draw(random);
    return values;
}

// Kinds of sheets.
float Decimal(std::mt19937& random) { return static_cast<float>(int(random() % 200001) - 100000) / 1000.0f; }
float Score(std::mt19937& random) { return static_cast<float>(random() % 2); }
float OddScore(std::mt19937& random) { return static_cast<float>(random() % 4) - 1.0f; }
float Whole(std::mt19937& random) { return static_cast<float>(random() % 600); }
float OfAnySize(std::mt19937& random) {
    return std::ldexp(static_cast<float>(random() % 65536), int(random() % 60) - 40);
}
float DecimalOrMissing(std::mt19937& random) { return random() % 5 == 0 ? NaValue : Decimal(random); }
float MostlyMissing(std::mt19937& random) { return random() % 4 != 0 ? NaValue : Whole(random); }

// The bits of a matrix, or the number of the failure.
struct Outcome {
    int FailureNumber = 0;
    std::vector<std::uint32_t> Bits;
    bool operator==(const Outcome&) const = default;
};

Outcome OutcomeOf(const std::function<FloatTable()>& compute) {
    Outcome outcome;
    try {
        const FloatTable distances = compute();
        for (const float cell : distances.Cells()) outcome.Bits.push_back(std::bit_cast<std::uint32_t>(cell));
    } catch (const RuntimeFailure& failure) {
        outcome.FailureNumber = failure.Number();
    }
    return outcome;
}

// Returns whether there was a matrix to compare.
bool ExpectLikePlain(const FloatTable& values, std::int32_t n, std::int32_t m, const Measure& measure,
                     const std::string& what) {
    const Outcome fast = OutcomeOf([&] { return DistancesBetweenRows(values, n, m, measure); });
    const Outcome plain = OutcomeOf([&] { return test::plainDistances(values, n, m, measure); });
    EXPECT_EQ(fast.FailureNumber, plain.FailureNumber)
        << what << ", measure " << int(measure.Type) << ", n " << n << ", m " << m;
    EXPECT_TRUE(fast.Bits == plain.Bits)
        << what << ", measure " << int(measure.Type) << ", n " << n << ", m " << m;
    return fast.FailureNumber == 0;
}

struct SheetKind {
    std::string Name;
    Draw Cell;
};

const SheetKind SheetKinds[] = {{"decimals", Decimal},
                                {"scores", Score},
                                {"odd scores", OddScore},
                                {"whole numbers", Whole},
                                {"numbers of any size", OfAnySize},
                                {"decimals with N/A", DecimalOrMissing},
                                {"mostly N/A", MostlyMissing}};

class EachMeasure : public ::testing::TestWithParam<int> {
protected:
    Measure measure{DistanceType(GetParam()), 3, 3};
};

INSTANTIATE_TEST_SUITE_P(DistancesBetweenRows, EachMeasure, ::testing::Range(1, 11));

TEST_P(EachMeasure, EqualsThePlainDefinitionForAnyNumberOfVariables) {
    for (const auto& kind : SheetKinds)
        for (const std::int32_t m : {0, 1, 2, 7, 8, 9, 10, 33, 100}) {
            const std::int32_t n = m % 2 == 0 ? 60 : 41;
            ExpectLikePlain(RandomSheet(n, m, 7u, kind.Cell), n, m, measure, kind.Name);
        }
}

TEST_P(EachMeasure, EqualsThePlainDefinitionForAnyNumberOfRecords) {
    int matrices = 0;
    for (const std::int32_t n : {0, 1, 2, 3, 15, 16, 17, 31, 32, 33, 34, 63, 64, 65, 66, 97})
        matrices += ExpectLikePlain(RandomSheet(n, 24, 11u, Score), n, 24, measure, "scores") ? 1 : 0;
    EXPECT_GE(matrices, 15);
}

TEST_P(EachMeasure, EqualsThePlainDefinitionAtTheLargestSizes) {
    for (const auto& kind : {SheetKinds[0], SheetKinds[1], SheetKinds[5]})
        for (const std::int32_t m : {10, 100})
            ExpectLikePlain(RandomSheet(250, m, 13u, kind.Cell), 250, m, measure, kind.Name);
}

TEST_P(EachMeasure, UsesOnlyTheFirstRecordsAndVariables) {
    FloatTable values = RandomSheet(50, 12, 17u, Score);
    ExpectLikePlain(values, 36, 9, measure, "part of a sheet");
    values(50, 12) = std::numeric_limits<float>::quiet_NaN();
    ExpectLikePlain(values, 36, 9, measure, "part of a sheet with no number outside");
}

TEST_P(EachMeasure, TreatsInfinitiesAndOtherNonNumbersAsThePlainDefinitionDoes) {
    for (const float odd :
         {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        FloatTable values = RandomSheet(40, 8, 19u, Score);
        values(35, 3) = odd;
        ExpectLikePlain(values, 40, 8, measure, "no numbers");
    }
}

TEST_P(EachMeasure, TreatsMoreVariablesThanSixteenBitsCountAsThePlainDefinitionDoes) {
    ExpectLikePlain(RandomSheet(3, 32767, 23u, Score), 3, 32767, measure, "the most");
    ExpectLikePlain(FloatTable(3, 32767, 1.0f), 3, 32767, measure, "the most, all ones");
    ExpectLikePlain(FloatTable(3, 32768, 1.0f), 3, 32768, measure, "too many, all ones");
    ExpectLikePlain(FloatTable(3, 32768, NaValue), 3, 32768, measure, "too many, all missing");
}

TEST_P(EachMeasure, OverflowsLikeThePlainDefinition) {
    constexpr float greatest = std::numeric_limits<float>::max();
    for (const std::int32_t place : {2, 31, 33, 40}) {
        FloatTable values = RandomSheet(40, 6, 29u, Decimal);
        values(place, 4) = greatest;
        ExpectLikePlain(values, 40, 6, measure, "one large value");
        values(1, 4) = -greatest;
        ExpectLikePlain(values, 40, 6, measure, "a large difference");
    }
}

TEST(DistancesBetweenRows, CustomizedEqualsThePlainDefinitionForAnyParameters) {
    const std::pair<int, int> parameters[] = {{1, 1},  {2, 2},   {1, 2},     {2, 1},     {3, 1},   {3, 2},
                                              {5, 7},  {8, 3},   {13, 2},    {100, 9},   {999, 1}, {999, 999},
                                              {0, 1},  {0, 2},   {1, 0},     {2, 0},     {-1, 1},  {-2, 3},
                                              {4, -2}, {-3, -3}, {32767, 1}, {-32768, 2}};
    int matrices = 0;
    for (const auto& kind : SheetKinds)
        for (const auto& [p, r] : parameters)
            for (const std::int32_t m : {1, 10, 33})
                matrices +=
                    ExpectLikePlain(RandomSheet(45, m, 31u, kind.Cell), 45, m,
                                    {DistanceType::Customized, std::int16_t(p), std::int16_t(r)}, kind.Name)
                        ? 1
                        : 0;
    EXPECT_GT(matrices, 150);
}

TEST(DistancesBetweenRows, CustomizedFailsForADifferenceOutOfRangeWhateverItsPower) {
    FloatTable values(40, 1);
    for (std::int32_t i = 1; i <= 40; ++i) values(i, 1) = static_cast<float>(i);
    values(7, 1) = std::numeric_limits<float>::max();
    values(33, 1) = std::numeric_limits<float>::lowest();
    for (const std::int16_t p : {-3, -1, 0, 1, 2})
        EXPECT_FAILURE(Failure::Overflow,
                       DistancesBetweenRows(values, 40, 1, {DistanceType::Customized, p, 2}));
}

// Sums that stand exactly half way between two floats, which the lanes have to leave to the plain way.
TEST(DistancesBetweenRows, CustomizedDecidesTiesAsThePlainDefinitionDoes) {
    FloatTable values(40, 3);
    for (std::int32_t i = 1; i <= 40; ++i) {
        values(i, 1) = i % 2 == 0 ? 256.0f : 0.0f; // 2^24 to the power 3
        values(i, 2) = static_cast<float>(i);
        values(i, 3) = static_cast<float>(i % 5);
    }
    ExpectLikePlain(values, 40, 3, {DistanceType::Customized, 3, 1}, "ties");
    ExpectLikePlain(values, 40, 3, {DistanceType::Customized, 3, 3}, "ties");
}

// This number to the power 77 lies so near the middle of two floats that repeated multiplication ends on the
// other side of it than std::pow does.
TEST(DistancesBetweenRows, CustomizedDecidesNearTiesAsThePlainDefinitionDoes) {
    FloatTable values(40, 1);
    for (std::int32_t i = 2; i <= 40; i += 2) values(i, 1) = 0x1.ed6178p+0f;
    ExpectLikePlain(values, 40, 1, {DistanceType::Customized, 77, 1}, "a near tie");
}

TEST(DistancesBetweenRows, IsSymmetricWithAZeroDiagonalForEveryMeasure) {
    const FloatTable values = RandomSheet(70, 20, 37u, Score);
    for (std::int16_t type = 0; type <= 11; ++type) {
        const FloatTable distances = DistancesBetweenRows(values, 70, 20, {DistanceType(type), 2, 2});
        for (std::int32_t i = 1; i <= 70; ++i) {
            EXPECT_EQ(std::bit_cast<std::uint32_t>(distances(i, i)), 0u);
            for (std::int32_t j = 1; j < i; ++j) ASSERT_EQ(distances(i, j), distances(j, i));
        }
    }
}

TEST(DistancesBetweenRows, TheDiagonalIsZeroWhereTheMeasureWouldFailForARecordAgainstItself) {
    FloatTable values(2, 2);
    values(1, 1) = 1;
    values(2, 2) = 1; // 1 0 against 0 1
    EXPECT_EQ(DistancesBetweenRows(values, 2, 2, {DistanceType::LanceAndWilliams})(1, 1), 0.0f);
    EXPECT_EQ(DistancesBetweenRows(values, 2, 2, {DistanceType::YulesQ})(2, 2), 0.0f);
    EXPECT_EQ(DistancesBetweenRows(values, 1, 2, {DistanceType::LanceAndWilliams})(1, 1), 0.0f);
}

TEST(DistancesBetweenRows, AMeasureOutsideOneToTenGivesZeros) {
    EXPECT_EQ(DistancesBetweenRows(RandomSheet(5, 4, 41u, Decimal), 5, 4, {DistanceType(11)}), FloatTable(5, 5));
}

// The pair (1, 40) comes before (2, 3), although it lies in a later block of lanes.
TEST(DistancesBetweenRows, ThrowsTheFailureOfTheFirstPairInTheOrderOfThePairs) {
    const Measure reciprocals{DistanceType::Customized, -1, 1};
    FloatTable values(40, 1);
    for (std::int32_t i = 1; i <= 40; ++i) values(i, 1) = static_cast<float>(i);
    values(2, 1) = values(3, 1);
    EXPECT_FAILURE(Failure::InvalidProcedureCall, DistancesBetweenRows(values, 40, 1, reciprocals));
    values(1, 1) = 1e-40f;
    values(40, 1) = 0;
    EXPECT_FAILURE(Failure::Overflow, DistancesBetweenRows(values, 40, 1, reciprocals));
}

TEST(DistancesBetweenRows, FailsOutsideTheTable) {
    const FloatTable values(3, 2);
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, DistancesBetweenRows(values, 4, 2, {DistanceType(3)}));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, DistancesBetweenRows(values, 3, 3, {DistanceType(3)}));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, DistancesBetweenRows(values, -1, 2, {DistanceType(3)}));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, DistancesBetweenRows(values, 3, -1, {DistanceType(3)}));
}

TEST(ComputeDistanceMatrix, ReplacesTheDistancesByThoseOfTheMeasureInForce) {
    test::TestSession test;
    test.session.tables.DataValues = RandomSheet(33, 10, 43u, Decimal);
    test.session.tables.DistanceValues = FloatTable(99, 99, 1.0f);
    for (std::int16_t type = 0; type <= 10; ++type) {
        test.session.CurrentDistType = type;
        test.session.Par_P = 3;
        test.session.Par_R = 2;
        if (type == DistanceType::LanceAndWilliams || type == DistanceType::Jaccard) continue;
        EXPECT_TRUE(ComputeDistanceMatrix(test.session, 33, 10));
        EXPECT_EQ(test.session.tables.DistanceValues,
                  test::plainDistances(test.session.tables.DataValues, 33, 10, {DistanceType(type), 3, 2}));
    }
}

TEST(ComputeDistanceMatrix, ShowsTheWaitCursorAndSetsItBack) {
    test::TestSession test;
    test.session.tables.DataValues = FloatTable(2, 1);
    ComputeDistanceMatrix(test.session, 2, 1);
    EXPECT_EQ(test.signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
}

} // namespace
} // namespace dorvan
