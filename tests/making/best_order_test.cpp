#include "distance/distance.h"
#include "making/best_order.h"

#include "distance/measures.h"
#include "making/order_quality.h"
#include "making/plain_two_sum.h"
#include "making/side_by_side_work.h"
#include "making/starting_orders.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace dorvan {
namespace {

constexpr float Infinite = std::numeric_limits<float>::infinity();

Records Best(const FloatTable& distances, std::uint64_t seed = 1, int threads = 1) {
    return plain::FromZero(BestOrder(distances, seed, {}, threads));
}

double BestTwoSum(const FloatTable& distances, std::uint64_t seed = 1) {
    return plain::TwoSum(distances, Best(distances, seed));
}

FloatTable InBestOrder(const FloatTable& distances, std::uint64_t seed = 1) {
    return plain::Shuffled(distances, Best(distances, seed));
}

TEST(BestOrder, IsTheMinimumOverAllOrders) {
    for (int n = 2; n <= 8; ++n)
        for (std::uint64_t seed = 1; seed <= 3; ++seed)
            for (const FloatTable& distances :
                 {plain::Noise(n, seed), plain::WholeNumbers(n, seed, 3), plain::Noise(n, seed, 1e6F)}) {
                const double least = plain::LeastTwoSum(distances);
                EXPECT_NEAR(BestTwoSum(distances, seed), least, 1e-12 * least) << n << " " << seed;
            }
}

TEST(BestOrder, OfVeryFewRecordsIsTheOrderGiven) {
    EXPECT_EQ(BestOrder(FloatTable(), 1).Count(), 0);
    EXPECT_EQ(Best(FloatTable(1, 1)), (Records{0}));
    EXPECT_EQ(Best(plain::Noise(2, 1)), (Records{0, 1}));
    const FloatTable three = plain::Table(3, [](int i, int j) { return i == 2 && j == 1 ? 9.0F : 1.0F; });
    EXPECT_EQ(Best(three), (Records{0, 2, 1}));
}

TEST(BestOrder, StandsHostileTables) {
    const std::array<float, 6> values = {0, Infinite, 1e30F, 1, 1e-30F, std::numeric_limits<float>::max()};
    for (const int n : {2, 3, 4, 9, 40})
        for (std::uint64_t seed = 1; seed <= 4; ++seed) {
            RandomSource random(seed);
            const auto any = [&](int, int) { return values.at(std::size_t(RandomInRange(random, 0, 5))); };
            EXPECT_TRUE(plain::IsPermutation(Best(plain::Table(n, any)), n));
            FloatTable oblique(n, n); // the directions differ, the diagonal holds anything
            for (float& cell : oblique.Cells()) cell = any(0, 0);
            EXPECT_TRUE(plain::IsPermutation(Best(oblique), n));
            const FloatTable negative = plain::Table(n, [&](int, int) { return 20 * random.Draw() - 10; });
            EXPECT_TRUE(plain::IsPermutation(Best(negative), n));
        }
    for (const float value : values)
        EXPECT_EQ(Best(plain::Table(20, [&](int, int) { return value; })), plain::Ascending(20));
}

TEST(BestOrder, FailsWhereThereIsNoCriterion) {
    EXPECT_FAILURE(Failure::DivisionByZero, BestOrder(plain::Table(5, [](int, int) { return -1.0F; }), 1));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, BestOrder(FloatTable(3, 4), 1));
    EXPECT_FAILURE(Failure::Overflow, BestOrder(FloatTable(32768, 0), 1));
}

TEST(BestOrder, IsTheSameForTheSameSeedOnAnyNumberOfThreads) {
    for (const int n : {9, 40, 70})
        for (std::uint64_t seed = 1; seed <= 2; ++seed) {
            const FloatTable distances = plain::Noise(n, seed);
            const Records one = Best(distances, seed, 1);
            EXPECT_EQ(Best(distances, seed, 1), one);
            EXPECT_EQ(Best(distances, seed, 2), one);
            EXPECT_EQ(Best(distances, seed, 5), one);
            EXPECT_EQ(Best(distances, seed, 0), one);
        }
}

