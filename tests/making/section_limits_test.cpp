#include "making/section_limits.h"

#include "making/plain_making.h"
#include "numbers/random_source.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

namespace dorvan {
namespace {

using Floats = std::vector<float>;

// A matrix of which the cells below the diagonal are the values, by row and then by column.
FloatTable Below(std::int32_t n, const Floats& values) {
    FloatTable distances(n, n);
    std::size_t next = 0;
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j < i; ++j) distances(i, j) = distances(j, i) = values.at(next++);
    return distances;
}

Floats Sorted(Floats values) {
    SortAllButLast(values);
    return values;
}

Floats PlainlySorted(const Floats& values) {
    Array1<float> array;
    array.Cells() = values;
    test::PlainSortAllButLast(array);
    return array.Cells();
}

std::vector<std::uint32_t> Bits(const Floats& values) {
    std::vector<std::uint32_t> bits;
    for (const float value : values) bits.push_back(std::bit_cast<std::uint32_t>(value));
    return bits;
}

// Draws from `kinds` different values, negative ones among them.
Floats Draws(RandomSource& source, std::size_t count, std::int32_t kinds) {
    Floats values;
    for (std::size_t i = 0; i < count; ++i)
        values.push_back(static_cast<float>(RandomInRange(source, 1, kinds) - kinds / 4) * 0.37f + 0.01f);
    return values;
}

TEST(SortAllButLast, LastElementStaysWhereItIs) {
    EXPECT_EQ(Sorted({3, 1, 2, 0}), (Floats{1, 2, 3, 0}));
    EXPECT_EQ(Sorted({3, 2, 1}), (Floats{2, 3, 1}));
}

TEST(SortAllButLast, ShortArraysStayAsTheyAre) {
    EXPECT_EQ(Sorted({}), Floats{});
    EXPECT_EQ(Sorted({7}), Floats{7});
    EXPECT_EQ(Sorted({2, 1}), (Floats{2, 1}));
}

TEST(SortAllButLast, AgreesWithThePlainSortForAllLengthsTiedAndNot) {
    RandomSource source(5);
    for (std::size_t count = 0; count <= 120; ++count)
        for (const std::int32_t kinds : {1, 2, 5, 1000000}) {
            const Floats values = Draws(source, count, kinds);
            ASSERT_EQ(Bits(Sorted(values)), Bits(PlainlySorted(values))) << count << " of " << kinds;
        }
}

TEST(SortAllButLast, AgreesWithThePlainSortOnRisingAndFallingValues) {
    Floats values;
    for (int i = 0; i < 100; ++i) values.push_back(static_cast<float>(i));
    EXPECT_EQ(Sorted(values), PlainlySorted(values));
    std::ranges::reverse(values);
    EXPECT_EQ(Sorted(values), PlainlySorted(values));
}

TEST(ComputeAutomaticLimits, ThreeRecordsTakeThePlaces1122) {
    EXPECT_EQ(ComputeAutomaticLimits(Below(3, {20, 10, 30})).Cells(), (Floats{10, 10, 20, 20}));
}

TEST(ComputeAutomaticLimits, FourRecordsTakeThePlaces1245) {
    EXPECT_EQ(ComputeAutomaticLimits(Below(4, {50, 40, 30, 20, 10, 60})).Cells(), (Floats{10, 20, 40, 50}));
}

TEST(ComputeAutomaticLimits, SixRecordsTakeThePlaces36912) {
    EXPECT_EQ(ComputeAutomaticLimits(Below(6, {14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 15})).Cells(),
              (Floats{3, 6, 9, 12}));
}

TEST(ComputeAutomaticLimits, DistanceOfTheLastTwoRecordsTakesNoPartInTheOrder) {
    EXPECT_EQ(ComputeAutomaticLimits(Below(3, {20, 10, 1})).Cells(), (Floats{10, 10, 20, 20}));
    EXPECT_EQ(ComputeAutomaticLimits(Below(4, {50, 40, 30, 20, 10, 1})).Cells(), (Floats{10, 20, 40, 50}));
}

TEST(ComputeAutomaticLimits, OnlyCellsBelowTheDiagonalCount) {
    FloatTable distances = Below(3, {20, 10, 30});
    for (std::int32_t i = 1; i <= 3; ++i)
        for (std::int32_t j = i; j <= 3; ++j) distances(i, j) = -5;
    EXPECT_EQ(ComputeAutomaticLimits(distances).Cells(), (Floats{10, 10, 20, 20}));
}

TEST(ComputeAutomaticLimits, EqualDistancesGiveEqualLimits) {
    EXPECT_EQ(ComputeAutomaticLimits(Below(5, Floats(10, 2.5f))).Cells(), Floats(4, 2.5f));
}

TEST(ComputeAutomaticLimits, TwoRecordsOrFewerAreASubscriptOutOfRange) {
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, ComputeAutomaticLimits(Below(2, {1})));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, ComputeAutomaticLimits(FloatTable(1, 1)));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, ComputeAutomaticLimits(FloatTable()));
}

TEST(ComputeAutomaticLimits, PlaceBeyond16BitsIsAnOverflow) {
    EXPECT_NO_THROW(ComputeAutomaticLimits(FloatTable(286, 286)));
    EXPECT_FAILURE(Failure::Overflow, ComputeAutomaticLimits(FloatTable(287, 287)));
}

TEST(ComputeAutomaticLimits, AgreesWithThePlainOneOnRandomAndTiedDistances) {
    RandomSource source(11);
    for (const std::int32_t n : {3, 4, 5, 6, 7, 8, 20, 33, 250})
        for (const std::int32_t kinds : {1, 3, 40, 1000000}) {
            const auto distances = Below(n, Draws(source, std::size_t(n) * std::size_t(n - 1) / 2, kinds));
            ASSERT_EQ(Bits(ComputeAutomaticLimits(distances).Cells()),
                      Bits(test::PlainAutomaticLimits(distances).Cells()))
                << n << " records, " << kinds << " values";
        }
}

} // namespace
} // namespace dorvan
