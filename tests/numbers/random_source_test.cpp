#include "numbers/random_source.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <set>
#include <utility>
#include <vector>

namespace dorvan {
namespace {

TEST(RandomSource, DrawIsTheUpperBitsOfTheNextState) {
    RandomSource source;
    source.SetPosition(0);
    EXPECT_EQ(source.Draw(), static_cast<float>(1442695040888963407U >> 40) / 16777216.0F);
    EXPECT_EQ(source.Position(), 1442695040888963407U);
    const std::uint64_t next = 1442695040888963407U * 6364136223846793005U + 1442695040888963407U;
    EXPECT_EQ(source.Draw(), static_cast<float>(next >> 40) / 16777216.0F);
    EXPECT_EQ(source.Position(), next);
}

TEST(RandomSource, DrawReachesBothEndsAndNeverOne) {
    // The state before a given one: the multiplier's inverse modulo 2^64 by Newton's iteration.
    std::uint64_t inverse = 6364136223846793005U;
    for (int step = 0; step < 5; ++step) inverse *= 2 - 6364136223846793005U * inverse;
    RandomSource source;
    source.SetPosition((0 - 1442695040888963407U) * inverse);
    EXPECT_EQ(source.Draw(), 0.0F);
    source.SetPosition((std::numeric_limits<std::uint64_t>::max() - 1442695040888963407U) * inverse);
    EXPECT_EQ(source.Draw(), 16777215.0F / 16777216.0F);
}

TEST(RandomSource, DrawsFillTheUnitIntervalEvenly) {
    RandomSource source(5);
    std::vector<int> counts(16);
    constexpr int Draws = 160000;
    for (int draw = 0; draw < Draws; ++draw) {
        const float value = source.Draw();
        ASSERT_GE(value, 0.0F);
        ASSERT_LT(value, 1.0F);
        ++counts[static_cast<std::size_t>(value * 16)];
    }
    for (const int count : counts) EXPECT_NEAR(count, Draws / 16, 500); // five standard deviations
}

TEST(RandomSource, SameSeedGivesTheSameStream) {
    RandomSource first(42);
    RandomSource second(42);
    for (int draw = 0; draw < 100; ++draw) EXPECT_EQ(first.Draw(), second.Draw());
}

TEST(RandomSource, NeighbouringSeedsGiveUnrelatedStreams) {
    std::set<float> firstDraws;
    double correlation = 0;
    for (std::uint64_t seed = 0; seed < 2000; ++seed) {
        RandomSource source(seed);
        RandomSource neighbour(seed + 1);
        const float draw = source.Draw();
        firstDraws.insert(draw);
        correlation += (draw - 0.5) * (neighbour.Draw() - 0.5) * 12;
    }
    EXPECT_GT(firstDraws.size(), 1990U);
    EXPECT_NEAR(correlation / 2000, 0, 0.12);
}

TEST(RandomSource, CopyContinuesTheSameStream) {
    RandomSource source(9);
    source.Draw();
    RandomSource copy = source;
    EXPECT_EQ(copy.Draw(), source.Draw());
    EXPECT_EQ(copy.Position(), source.Position());
}

TEST(RandomSource, PositionCanBeSetBack) {
    RandomSource source(9);
    const std::uint64_t position = source.Position();
    const float draw = source.Draw();
    source.Draw();
    source.SetPosition(position);
    EXPECT_EQ(source.Draw(), draw);
}

TEST(RandomSource, SkipPassesOverThatManyDraws) {
    RandomSource walking(77);
    for (std::uint64_t count = 0; count <= 1000; ++count) {
        RandomSource skipping(77);
        skipping.Skip(count);
        ASSERT_EQ(skipping.Position(), walking.Position()) << count;
        walking.Draw();
    }
}

TEST(RandomSource, SkipsAddUp) {
    RandomSource atOnce(3);
    RandomSource inParts(3);
    atOnce.Skip(5000000000U + 12345678901234567U);
    inParts.Skip(5000000000U);
    inParts.Skip(12345678901234567U);
    EXPECT_EQ(atOnce.Position(), inParts.Position());
}

TEST(RandomSource, PeriodIsTwoToTheSixtyFour) {
    RandomSource source(3);
    const std::uint64_t position = source.Position();
    source.Skip(std::numeric_limits<std::uint64_t>::max());
    EXPECT_NE(source.Position(), position);
    source.Draw();
    EXPECT_EQ(source.Position(), position);
}

TEST(RandomInRange, ReachesBothEndsAndNothingElse) {
    RandomSource source(1);
    std::set<std::int32_t> seen;
    for (int draw = 0; draw < 2000; ++draw) seen.insert(RandomInRange(source, -2, 4));
    EXPECT_EQ(seen, (std::set<std::int32_t>{-2, -1, 0, 1, 2, 3, 4}));
}

TEST(RandomInRange, IsTheFloorOfTheScaledDraw) {
    RandomSource source(13);
    for (int round = 0; round < 1000; ++round) {
        RandomSource before = source;
        const double draw = before.Draw();
        EXPECT_EQ(RandomInRange(source, 1, 250), static_cast<std::int32_t>(std::floor(draw * 250 + 1)));
    }
}

TEST(RandomInRange, EqualEndsAndAnEmptyRangeGiveTheLowEnd) {
    RandomSource source(2);
    for (int draw = 0; draw < 100; ++draw) {
        EXPECT_EQ(RandomInRange(source, 7, 7), 7);
        EXPECT_EQ(RandomInRange(source, 1, 0), 1);
    }
}

TEST(RandomInRange, ReversedEndsDoNotFail) {
    RandomSource source(2);
    std::set<std::int32_t> seen;
    for (int draw = 0; draw < 1000; ++draw) seen.insert(RandomInRange(source, 5, 1)); // floor(-3 r + 5)
    EXPECT_EQ(seen, (std::set<std::int32_t>{2, 3, 4}));
}

TEST(RandomInRange, WholeRangeOfThirtyTwoBitsFits) {
    constexpr std::int32_t Low = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t High = std::numeric_limits<std::int32_t>::max();
    RandomSource source(2);
    bool negative = false;
    bool positive = false;
    for (int draw = 0; draw < 100; ++draw) {
        const std::int32_t value = RandomInRange(source, Low, High);
        negative = negative || value < 0;
        positive = positive || value > 0;
    }
    EXPECT_TRUE(negative && positive);
}

TEST(RandomInRange, UsesOneDrawAlways) {
    RandomSource source(4);
    for (const auto& [low, high] : {std::pair(1, 2), std::pair(1, 1), std::pair(1, 0), std::pair(5, 1)}) {
        RandomSource other = source;
        RandomInRange(source, low, high);
        other.Draw();
        EXPECT_EQ(source.Position(), other.Position());
    }
}

} // namespace
} // namespace dorvan