TEST(BestOrder, HasRecordOneInTheFirstHalf) {
    for (const int n : {5, 8, 21, 40})
        for (std::uint64_t seed = 1; seed <= 12; ++seed) {
            const Records order = Best(plain::Noise(n, seed));
            const auto placeOf = [&](int record) {
                return int(std::find(order.begin(), order.end(), record) - order.begin());
            };
            const int place = 2 * placeOf(0) + 1 == n ? placeOf(1) : placeOf(0);
            EXPECT_LT(2 * place + 1, n);
        }
}

TEST(BestOrder, LeavesATableInBestOrderAsItIs) {
    for (const FloatTable& distances :
         {plain::Noise(20, 1), plain::WholeNumbers(30, 2, 3), plain::Points(60, 3, 4),
          plain::Table(24, [](int i, int j) { return i % 3 == j % 3 ? 1.0F : 1e7F; })}) {
        const FloatTable ordered = InBestOrder(distances);
        EXPECT_EQ(Best(ordered), plain::Ascending(distances.Rows()));
    }
}

TEST(BestOrder, HasNoExchangeAndNoInsertionThatGains) {
    const FloatTable distances = InBestOrder(plain::WholeNumbers(30, 8, 4));
    const double best = plain::TwoSum(distances, plain::Ascending(30));
    for (int a = 0; a < 30; ++a)
        for (int b = 0; b < 30; ++b) {
            Records exchanged = plain::Ascending(30);
            std::swap(exchanged[std::size_t(a)], exchanged[std::size_t(b)]);
            EXPECT_GE(plain::TwoSum(distances, exchanged), best * (1 - 1e-12));
            Records inserted = plain::Ascending(30);
            inserted.erase(inserted.begin() + a);
            inserted.insert(inserted.begin() + b, a);
            EXPECT_GE(plain::TwoSum(distances, inserted), best * (1 - 1e-12));
        }
}

// One start in the order of the sheet would stay there.
TEST(BestOrder, DoesNotRelyOnOneStart) {
    const FloatTable distances = plain::Points(90, 6, 9);
    const double best = BestTwoSum(distances, 1);
    RandomSource random(4);
    for (std::uint64_t seed = 2; seed <= 8; ++seed) {
        const FloatTable shuffled = plain::Shuffled(distances, RandomOrder(90, random));
        EXPECT_NEAR(BestTwoSum(shuffled, seed), best, 5e-4 * best);
    }
}

TEST(BestOrder, KeepsDisconnectedGroupsTogether) {
    RandomSource random(3);
    for (const float apart : {1e7F, 1e30F, Infinite}) {
        const FloatTable near = plain::Points(45, 5);
        const FloatTable distances =
            plain::Table(45, [&](int i, int j) { return i % 3 == j % 3 ? near(i, j) : apart; });
        const Records order = Best(distances);
        int changes = 0;
        for (std::size_t k = 1; k < order.size(); ++k) changes += order[k] % 3 != order[k - 1] % 3 ? 1 : 0;
        EXPECT_EQ(changes, 2) << apart;
    }
}

// 20 tables of one gradient, of all scales, 100 times shuffled each.
TEST(BestOrder, FindsThePerfectOrderOfEveryGradient) {
    RandomSource random(11);
    for (int table = 0; table < 20; ++table) {
        const int n = 10 + 5 * table;
        const float scale = std::pow(10.0F, float(table % 7) - 3);
        std::vector<float> places;
        for (int i = 0; i < n; ++i)
            places.push_back(scale * (table % 2 == 0 ? random.Draw() : std::floor(9 * random.Draw())));
        const FloatTable line = plain::Table(n, [&](int i, int j) {
            return std::fabs(places[std::size_t(i - 1)] - places[std::size_t(j - 1)]);
        });
        for (int shuffle = 0; shuffle < 100; ++shuffle) {
            const FloatTable distances = plain::Shuffled(line, RandomOrder(n, random));
            ASSERT_EQ(AntiRobinsonEvents(InBestOrder(distances, std::uint64_t(shuffle))), 0) << table;
        }
    }
}

