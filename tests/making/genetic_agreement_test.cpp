#include "agreement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace dorvan {
namespace {

Plan PlanOf(int variants, int generations, std::uint64_t seed) {
    Plan plan;
    plan.options.GeneticVariants = static_cast<std::int16_t>(variants);
    plan.options.GeneticGenerations = static_cast<std::int16_t>(generations);
    plan.seed = seed;
    return plan;
}

Trace ExpectAgreement(const FloatTable& distances, const Plan& plan) {
    const Trace run = RunGenetic(distances, plan);
    ExpectSame(run, PlainGenetic(distances, plan));
    return run;
}

class GeneticAgreement : public ::testing::TestWithParam<std::int32_t> {};
class GeneticAgreementOfManyRecords : public ::testing::TestWithParam<std::int32_t> {};

TEST_P(GeneticAgreement, OfEveryKindOfDistancesAndSizeOfTheRun) {
    const std::int32_t n = GetParam();
    std::uint64_t seed = 0;
    for (const Distances kind : EveryKind)
        for (const int variants : {1, 2, 10, 30, 50})
            for (int generations = 1; generations <= 5; ++generations) {
                ++seed;
                SCOPED_TRACE(testing::Message() << "kind " << int(kind) << ", " << variants << " variants, "
                                                << generations << " generations");
                ExpectAgreement(MakeDistances(kind, n, seed), PlanOf(variants, generations, seed));
                if (HasFailure()) return;
            }
}

INSTANTIATE_TEST_SUITE_P(Records, GeneticAgreement, testing::Range(3, 13));

TEST_P(GeneticAgreementOfManyRecords, OfEveryKindOfDistances) {
    const std::int32_t n = GetParam();
    std::uint64_t seed = 100;
    for (const Distances kind : EveryKind) {
        const int variants[] = {50, 10, 30, 2, 17};
        SCOPED_TRACE(testing::Message() << "kind " << int(kind));
        ExpectAgreement(MakeDistances(kind, n, seed), PlanOf(variants[seed % 5], n > 100 ? 2 : 5, seed));
        ++seed;
    }
}

INSTANTIATE_TEST_SUITE_P(Records, GeneticAgreementOfManyRecords,
                         testing::Values(16, 17, 31, 50, 64, 100, 150, 250));

TEST(GeneticAgreementOfALongRun, OverManySeeds) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed)
        ExpectAgreement(MakeDistances(Distances::Fractions, 14, seed), PlanOf(10, 100, seed));
}

TEST(GeneticAgreementOfOneSession, RunsFollowOneAnotherInTheStream) {
    Plan plan = PlanOf(10, 4, 5);
    plan.runs = 3;
    plan.decimalSeparator = ',';
    const Trace run = ExpectAgreement(MakeDistances(Distances::Fractions, 11, 5), plan);
    ASSERT_EQ(run.found.size(), 3U);
    EXPECT_NE(run.found[0].order.Cells(), run.found[1].order.Cells());
}

TEST(GeneticAgreementOfACancelledRun, AtEveryYieldAndInTheRunAfter) {
    const FloatTable distances = MakeDistances(Distances::Wide, 12, 3);
    Plan plan = PlanOf(10, 8, 3);
    plan.runs = 2;
    for (int yield = 1; yield <= 17; ++yield) {
        SCOPED_TRACE(yield);
        plan.cancelAt = yield;
        const Trace run = ExpectAgreement(distances, plan);
        EXPECT_EQ(run.yields.size(), yield <= 8    ? std::size_t(yield) + 8
                                     : yield <= 16 ? std::size_t(yield)
                                                   : 16U);
        for (const Found& found : run.found) EXPECT_FALSE(found.cancelled);
    }
}

TEST(GeneticAgreementOfARunWithoutAWindow, AtEveryYield) {
    const FloatTable distances = MakeDistances(Distances::Wide, 12, 4);
    for (int yield = 1; yield <= 9; ++yield) {
        SCOPED_TRACE(yield);
        Plan plan = PlanOf(10, 8, 4);
        plan.noWindowAt = yield;
        EXPECT_EQ(ExpectAgreement(distances, plan).yields.size(), std::size_t(std::min(yield, 8)));
        plan.cancelAt = yield; // the window comes first: the flag stays
        const Trace both = ExpectAgreement(distances, plan);
        EXPECT_EQ(both.found.at(0).cancelled, yield <= 8);
    }
}

TEST(GeneticAgreementOfAFailure, DistanceOfMinusOneIsADivisionByZero) {
    for (const std::int32_t n : {3, 9, 40}) {
        FloatTable distances = MakeDistances(Distances::Fractions, n, 6);
        distances(n, 2) = -1;
        distances(2, n) = -1;
        const Trace run = ExpectAgreement(distances, PlanOf(10, 3, 6));
        EXPECT_EQ(run.failure, Failure::DivisionByZero);
        EXPECT_EQ(run.yields.size(), 1U);
    }
}

// Only below the diagonal: it counts in the first order that has the two the other way round.
TEST(GeneticAgreementOfAFailure, DistanceOfMinusOneOneWayFailsWhenItIsReached) {
    int failed = 0;
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        FloatTable distances = MakeDistances(Distances::Fractions, 9, seed);
        distances(4, 2) = -1;
        const Trace run = ExpectAgreement(distances, PlanOf(2, 5, seed));
        failed += run.failure ? 1 : 0;
    }
    EXPECT_GT(failed, 5);
    EXPECT_LT(failed, 40);
}

TEST(GeneticAgreementOfAFailure, DistanceOfMinusOneOnTheDiagonalDoesNotCount) {
    FloatTable distances = MakeDistances(Distances::Fractions, 9, 6);
    distances(4, 4) = -1;
    EXPECT_EQ(ExpectAgreement(distances, PlanOf(10, 3, 6)).failure, std::nullopt);
}

} // namespace
} // namespace dorvan
