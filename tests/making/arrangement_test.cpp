#include "making/arrangement.h"

#include "making/plain_two_sum.h"
#include "making/order_quality.h"
#include "making/starting_orders.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <set>

namespace dorvan {
namespace {

constexpr float Infinite = std::numeric_limits<float>::infinity();

// Half the 2-SUM of an order, as it is written down.
double PlainHalf(const FloatTable& distances, const Records& order) {
    const double n = double(order.size());
    return plain::TwoSum(distances, order) * n * n / 2;
}

Records Exchanged(Records order, int a, int b) {
    std::iter_swap(std::find(order.begin(), order.end(), a), std::find(order.begin(), order.end(), b));
    return order;
}

Records Inserted(Records order, int from, int to) {
    const int moving = order[std::size_t(from)];
    order.erase(order.begin() + from);
    order.insert(order.begin() + to, moving);
    return order;
}

struct Fixture {
    explicit Fixture(const FloatTable& table, std::uint64_t seed = 3)
        : distances(table), attractions(table), arrangement(attractions) {
        RandomSource random(seed);
        arrangement.Take(RandomOrder(table.Rows(), random));
    }
    void ExpectHalfIsTrue() const {
        const double half = PlainHalf(distances, arrangement.Order());
        EXPECT_NEAR(arrangement.Half(), half, 1e-10 * std::fabs(half));
        EXPECT_NEAR(attractions.HalfTwoSum(arrangement.Order()), half, 1e-10 * std::fabs(half));
    }
    const FloatTable distances;
    const Attractions attractions;
    Arrangement arrangement;
};

TEST(TwoSumOfOrder, CountsEachPairTwice) {
    FloatTable distances = plain::Table(3, [](int i, int j) { return i == 3 && j == 1 ? 300.0F : 2.0F; });
    distances(3, 2) = distances(2, 3) = 4.5F;
    EXPECT_DOUBLE_EQ(TwoSumOfOrder(distances), 2 * (1 / 3.0 + 1 / 5.5 + 4 / 301.0) / 9);
    EXPECT_NEAR(TwoSumOfOrder(distances), double(ScoreOfOrder(distances)), 1e-6);
}

TEST(TwoSumOfOrder, OfNoneOrOneRecordIsZero) {
    EXPECT_EQ(TwoSumOfOrder(FloatTable()), 0);
    EXPECT_EQ(TwoSumOfOrder(FloatTable(1, 1)), 0);
}

TEST(TwoSumOfOrder, TakesInfiniteDistancesAsNoAttraction) {
    EXPECT_EQ(TwoSumOfOrder(plain::Table(5, [](int, int) { return Infinite; })), 0);
}

TEST(TwoSumOfOrder, TakesTheMeanOfBothDirections) {
    FloatTable distances(2, 2);
    distances(1, 2) = 1;
    distances(2, 1) = 3;
    EXPECT_DOUBLE_EQ(TwoSumOfOrder(distances), (1 / 2.0 + 1 / 4.0) / 4);
}

TEST(Attractions, FailWhereOnePlusTheDistanceIsZeroOrNoNumber) {
    const float noNumber = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FAILURE(Failure::DivisionByZero, Attractions(plain::Table(3, [](int, int) { return -1.0F; })));
    EXPECT_FAILURE(Failure::DivisionByZero, Attractions(plain::Table(3, [&](int, int) { return noNumber; })));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, Attractions(FloatTable(3, 2)));
}

// Tables of a count that is no multiple of the lanes, of all scales.
class Moves : public testing::TestWithParam<int> {
public:
    FloatTable Distances() const {
        switch (GetParam()) {
        case 0: return plain::Noise(13, 1);
        case 1: return plain::Points(16, 2);
        case 2: return plain::Noise(9, 3, 1e7F);
        case 3: return plain::Table(11, [](int i, int j) { return i % 2 == j % 2 ? 0.5F : 1e30F; });
        default: return plain::Table(7, [](int i, int j) { return i + j > 9 ? Infinite : 2.0F * float(i); });
        }
    }
};

TEST_P(Moves, BestExchangeIsTheBestOfAllAsWrittenDown) {
    Fixture at(Distances());
    const double before = PlainHalf(at.distances, at.arrangement.Order());
    for (int record = 0; record < at.distances.Rows(); ++record) {
        const ExchangeMove best = at.arrangement.BestExchange(record);
        double least = 0;
        for (int other = 0; other < at.distances.Rows(); ++other) {
            const double change =
                PlainHalf(at.distances, Exchanged(at.arrangement.Order(), record, other)) - before;
            least = std::min(least, change);
            if (other == best.With) {
                EXPECT_NEAR(best.Change, change, 1e-10 * before) << record;
            }
        }
        EXPECT_NEAR(best.Change, least, 1e-10 * before) << record;
    }
}

TEST_P(Moves, BestInsertionIsTheBestOfAllAsWrittenDown) {
    for (std::uint64_t seed = 1; seed <= 6; ++seed) {
        Fixture at(Distances(), seed);
        const double before = PlainHalf(at.distances, at.arrangement.Order());
        const InsertionMove best = at.arrangement.BestInsertion();
        double least = 0;
        for (int from = 0; from < at.distances.Rows(); ++from)
            for (int to = 0; to < at.distances.Rows(); ++to)
                least = std::min(least, PlainHalf(at.distances, Inserted(at.arrangement.Order(), from, to)) -
                                            before);
        EXPECT_NEAR(best.Change, least, 1e-10 * before);
        if (best.From < 0) continue;
        const Records after = Inserted(at.arrangement.Order(), best.From, best.To);
        EXPECT_NEAR(PlainHalf(at.distances, after) - before, best.Change, 1e-10 * before);
        at.arrangement.Insert(best);
        EXPECT_EQ(at.arrangement.Order(), after);
        at.ExpectHalfIsTrue();
    }
}

TEST_P(Moves, ExchangeKeepsOrderSlopesAndCriterion) {
    Fixture at(Distances());
    for (int record = 0; record < at.distances.Rows(); ++record) {
        const ExchangeMove move = at.arrangement.BestExchange(record);
        if (move.With < 0) continue;
        const Records after = Exchanged(at.arrangement.Order(), record, move.With);
        at.arrangement.Exchange(record, move);
        EXPECT_EQ(at.arrangement.Order(), after);
        at.ExpectHalfIsTrue();
        const double change = at.arrangement.BestInsertion().Change;
        at.arrangement.Refresh();
        EXPECT_NEAR(at.arrangement.BestInsertion().Change, change, 1e-9 * at.arrangement.Half());
    }
}

TEST_P(Moves, PutKeepsOrderAndCriterion) {
    Fixture at(Distances());
    Records stretch(at.arrangement.Order().begin() + 2, at.arrangement.Order().begin() + 7);
    std::reverse(stretch.begin(), stretch.end());
    Records after = at.arrangement.Order();
    std::copy(stretch.begin(), stretch.end(), after.begin() + 2);
    at.arrangement.Put(2, stretch);
    EXPECT_EQ(at.arrangement.Order(), after);
    at.ExpectHalfIsTrue();
}

TEST_P(Moves, DescendGains) {
    Fixture at(Distances());
    const double before = at.arrangement.Half();
    at.arrangement.Descend();
    EXPECT_LT(at.arrangement.Half(), before);
    at.ExpectHalfIsTrue();
    EXPECT_TRUE(plain::IsPermutation(at.arrangement.Order(), at.distances.Rows()));
}

TEST_P(Moves, SettleLeavesNothingThatGains) {
    Fixture at(Distances());
    at.arrangement.Settle();
    at.ExpectHalfIsTrue();
    const double before = PlainHalf(at.distances, at.arrangement.Order());
    const int n = at.distances.Rows();
    for (int a = 0; a < n; ++a)
        for (int b = 0; b < n; ++b) {
            EXPECT_GE(PlainHalf(at.distances, Exchanged(at.arrangement.Order(), a, b)), before * (1 - 1e-9));
            EXPECT_GE(PlainHalf(at.distances, Inserted(at.arrangement.Order(), a, b)), before * (1 - 1e-9));
        }
}

INSTANTIATE_TEST_SUITE_P(OfAllScales, Moves, testing::Range(0, 5));

TEST(Arrangement, FollowsAnother) {
    Fixture at(plain::Points(20, 4));
    Arrangement other(at.attractions);
    at.arrangement.Settle();
    other.Follow(at.arrangement);
    EXPECT_EQ(other.Order(), at.arrangement.Order());
    EXPECT_EQ(other.Half(), at.arrangement.Half());
    EXPECT_EQ(other.BestInsertion().From, -1);
}

TEST(StartingOrders, ArePermutations) {
    for (const int n : {1, 2, 3, 4, 17, 90}) {
        const Attractions attractions(plain::Noise(n, std::uint64_t(n)));
        RandomSource random(1);
        for (const Records& order : {SpectralOrder(attractions), GroupedOrder(attractions, n - 1),
                                     WalkOrder(attractions, n / 2), RandomOrder(n, random)})
            EXPECT_TRUE(plain::IsPermutation(order, n)) << n;
    }
}

TEST(StartingOrders, StandTablesWithoutAttractionOrWithoutDifference) {
    for (const float distance : {0.0F, 3.0F, 1e30F, Infinite}) {
        const Attractions attractions(plain::Table(9, [&](int, int) { return distance; }));
        EXPECT_TRUE(plain::IsPermutation(SpectralOrder(attractions), 9)) << distance;
        EXPECT_TRUE(plain::IsPermutation(GroupedOrder(attractions, 4), 9)) << distance;
        EXPECT_TRUE(plain::IsPermutation(WalkOrder(attractions, 4), 9)) << distance;
    }
}

TEST(StartingOrders, SpectralFindsALine) {
    RandomSource random(5);
    const Records places = RandomOrder(60, random);
    const Attractions attractions(plain::Table(60, [&](int i, int j) {
        return float(std::abs(places[std::size_t(i - 1)] - places[std::size_t(j - 1)]));
    }));
    Records found;
    for (const int record : SpectralOrder(attractions)) found.push_back(places[std::size_t(record)]);
    if (found.front() > found.back()) std::reverse(found.begin(), found.end());
    EXPECT_EQ(found, plain::Ascending(60));
}

TEST(StartingOrders, GroupsStandTogether) {
    const Attractions attractions(
        plain::Table(30, [](int i, int j) { return i % 3 == j % 3 ? float(i + j) : 1e7F; }));
    const Records order = GroupedOrder(attractions, 7);
    EXPECT_EQ(order.front(), 7);
    std::set<int> seen;
    for (std::size_t k = 0; k < order.size(); ++k)
        if (k == 0 || order[k] % 3 != order[k - 1] % 3) {
            EXPECT_TRUE(seen.insert(order[k] % 3).second);
        }
}

TEST(StartingOrders, WalkGoesToTheNearestLeft) {
    const Attractions attractions(
        plain::Table(5, [](int i, int j) { return float(std::abs(i * i - j * j)); }));
    EXPECT_EQ(WalkOrder(attractions, 2), (Records{2, 1, 0, 3, 4}));
}

} // namespace
} // namespace dorvan
