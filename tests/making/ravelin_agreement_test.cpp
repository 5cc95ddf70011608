#include "agreement.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace dorvan {
namespace {

struct Parameters {
    std::string name;
    OrderingOptions options;
};

OrderingOptions Weights(std::array<std::int16_t, 8> weights, int mutations = 20, int generations = 2,
                        float coefficient = 1) {
    OrderingOptions options;
    options.SequenceChange = weights[0];
    options.FragmentTransfer = weights[1];
    options.SomeSingleTransfers = weights[2];
    options.SingleTransfer = weights[3];
    options.SomeRemoteConversions = weights[4];
    options.RemoteConversion = weights[5];
    options.SomeNeighbourConversions = weights[6];
    options.NeighbourConversion = weights[7];
    options.CriticalMutationNumber = static_cast<std::int16_t>(mutations);
    options.CriticalGenerationNumber = static_cast<std::int16_t>(generations);
    options.MatrixConversionCoefficient = coefficient;
    return options;
}

constexpr std::array<std::int16_t, 8> Usual = {1, 5, 20, 50, 15, 30, 50, 200};
constexpr std::array<std::int16_t, 8> Even = {1, 1, 1, 1, 1, 1, 1, 1};

std::vector<Parameters> ParameterSets() {
    std::vector<Parameters> sets = {
        {"usual", Weights(Usual)},
        {"all weights 0", Weights({})},
        {"even", Weights(Even)},
        {"no mutation lost", Weights(Usual, 0, 3)},
        {"one mutation lost", Weights(Even, 1, 3)},
        {"no generation lost", Weights(Even, 50, 0)},
        {"neither lost", Weights(Even, 0, 0)},
        {"many mutations", Weights(Even, 100, 1)},
        {"coefficient 0", Weights(Even, 20, 2, 0)},
        {"coefficient 0.5", Weights(Even, 20, 2, 0.5F)},
        {"coefficient 2.5", Weights(Usual, 20, 2, 2.5F)},
        {"coefficient 100", Weights(Even, 20, 2, 100)},
        {"weights beyond 16 bits", Weights({32767, 1, 2, 0, 0, 300, 0, 2}, 30, 2)},
    };
    for (const int mutations : {7, 8, 9, 24, 25, 31, 33, 57}) // around what is drawn ahead
        sets.push_back({std::to_string(mutations) + " mutations", Weights(Even, mutations, 1)});
    for (std::size_t single = 0; single < 8; ++single) {
        std::array<std::int16_t, 8> weights{};
        weights[single] = 3;
        sets.push_back({"only operator " + std::to_string(single + 1), Weights(weights)});
    }
    return sets;
}

// A run goes on for ever where no order beats the sheet's and its 64-bit base rounds up to a 32-bit mark:
// each generation starts below the mark.
constexpr int MostYields = 120;

Trace ExpectAgreement(const FloatTable& distances, const Plan& plan) {
    const Trace run = RunRavelin(distances, plan);
    ExpectSame(run, PlainRavelin(distances, plan));
    EXPECT_EQ(run.messages, 0);
    return run;
}

class RavelinAgreement : public ::testing::TestWithParam<std::int32_t> {};
class RavelinAgreementOfManyRecords : public ::testing::TestWithParam<std::int32_t> {};

TEST_P(RavelinAgreement, OfEveryKindOfDistancesAndParameters) {
    const std::int32_t n = GetParam();
    std::uint64_t seed = 0;
    for (const Parameters& parameters : ParameterSets())
        for (const Distances kind : EveryKind) {
            ++seed;
            SCOPED_TRACE(testing::Message() << "kind " << int(kind) << ", " << parameters.name);
            Plan plan;
            plan.options = parameters.options;
            plan.cancelAt = MostYields;
            plan.seed = seed;
            ExpectAgreement(MakeDistances(kind, n, seed), plan);
            if (HasFailure()) return;
        }
}

INSTANTIATE_TEST_SUITE_P(Records, RavelinAgreement, testing::Range(2, 13));

TEST_P(RavelinAgreementOfManyRecords, OfEveryKindOfDistances) {
    const std::int32_t n = GetParam();
    std::uint64_t seed = 0;
    for (const Distances kind : EveryKind) {
        ++seed;
        SCOPED_TRACE(testing::Message() << "kind " << int(kind));
        Plan plan;
        plan.options = Weights(seed % 2 == 0 ? Usual : Even, n > 100 ? 40 : 60, 1);
        plan.cancelAt = 2 * MostYields;
        plan.seed = seed;
        ExpectAgreement(MakeDistances(kind, n, seed), plan);
    }
}

INSTANTIATE_TEST_SUITE_P(Records, RavelinAgreementOfManyRecords,
                         testing::Values(16, 17, 31, 50, 64, 100, 150, 250));

TEST(RavelinAgreementOfTheDefaults, OverManySeeds) {
    for (std::uint64_t seed = 1; seed <= 12; ++seed) {
        Plan plan;
        plan.seed = seed;
        ExpectAgreement(MakeDistances(Distances::Fractions, 15, seed), plan);
    }
}

TEST(RavelinAgreementOfTheDefaults, AStartThatRoundsUpToItsMarkIsAGainForEver) {
    Plan plan;
    plan.options = Weights(Even, 1, 1, 0);
    plan.cancelAt = MostYields;
    const Trace run = ExpectAgreement(FloatTable(3, 3), plan); // 4 / 3
    EXPECT_TRUE(run.found.at(0).cancelled);
    EXPECT_EQ(run.yields.back().shown.substr(0, 5), "60|0|");
}

TEST(RavelinAgreementOfOneSession, WeightsAddUpAndTheStreamGoesOn) {
    Plan plan;
    plan.options = Weights(Usual);
    plan.runs = 4;
    plan.seed = 9;
    plan.decimalSeparator = ',';
    const Trace run = ExpectAgreement(MakeDistances(Distances::Fractions, 12, 9), plan);
    EXPECT_EQ(run.weights, 4 * 371);
    EXPECT_EQ(run.found.size(), 4U);
}

// Of 89 runs with the default weights the last draws weights up to 33019.
TEST(RavelinAgreementOfOneSession, WeightDrawnBeyond16BitsIsAnOverflow) {
    int failed = 0;
    for (std::uint64_t seed = 1; seed <= 30; ++seed) {
        Plan plan;
        plan.options = Weights(Usual, 40, 3);
        plan.options.UmWeightTotal = 88 * 371;
        plan.seed = seed;
        const Trace run = ExpectAgreement(MakeDistances(Distances::Fractions, 12, seed), plan);
        EXPECT_EQ(run.weights, 89 * 371);
        EXPECT_EQ(run.failure.value_or(Failure::Overflow), Failure::Overflow);
        failed += run.failure ? 1 : 0;
    }
    EXPECT_GT(failed, 5);
}

TEST(RavelinAgreementOfOneSession, The88thRunNeverOverflows) {
    for (std::uint64_t seed = 1; seed <= 10; ++seed) {
        Plan plan;
        plan.options = Weights(Usual, 40, 3);
        plan.options.UmWeightTotal = 87 * 371;
        plan.seed = seed;
        EXPECT_EQ(ExpectAgreement(MakeDistances(Distances::Fractions, 12, seed), plan).failure, std::nullopt);
    }
}

class RavelinStopped : public ::testing::Test {
protected:
    FloatTable distances = MakeDistances(Distances::Wide, 10, 2);
    Plan plan;
    int yields = 0;

