#include "making/orderings.h"

#include "making/plain_making.h"
#include "numbers/random_source.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace dorvan {
namespace {

using Places = std::vector<std::int16_t>;

FloatTable Table(std::int32_t n, std::vector<float> cells) {
    FloatTable table(n, n);
    table.Cells() = std::move(cells);
    return table;
}

float Largest(const FloatTable& distances) {
    return std::max(0.0f, *std::ranges::max_element(distances.Cells()));
}

Places OrderOf(const FloatTable& distances) { return SimpleOrder(distances, Largest(distances)).Cells(); }

TEST(SimpleOrder, AmongEquallyNearRecordsTheHighestNumberWins) {
    EXPECT_EQ(OrderOf(Table(3, {0, 1, 1, 1, 0, 2, 1, 2, 0})), (Places{1, 3, 2}));
}

TEST(SimpleOrder, ZerosGiveTheFirstRecordAndThenTheOthersBackwards) {
    EXPECT_EQ(OrderOf(FloatTable(6, 6)), (Places{1, 6, 5, 4, 3, 2}));
}

TEST(SimpleOrder, TwoRecordsStayInOrder) { EXPECT_EQ(OrderOf(Table(2, {0, 9, 9, 0})), (Places{1, 2})); }

TEST(SimpleOrder, DistanceBelowZeroIsTheNearest) {
    EXPECT_EQ(OrderOf(Table(4, {0, 1, -3, 2, 1, 0, 4, 5, -3, 4, 0, 6, 2, 5, 6, 0})), (Places{1, 3, 2, 4}));
}

TEST(SimpleOrder, WalksOnFromTheRecordFoundLast) {
    // Places on a line: 0, 10, 1, 11, 2.
    const float places[] = {0, 10, 1, 11, 2};
    FloatTable distances(5, 5);
    for (std::int32_t i = 1; i <= 5; ++i)
        for (std::int32_t j = 1; j <= 5; ++j) distances(i, j) = std::abs(places[i - 1] - places[j - 1]);
    EXPECT_EQ(OrderOf(distances), (Places{1, 3, 5, 2, 4}));
}

TEST(SimpleOrder, FarthestRecordIsFoundToo) {
    EXPECT_EQ(OrderOf(Table(3, {0, 5, 7, 5, 0, 7, 7, 7, 0})), (Places{1, 2, 3}));
}

TEST(SimpleOrder, ComparesFloatsThatDifferInTheLastBit) {
    const float one = 1.0f;
    const float next = std::nextafter(one, 2.0f);
    EXPECT_EQ(OrderOf(Table(3, {0, one, next, one, 0, 2, next, 2, 0})), (Places{1, 2, 3}));
    EXPECT_EQ(OrderOf(Table(3, {0, next, one, next, 0, 2, one, 2, 0})), (Places{1, 3, 2}));
}

TEST(SimpleOrder, RowOfTheCurrentRecordDecidesInAnAsymmetricTable) {
    EXPECT_EQ(OrderOf(Table(3, {0, 1, 2, 9, 0, 9, 0, 9, 0})), (Places{1, 2, 3}));
    EXPECT_EQ(OrderOf(Table(3, {0, 2, 1, 0, 0, 9, 9, 9, 0})), (Places{1, 3, 2}));
}

TEST(SimpleOrder, ScanThatFindsNothingKeepsTheRecordOfTheScanBefore) {
    EXPECT_EQ(SimpleOrder(Table(3, {0, 1, 1, 1, 0, 2, 1, 2, 0}), 1).Cells(), (Places{1, 3, 3}));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, SimpleOrder(Table(2, {0, 9, 9, 0}), 1));
}

TEST(SimpleOrder, FewerThanTwoRecordsAreASubscriptOutOfRange) {
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, SimpleOrder(FloatTable(1, 1), 0));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, SimpleOrder(FloatTable(), 0));
}

TEST(SimpleOrder, AgreesWithThePlainWalkOnRandomAndTiedDistances) {
    RandomSource source(3);
    for (const std::int32_t n : {2, 3, 10, 60, 250})
        for (const std::int32_t kinds : {1, 4, 1000000}) {
            FloatTable distances(n, n);
            for (std::int32_t i = 1; i <= n; ++i)
                for (std::int32_t j = 1; j < i; ++j)
                    distances(i, j) = distances(j, i) =
                        static_cast<float>(RandomInRange(source, 0, kinds - 1)) * 0.1f;
            const Places order = OrderOf(distances);
            ASSERT_EQ(order, test::PlainSimpleOrder(distances).Cells()) << n << " records, " << kinds;
            Places all = order;
            std::ranges::sort(all);
            for (std::int32_t p = 1; p <= n; ++p) ASSERT_EQ(all[std::size_t(p - 1)], p);
        }
}

} // namespace
} // namespace dorvan
