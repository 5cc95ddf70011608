#include "agreement.h"

#include "making/elapsed_text.h"
#include "making/genetic_ordering.h"
#include "making/order_quality.h"
#include "making/ravelin_ordering.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <utility>
#include <vector>

namespace dorvan {
namespace {

using Records = std::vector<std::int16_t>;

Records SheetOrder(std::int32_t n) {
    Records records(static_cast<std::size_t>(n));
    std::iota(records.begin(), records.end(), std::int16_t(1));
    return records;
}

FloatTable InThatOrder(const FloatTable& distances, const Records& order) {
    const std::int32_t n = distances.Rows();
    FloatTable ordered(n, n);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j)
            ordered(i, j) = distances(order[std::size_t(i - 1)], order[std::size_t(j - 1)]);
    return ordered;
}

FoundOrder Genetic(const FloatTable& distances, int variants, int generations, RandomSource& random,
                   std::vector<float>* shown = nullptr) {
    OrderingOptions options;
    options.GeneticVariants = static_cast<std::int16_t>(variants);
    options.GeneticGenerations = static_cast<std::int16_t>(generations);
    return SimpleGeneticOrder(distances, options, random, [shown](GeneticProgress& progress) {
        if (shown) shown->push_back(progress.Fitness);
        return 1;
    });
}

// Three draws an exchange: kind and two places.
std::uint64_t DrawsOf(std::int32_t n, std::uint64_t exchanges) { return std::uint64_t(n) * exchanges * 3; }

TEST(SimpleGenetic, MakesATenthOfTheRecordsExchangesAndAtLeastOne) {
    const std::pair<std::int32_t, std::uint64_t> cases[] = {{3, 1},  {9, 1},  {10, 1},  {19, 1},
                                                            {20, 2}, {99, 9}, {250, 25}};
    for (const auto& [n, exchanges] : cases) {
        RandomSource random(3);
        RandomSource behind = random;
        behind.Skip(DrawsOf(n, exchanges));
        Genetic(MakeDistances(Distances::Fractions, n, 1), 2, 1, random);
        EXPECT_EQ(random.Position(), behind.Position()) << n;
    }
}

TEST(SimpleGenetic, EveryVariantButTheFirstUsesDraws) {
    for (const int variants : {1, 2, 10}) {
        RandomSource random(3);
        RandomSource behind = random;
        behind.Skip(DrawsOf(8, 1) * std::uint64_t(variants - 1) * 4);
        Genetic(MakeDistances(Distances::Fractions, 8, 1), variants, 4, random);
        EXPECT_EQ(random.Position(), behind.Position()) << variants;
    }
}

TEST(SimpleGenetic, OnlyTheLastRepetitionLeavesATrace) {
    const std::int32_t n = 5;
    const FloatTable distances = MakeDistances(Distances::Fractions, n, 3);
    int gains = 0;
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        RandomSource random(seed);
        RandomSource last = random;
        last.Skip(DrawsOf(n - 1, 1));
        const bool anywhere = RandomInRange(last, 1, 2) == 1;
        const std::int32_t a = anywhere ? RandomInRange(last, 1, n) : RandomInRange(last, 2, n - 1);
        const std::int32_t b = anywhere ? RandomInRange(last, 1, n) : RandomInRange(last, a - 1, a + 1);
        Records variant = SheetOrder(n);
        std::swap(variant[std::size_t(a - 1)], variant[std::size_t(b - 1)]);
        const bool gain = ScoreOfOrder(InThatOrder(distances, variant)) < ScoreOfOrder(distances);
        EXPECT_EQ(Genetic(distances, 2, 1, random).BestOrder.Cells(), gain ? variant : SheetOrder(n));
        gains += gain ? 1 : 0;
    }
    EXPECT_GT(gains, 10);
    EXPECT_LT(gains, 90);
}

TEST(SimpleGenetic, AmongEqualsTheParentStays) {
    RandomSource random(1);
    EXPECT_EQ(Genetic(FloatTable(12, 12), 50, 5, random).BestOrder.Cells(), SheetOrder(12));
}

TEST(SimpleGenetic, OneVariantIsTheSheetOrderWithItsScore) {
    const FloatTable distances = MakeDistances(Distances::Fractions, 12, 1);
    RandomSource random(1);
    const FoundOrder found = Genetic(distances, 1, 5, random);
    EXPECT_EQ(found.BestOrder.Cells(), SheetOrder(12));
    EXPECT_EQ(found.Score, ScoreOfOrder(distances));
}