    RavelinStopped() {
        plan.options = Weights(Even, 12, 2);
        plan.seed = 2;
        yields = static_cast<int>(ExpectAgreement(distances, plan).yields.size());
    }
};

TEST_F(RavelinStopped, ByCancelAtEveryYieldAndInTheRunAfter) {
    plan.runs = 2;
    int changed = 0;
    for (int yield = 1; yield <= yields + 20; ++yield) {
        SCOPED_TRACE(yield);
        plan.cancelAt = yield;
        const Trace run = ExpectAgreement(distances, plan);
        ASSERT_EQ(run.found.size(), 2U);
        EXPECT_EQ(run.found[0].cancelled, yield <= yields); // the flag stays until the next run
        changed += run.found[0].order.Cells() != run.found[1].order.Cells() ? 1 : 0;
    }
    EXPECT_GT(changed, 0);
}

TEST_F(RavelinStopped, ByAMissingWindowAtEveryYield) {
    for (int yield = 1; yield <= yields + 1; ++yield) {
        SCOPED_TRACE(yield);
        plan.noWindowAt = 0;
        plan.noWindowFrom = yield;
        const Trace closed = ExpectAgreement(distances, plan);
        // A generation is ended first, and the next one finds no window either.
        EXPECT_LE(closed.yields.size(), std::size_t(yield) + 1);
        plan.noWindowFrom = 0;
        plan.noWindowAt = yield; // the next generation has one again
        ExpectAgreement(distances, plan);
    }
}

TEST_F(RavelinStopped, ByCancelWhereNoWindowIsLeft) {
    for (int yield = 1; yield <= yields; ++yield) {
        SCOPED_TRACE(yield);
        plan.noWindowAt = plan.cancelAt = yield;
        EXPECT_TRUE(ExpectAgreement(distances, plan).found.at(0).cancelled);
    }
}

TEST_F(RavelinStopped, InTheFirstGenerationLeavesTheSheetOrder) {
    for (const int yield : {1, 2, 3, 10}) {
        plan.cancelAt = yield;
        const Trace run = ExpectAgreement(distances, plan);
        for (std::int32_t place = 1; place <= 10; ++place) EXPECT_EQ(run.found.at(0).order(place), place);
    }
}

TEST(RavelinAgreementOfAFailure, DistancesOutsideTheBytesOverflow) {
    struct Case {
        float distance;
        float coefficient;
        bool fails;
    };
    const Case cases[] = {{-0.51F, 1, true},    {-0.5F, 1, false},      {255.4F, 1, false},
                          {1e30F, 1, false},    {1e30F, 1.01F, true},   {255, 1.0019F, false},
                          {255, 1.002F, true},  {2.55F, 100, false},    {2.56F, 100, true},
                          {3, 100, true},       {-1e30F, 0, false},     {-1, 0.5F, false},
                          {-1.1F, 0.5F, true},  {-3, -1, false},        {3, -1, true},
                          {1e38F, 32767, true}, {0.0001F, 32767, false}};
    for (const Case& some : cases) {
        SCOPED_TRACE(testing::Message() << some.distance << " x " << some.coefficient);
        FloatTable distances(5, 5);
        distances(4, 2) = some.distance; // one way is enough
        Plan plan;
        plan.options = Weights(Usual, 3, 1, some.coefficient);
        plan.cancelAt = MostYields;
        const Trace run = ExpectAgreement(distances, plan);
        EXPECT_EQ(run.failure, some.fails ? std::optional(Failure::Overflow) : std::nullopt);
        EXPECT_EQ(run.yields.empty(), some.fails);
        EXPECT_EQ(run.weights, some.fails ? 0 : 371); // the bytes come before the weights
    }
}

TEST(RavelinAgreementOfAFailure, TheDiagonalIsMadeToBytesToo) {
    FloatTable distances(5, 5);
    distances(3, 3) = -1;
    EXPECT_EQ(ExpectAgreement(distances, Plan()).failure, Failure::Overflow);
}

} // namespace
} // namespace dorvan
