#include "making/robinson_order.h"

#include "making/plain_two_sum.h"
#include "making/order_quality.h"

#include <gtest/gtest.h>

namespace dorvan {
namespace {

bool AnyOrderIsRobinson(const FloatTable& distances) {
    Records order = plain::Ascending(distances.Rows());
    do
        if (AntiRobinsonEvents(plain::Shuffled(distances, order)) == 0) return true;
    while (std::next_permutation(order.begin(), order.end()));
    return false;
}

TEST(IsRobinson, MeansNoAntiRobinsonEvents) {
    int yes = 0;
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        const FloatTable distances = plain::WholeNumbers(4, seed, 3);
        const bool robinson = AntiRobinsonEvents(distances) == 0;
        EXPECT_EQ(IsRobinson(distances, plain::Ascending(4)), robinson) << seed;
        yes += robinson ? 1 : 0;
    }
    EXPECT_GT(yes, 10);
    EXPECT_LT(yes, 390);
}

// Few values make many ties, where one sweep seldom is enough.
TEST(RobinsonOrder, IsFoundJustWhereOneExists) {
    int found = 0;
    int none = 0;
    for (const int n : {4, 5, 6})
        for (const int values : {2, 3, 4})
            for (std::uint64_t seed = 1; seed <= 60; ++seed) {
                const FloatTable distances = plain::WholeNumbers(n, seed, values);
                const auto order = RobinsonOrder(distances);
                EXPECT_EQ(order.has_value(), AnyOrderIsRobinson(distances))
                    << n << " " << values << " " << seed;
                (order ? found : none) += 1;
                if (order) {
                    EXPECT_EQ(AntiRobinsonEvents(plain::Shuffled(distances, *order)), 0);
                }
            }
    EXPECT_GT(found, 50);
    EXPECT_GT(none, 50);
}

// A table of larger and larger distances away from the diagonal, by steps that are often 0.
FloatTable RandomRobinson(int n, RandomSource& random, int steps) {
    FloatTable distances(n, n);
    for (int apart = 1; apart < n; ++apart)
        for (int i = 1; i + apart <= n; ++i) {
            const int j = i + apart;
            const float within = apart == 1 ? 0 : std::max(distances(i, j - 1), distances(i + 1, j));
            distances(i, j) = distances(j, i) = within + float(std::max(0, RandomInRange(random, -steps, 2)));
        }
    return distances;
}

TEST(RobinsonOrder, IsFoundHoweverManyTiesThereAre) {
    RandomSource random(9);
    for (const int n : {7, 12, 30, 60})
        for (const int steps : {0, 3, 12, 60})
            for (int repeat = 0; repeat < 25; ++repeat) {
                const FloatTable ordered = RandomRobinson(n, random, steps);
                ASSERT_EQ(AntiRobinsonEvents(ordered), 0);
                Records mix = plain::Ascending(n);
                for (int k = n - 1; k > 0; --k)
                    std::swap(mix[std::size_t(k)], mix[std::size_t(RandomInRange(random, 0, k))]);
                const FloatTable distances = plain::Shuffled(ordered, mix);
                const auto order = RobinsonOrder(distances);
                ASSERT_TRUE(order) << n << " " << steps << " " << repeat;
                EXPECT_EQ(AntiRobinsonEvents(plain::Shuffled(distances, *order)), 0);
            }
}

TEST(RobinsonOrder, OfTheTableAsItStandsComesFirst) {
    const FloatTable equal = plain::Table(6, [](int, int) { return 2.0F; });
    EXPECT_EQ(RobinsonOrder(equal), plain::Ascending(6));
}

TEST(RobinsonOrder, NeedsASymmetricTable) {
    FloatTable distances = plain::Table(3, [](int i, int j) { return float(i - j); });
    distances(1, 2) = 1.5F;
    EXPECT_FALSE(RobinsonOrder(distances));
}

TEST(RobinsonOrder, OfLargeTablesWithoutOneIsRefusedAtOnce) {
    EXPECT_FALSE(RobinsonOrder(plain::Noise(250, 4)));
    EXPECT_FALSE(RobinsonOrder(plain::Points(250, 4)));
}

TEST(RobinsonOrder, TellsDistancesApartThatAttractionsDoNot) {
    RandomSource random(2);
    Records mix = plain::Ascending(40);
    for (int k = 39; k > 0; --k)
        std::swap(mix[std::size_t(k)], mix[std::size_t(RandomInRange(random, 0, k))]);
    for (const float scale : {1e-30F, 1e-10F, 1e20F, 1e30F}) {
        const FloatTable line = plain::Table(40, [&](int i, int j) { return scale * float(i - j); });
        const FloatTable distances = plain::Shuffled(line, mix);
        const auto order = RobinsonOrder(distances);
        ASSERT_TRUE(order) << scale;
        EXPECT_EQ(AntiRobinsonEvents(plain::Shuffled(distances, *order)), 0) << scale;
    }
}

} // namespace
} // namespace dorvan