// Bertin's townships and their facilities, from samples/Townships.mdt.
constexpr std::array<std::string_view, 16> Townships = {
    "000101000", "010111001", "010010011", "010010001", "000101000", "000101000", "010010001", "101000010",
    "000101000", "000101100", "101000010", "010010001", "000101000", "000101100", "010010001", "000101000"};

FloatTable TownshipDistances() {
    FloatTable data(16, 9);
    for (int i = 0; i < 16; ++i)
        for (int j = 0; j < 9; ++j)
            data(i + 1, j + 1) = Townships.at(std::size_t(i))[std::size_t(j)] == '1' ? 1.0F : 0.0F;
    return DistancesBetweenRows(data, 16, 9, {.Type = DistanceType::Jaccard});
}

TEST(BestOrder, FindsThePerfectOrderOfTheTownships) {
    RandomSource random(12);
    for (int shuffle = 0; shuffle < 100; ++shuffle) {
        const FloatTable distances = plain::Shuffled(TownshipDistances(), RandomOrder(16, random));
        EXPECT_EQ(AntiRobinsonEvents(InBestOrder(distances, std::uint64_t(shuffle))), 0);
    }
}

TEST(BestOrder, TellsWhatItHasFound) {
    const FloatTable distances = plain::Noise(40, 2);
    double last = plain::TwoSum(distances, plain::Ascending(40));
    std::int64_t told = 0;
    const auto caller = std::this_thread::get_id();
    const Order order = BestOrder(
        distances, 1,
        [&](const BestOrderProgress& progress) {
            EXPECT_EQ(std::this_thread::get_id(), caller);
            EXPECT_LE(progress.Criterion, last * (1 + 1e-9));
            EXPECT_GE(progress.Share, 0);
            EXPECT_LT(progress.Share, 1);
            last = progress.Criterion;
            ++told;
            return true;
        },
        2);
    EXPECT_EQ(told, 20); // the same on every machine: asked between rounds
    EXPECT_NEAR(plain::TwoSum(distances, plain::FromZero(order)), last, 1e-9 * last);
}

// The order of a search that is told to end with the answer of this number.
Records BestOf(const FloatTable& distances, int answers, int threads) {
    double told = 0;
    int left = answers;
    const Order order = BestOrder(
        distances, 1,
        [&](const BestOrderProgress& progress) {
            told = progress.Criterion;
            return --left > 0;
        },
        threads);
    EXPECT_EQ(left, 0) << "asked until it is told to end, and not again";
    EXPECT_LE(plain::TwoSum(distances, plain::FromZero(order)), told * (1 + 1e-12));
    return plain::FromZero(order);
}

TEST(BestOrder, GivesTheBestSoFarWhenItIsEnded) {
    const FloatTable distances = plain::Noise(60, 2);
    const double given = plain::TwoSum(distances, plain::Ascending(60));
    double before = given;
    for (const int answers : {1, 2, 3, 4, 8, 12}) {
        const Records found = BestOf(distances, answers, 1);
        ASSERT_TRUE(plain::IsPermutation(found, 60));
        EXPECT_EQ(BestOf(distances, answers, 2), found) << answers;
        EXPECT_EQ(BestOf(distances, answers, 5), found) << answers;
        const double now = plain::TwoSum(distances, found);
        EXPECT_LE(now, before * (1 + 1e-12)) << answers;
        EXPECT_TRUE(answers == 1 || now < 0.99 * given) << answers;
        before = now;
    }
}

TEST(BestOrder, PassesOnWhatTheWatchThrows) {
    const FloatTable distances = plain::Noise(60, 2);
    EXPECT_THROW(BestOrder(
                     distances, 1, [](const BestOrderProgress&) -> bool { throw std::runtime_error(""); }, 2),
                 std::runtime_error);
}

TEST(WorkSideBySide, DoesEachOnce) {
    for (const int threads : {0, 1, 2, 7}) {
        std::array<std::atomic<int>, 40> done{};
        WorkSideBySide(40, threads, [&](int number) { ++done.at(std::size_t(number)); });
        for (const auto& count : done) EXPECT_EQ(count, 1);
    }
    WorkSideBySide(0, 3, [](int) { FAIL(); });
}

} // namespace
} // namespace dorvan