TEST(SimpleGenetic, ScoresNeverRiseAndAreShownAGenerationLate) {
    const FloatTable distances = MakeDistances(Distances::Wide, 30, 1);
    RandomSource random(1);
    std::vector<float> shown;
    const FoundOrder found = Genetic(distances, 10, 60, random, &shown);
    ASSERT_EQ(shown.size(), 60U); // before generations 1 to 60
    EXPECT_EQ(shown[0], 0);
    EXPECT_EQ(shown[1], 0); // what the first generation showed
    EXPECT_LE(shown[2], ScoreOfOrder(distances));
    for (std::size_t k = 3; k < shown.size(); ++k) EXPECT_LE(shown[k], shown[k - 1]);
    EXPECT_LE(found.Score, shown.back());
    EXPECT_LT(found.Score, shown[2]);
    EXPECT_EQ(found.Score, ScoreOfOrder(InThatOrder(distances, found.BestOrder.Cells())));
}

struct RavelinRun {
    FoundOrder found;
    RavelinProgress last; // as the last yield showed it
    int yields = 0;
    int mostMutations = 0;
};

RavelinRun Ravelin(const FloatTable& distances, OrderingOptions options, std::uint64_t seed = 1) {
    RandomSource random(seed);
    RavelinRun run;
    RavelinHooks hooks;
    hooks.invalidMinimum = [] { ADD_FAILURE() << "the base rose"; };
    hooks.yield = [&run](RavelinProgress& progress) {
        run.last = progress;
        run.mostMutations = std::max(run.mostMutations, progress.Mutation.value_or(0));
        return ++run.yields < 100000 ? 1 : 0;
    };
    run.found = RavelinOrder(distances, options, random, hooks);
    return run;
}

TEST(Ravelin, FirstGenerationSetsTheMarkAndNeverTheOrder) {
    OrderingOptions options;
    options.CriticalGenerationNumber = 0; // ends after the first generation
    const FloatTable distances = MakeDistances(Distances::Fractions, 15, 1);
    const RavelinRun run = Ravelin(distances, options);
    EXPECT_EQ(run.last.Generation, 1);
    EXPECT_LT(run.found.Score, UmOfOrder(distances));       // a better order was found,
    EXPECT_EQ(run.found.BestOrder.Cells(), SheetOrder(15)); // and is lost
}

TEST(Ravelin, LaterGenerationsWriteTheOrderOfTheirMark) {
    OrderingOptions options;
    options.CriticalMutationNumber = 5;
    const FloatTable distances = MakeDistances(Distances::Fractions, 15, 1);
    const RavelinRun run = Ravelin(distances, options);
    EXPECT_NE(run.found.BestOrder.Cells(), SheetOrder(15));
    EXPECT_EQ(run.found.Score, UmOfOrder(InThatOrder(distances, run.found.BestOrder.Cells())));
}

TEST(Ravelin, CriticalMutationNumberZeroGivesOneMutationAGeneration) {
    OrderingOptions options;
    options.CriticalMutationNumber = 0;
    options.CriticalGenerationNumber = 3;
    const RavelinRun run = Ravelin(MakeDistances(Distances::Fractions, 15, 1), options);
    EXPECT_EQ(run.mostMutations, 1);
    EXPECT_EQ(run.yields, 2 * run.last.Generation.value());
}

// Of 4 records with bytes of 0 every order has the UM coefficient 2.5, to the bit: nothing is ever gained.
TEST(Ravelin, WithoutAGainTheDefaultsStopAtGeneration11) {
    OrderingOptions options;
    options.MatrixConversionCoefficient = 0;
    const RavelinRun run = Ravelin(MakeDistances(Distances::Fractions, 4, 1), options);
    EXPECT_EQ(run.last.Generation, 11);
    EXPECT_EQ(run.mostMutations, 100);
    EXPECT_EQ(run.yields, 11 * 101);
    EXPECT_EQ(run.found.BestOrder.Cells(), SheetOrder(4));
}

// Of 9 records it is 40 / 3, which a 32-bit float rounds down: the first mutation of each generation counts
// as a gain, and the 100 after it are lost.
TEST(Ravelin, WithCoefficientZeroAMutationIsAcceptedWhereItsRoundingLiesBelow) {
    OrderingOptions options;
    options.MatrixConversionCoefficient = 0;
    const RavelinRun run = Ravelin(MakeDistances(Distances::Fractions, 9, 1), options);
    EXPECT_EQ(run.last.Generation, 11);
    EXPECT_EQ(run.mostMutations, 101);
    EXPECT_EQ(run.found.BestOrder.Cells(), SheetOrder(9));
}

TEST(ElapsedText, HasOneDecimalAndTheSameWordForAnyCount) {
    EXPECT_EQ(ElapsedText(0, '.'), "0.0 second");
    EXPECT_EQ(ElapsedText(1, '.'), "1.0 second");
    EXPECT_EQ(ElapsedText(0.26F, '.'), "0.3 second");
    EXPECT_EQ(ElapsedText(12.34F, ','), "12,3 second");
    EXPECT_EQ(ElapsedText(86399.96F, '.'), "86400.0 second");
}

} // namespace
} // namespace dorvan
