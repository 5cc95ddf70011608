#include "making/order_quality.h"

#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <utility>
#include <vector>

namespace dorvan {
namespace {

FloatTable Table(std::int32_t n, std::vector<float> cells) {
    FloatTable table(n, n);
    table.Cells() = std::move(cells);
    return table;
}

FloatTable OnALine(const std::vector<float>& places) {
    const auto n = static_cast<std::int32_t>(places.size());
    FloatTable distances(n, n);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j)
            distances(i, j) = std::abs(places[std::size_t(i - 1)] - places[std::size_t(j - 1)]);
    return distances;
}

// The distances 2, 300 and 4.5: (1/3 + 4/301 + 1/5.5) / 4.5, and with bytes (1/3 + 4/256 + 1/5) / 4.5.
FloatTable Three() { return Table(3, {0, 2, 300, 2, 0, 4.5F, 300, 4.5F, 0}); }

TEST(PathLength, IsTheSumOfTheDistancesOfFollowingRecords) {
    EXPECT_EQ(PathLength(Three()), 6.5);
    EXPECT_EQ(PathLength(Table(2, {0, 3, 3, 0})), 3.0);
}

TEST(PathLength, TakesTheDistanceFromTheRecordBefore) { EXPECT_EQ(PathLength(Table(2, {0, 3, 8, 0})), 3.0); }

TEST(ScoreOfOrder, DividesTheSquaresOfThePlacesApartByTheDistancesAndOne) {
    float sum = static_cast<float>(1.0 / 3.0);
    sum = static_cast<float>(double(sum) + 4.0 / 301.0);
    sum = static_cast<float>(double(sum) + 1.0 / 5.5);
    EXPECT_EQ(ScoreOfOrder(Three()), static_cast<float>(double(sum) / 4.5));
    EXPECT_NEAR(ScoreOfOrder(Three()), 0.117431F, 1e-6F);
}

TEST(ScoreOfOrder, OfTwoRecordsIsHalfOfTheirQuotient) {
    EXPECT_EQ(ScoreOfOrder(Table(2, {0, 3, 3, 0})), 0.125F);
}

TEST(ScoreOfOrder, FailsForADistanceOfMinusOne) {
    EXPECT_FAILURE(Failure::DivisionByZero, ScoreOfOrder(Table(2, {0, -1, -1, 0})));
}

TEST(UmOfOrder, TakesDistancesAsBytesRoundedToEven) {
    float sum = static_cast<float>(1.0 / 3.0);
    sum = static_cast<float>(double(sum) + 4.0 / 256.0);
    sum = static_cast<float>(double(sum) + 1.0 / 5.0);
    EXPECT_EQ(UmOfOrder(Three()), static_cast<float>(double(sum) / 4.5));
}

TEST(UmOfOrder, FailsForADistanceBelowTheBytes) {
    EXPECT_FAILURE(Failure::Overflow, UmOfOrder(Table(2, {0, -1, -1, 0})));
    EXPECT_EQ(UmOfOrder(Table(2, {0, -0.5F, -0.5F, 0})), 0.5F);
}

TEST(OrderQuality, OfOneRecordOrNoneIsNothing) {
    for (const std::int32_t n : {0, 1}) {
        const FloatTable distances(n, n);
        EXPECT_EQ(PathLength(distances), 0);
        EXPECT_EQ(ScoreOfOrder(distances), 0);
        EXPECT_EQ(UmOfOrder(distances), 0);
        EXPECT_EQ(AntiRobinsonEvents(distances), 0);
    }
}

TEST(AntiRobinsonEvents, NoneInAMatrixThatGrowsFromTheDiagonal) {
    EXPECT_EQ(AntiRobinsonEvents(OnALine({0, 1, 3, 3, 7, 20})), 0);
    EXPECT_EQ(AntiRobinsonEvents(OnALine({9, 5, 4, 2})), 0);
    EXPECT_EQ(AntiRobinsonEvents(FloatTable(5, 5)), 0);
}

TEST(AntiRobinsonEvents, OfTwoRecordsAreNone) {
    EXPECT_EQ(AntiRobinsonEvents(Table(2, {0, 3, 8, 0})), 0);
    EXPECT_EQ(AntiRobinsonEvents(Table(2, {9, 3, 8, 9})), 0);
}

// Of 0, 10, 1: in the first row 10 comes before 1, in the last one 1 before 9.
TEST(AntiRobinsonEvents, CountsBothSidesOfTheDiagonal) {
    EXPECT_EQ(AntiRobinsonEvents(OnALine({0, 10, 1})), 2);
    EXPECT_EQ(AntiRobinsonEvents(Table(3, {0, 10, 1, 0, 0, 0, 9, 1, 0})), 1); // the first row
    EXPECT_EQ(AntiRobinsonEvents(Table(3, {0, 1, 10, 0, 0, 0, 1, 9, 0})), 1); // the last row
    EXPECT_EQ(AntiRobinsonEvents(Table(3, {0, 1, 1, 5, 0, 4, 2, 2, 0})), 0);  // equals do not count
}

TEST(AntiRobinsonEvents, AreThoseOfTheDefinition) {
    std::mt19937 bits(1);
    for (const std::int32_t n : {3, 4, 5, 9, 20, 64, 131}) {
        FloatTable d(n, n);
        for (float& cell : d.Cells()) cell = static_cast<float>(bits() % 7);
        std::int64_t events = 0;
        for (std::int32_t i = 1; i <= n; ++i)
            for (std::int32_t j = 1; j <= n; ++j)
                for (std::int32_t k = j + 1; k <= n; ++k) {
                    if (k < i && d(i, j) < d(i, k)) ++events;
                    if (i < j && d(i, j) > d(i, k)) ++events;
                }
        EXPECT_EQ(AntiRobinsonEvents(d), events) << n;
        EXPECT_GT(events, 0);
    }
}

} // namespace
} // namespace dorvan
