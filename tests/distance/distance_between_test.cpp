#include "distance/distance.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

// The ten measures for one pair of records, value by value.
namespace dorvan {
namespace {

using Record = std::vector<float>;

constexpr float Greatest = std::numeric_limits<float>::max();

Measure Coded(int code) { return {DistanceType(code)}; }

float Between(const Record& x, const Record& y, const Measure& measure) {
    return DistanceBetween(x.data(), y.data(), static_cast<std::int32_t>(x.size()), measure);
}

float Customized(const Record& x, const Record& y, std::int16_t p, std::int16_t r) {
    return Between(x, y, {DistanceType::Customized, p, r});
}

// Two records of scores with the given numbers of common zeros, common ones, one against zero, zero against
// one.
struct Scores {
    Record X;
    Record Y;

    void Add(int count, float x, float y) {
        X.insert(X.end(), std::size_t(count), x);
        Y.insert(Y.end(), std::size_t(count), y);
    }
};

Scores ScoresOf(int zeros, int ones, int oneZero, int zeroOne) {
    Scores scores;
    scores.Add(zeros, 0, 0);
    scores.Add(ones, 1, 1);
    scores.Add(oneZero, 1, 0);
    scores.Add(zeroOne, 0, 1);
    return scores;
}

float YulesQ(int zeros, int ones, int oneZero, int zeroOne) {
    const Scores scores = ScoresOf(zeros, ones, oneZero, zeroOne);
    return Between(scores.X, scores.Y, {DistanceType::YulesQ});
}

TEST(DistanceBetween, HenzelIsTheMeanSquaredDifferenceWithoutARoot) {
    EXPECT_EQ(Between({1, 2, 3}, {4, 2, 1}, {DistanceType::Henzel}), 13.0f / 3.0f);
}

TEST(DistanceBetween, HenzelSkipsVariablesThatOneRecordMisses) {
    EXPECT_EQ(Between({1, NaValue, 5, NaValue}, {4, 7, NaValue, NaValue}, {DistanceType::Henzel}), 9.0f);
}

TEST(DistanceBetween, HenzelAndCzekanowskiWithoutACommonVariableAreZero) {
    EXPECT_EQ(Between({NaValue, 5}, {3, NaValue}, {DistanceType::Henzel}), 0.0f);
    EXPECT_EQ(Between({NaValue, 5}, {3, NaValue}, {DistanceType::Czekanowski}), 0.0f);
}

TEST(DistanceBetween, CzekanowskiIsTheMeanAbsoluteDifferenceOfTheUsableVariables) {
    EXPECT_EQ(Between({1, NaValue, 3, 10}, {4, 7, 1, 5}, {DistanceType::Czekanowski}), 10.0f / 3.0f);
}

TEST(DistanceBetween, HenzelAndCzekanowskiCountVariablesInSixteenBits) {
    const Record full(32767, 0.0f);
    const Record more(32768, 0.0f);
    for (const auto type : {DistanceType::Henzel, DistanceType::Czekanowski}) {
        EXPECT_EQ(Between(full, full, {type}), 0.0f);
        EXPECT_FAILURE(Failure::Overflow, Between(more, more, {type}));
    }
}

TEST(DistanceBetween, EuclideanIsTheRootOfTheSumOfSquares) {
    EXPECT_EQ(Between({0, 0}, {3, 4}, {DistanceType::Euclidean}), 5.0f);
}

TEST(DistanceBetween, SquaresAreAddedInSixtyFourBitsAndTheSumIsRoundedToThirtyTwo) {
    // 4097 squared is no float; 1 added to it is.
    EXPECT_EQ(Between({1, 4097}, {0, 0}, {DistanceType::Henzel}), 8392705.0f);
    EXPECT_EQ(Between({1, 4097}, {0, 0}, {DistanceType::Euclidean}), std::sqrt(16785410.0f));
    EXPECT_EQ(Customized({1, 4097}, {0, 0}, 2, 1), 16785410.0f);
}

TEST(DistanceBetween, TheOrderOfTheVariablesDecidesTheRoundedSum) {
    EXPECT_EQ(Between({4096, 1, 1}, {0, 0, 0}, {DistanceType::Euclidean}), 4096.0f);
    EXPECT_EQ(Between({1, 1, 4096}, {0, 0, 0}, {DistanceType::Euclidean}), std::sqrt(16777218.0f));
    EXPECT_EQ(Between({16777216, 1, 1}, {0, 0, 0}, {DistanceType::Manhattan}), 16777216.0f);
    EXPECT_EQ(Between({1, 1, 16777216}, {0, 0, 0}, {DistanceType::Manhattan}), 16777218.0f);
    EXPECT_EQ(Between({16777216, 1, 1}, {0, 0, 0}, {DistanceType::Czekanowski}), 16777216.0f / 3.0f);
    EXPECT_EQ(Customized({16777216, 1, 1}, {0, 0, 0}, 1, 1), 16777216.0f);
}

TEST(DistanceBetween, TheDifferenceIsTakenInThirtyTwoBits) {
    EXPECT_EQ(Between({16777216}, {-1}, {DistanceType::Chebychev}), 16777216.0f);
    EXPECT_EQ(Between({16777216}, {-1}, {DistanceType::Henzel}), 281474976710656.0f);
}

TEST(DistanceBetween, ManhattanIsTheSumAndIsNotDivided) {
    EXPECT_EQ(Between({1, 2, 3}, {4, 0, 3}, {DistanceType::Manhattan}), 5.0f);
}

TEST(DistanceBetween, ChebychevIsTheGreatestDifference) {
    EXPECT_EQ(Between({1, 2, 3}, {-4, 0, 3}, {DistanceType::Chebychev}), 5.0f);
}

TEST(DistanceBetween, ChebychevOfIdenticalRecordsIsExactlyZero) {
    EXPECT_EQ(Between({1.5f, NaValue}, {1.5f, NaValue}, {DistanceType::Chebychev}), 0.0f);
}

TEST(DistanceBetween, CustomizedWithTwosIsEuclideanAndWithOnesManhattan) {
    const Record x{0.1f, 22.7f, -3.3f, 1000.25f};
    const Record y{5.9f, -2.1f, 8.8f, 13.0f};
    EXPECT_EQ(Customized(x, y, 2, 2), Between(x, y, {DistanceType::Euclidean}));
    EXPECT_EQ(Customized(x, y, 1, 1), Between(x, y, {DistanceType::Manhattan}));
}

TEST(DistanceBetween, CustomizedTakesAnExponentAndARootThatMakeNoMetric) {
    EXPECT_EQ(Customized({0, 0}, {1, 2}, 3, 2), 3.0f);
    EXPECT_EQ(Customized({0, 0}, {1, 2}, 3, 3),
              static_cast<float>(std::pow(9.0, 1.0 / 3))); // the exponent is a 64-bit quotient
}

TEST(DistanceBetween, CustomizedWithTheLargestTypedParameters) {
    EXPECT_EQ(Customized({1}, {0}, 999, 999), 1.0f);
    EXPECT_EQ(Customized({0.5f}, {0}, 999, 1), 0.0f);
    EXPECT_FAILURE(Failure::Overflow, Customized({2}, {0}, 999, 999));  // 2^999 is no 32-bit float
    EXPECT_FAILURE(Failure::Overflow, Customized({10}, {0}, 999, 999)); // nor 10^999 a 64-bit one
}

TEST(DistanceBetween, CustomizedWithParametersThatNoDialogLetsThrough) {
    EXPECT_EQ(Customized({1, 2}, {1, 5}, 0, 1), 2.0f); // anything to the power 0 is 1
    EXPECT_FAILURE(Failure::DivisionByZero, Customized({1}, {0}, 1, 0));
    EXPECT_EQ(Customized({2, 4}, {0, 0}, -1, 1), 0.75f);
    EXPECT_FAILURE(Failure::InvalidProcedureCall, Customized({1}, {1}, -1, 1));
    EXPECT_FAILURE(Failure::InvalidProcedureCall, Customized({1}, {1}, 1, -1));
    EXPECT_EQ(Customized({4}, {0}, 1, -2), 0.5f);
}

TEST(DistanceBetween, DfDDIsThePercentageOfDifferingVariables) {
    EXPECT_EQ(Between({1, 0, 1}, {1, 1, 1}, {DistanceType::DfDD}), static_cast<float>(1.0 / 3 * 100.0));
    EXPECT_EQ(Between({1, 0}, {1, 0}, {DistanceType::DfDD}), 0.0f);
    EXPECT_EQ(Between({0, 0}, {1, 1}, {DistanceType::DfDD}), 100.0f);
}

TEST(DistanceBetween, DfDDCountsAnyDifferenceOfAnyNumbers) {
    EXPECT_EQ(Between({2, 7.5f, NaValue, 0}, {3, 7.5f, 1, -0.0f}, {DistanceType::DfDD}), 50.0f);
}

TEST(DistanceBetween, LanceAndWilliamsHasTheCommonZerosInTheDenominator) {
    EXPECT_EQ(Between({0, 1, 1, 0}, {0, 1, 0, 1}, {DistanceType::LanceAndWilliams}), 0.5f);
    EXPECT_EQ(Between({0, 1, 1, 1}, {0, 0, 0, 0}, {DistanceType::LanceAndWilliams}),
              static_cast<float>(3.0 / 5.0));
}

TEST(DistanceBetween, LanceAndWilliamsOfTwoZeroRowsIsZero) {
    EXPECT_EQ(Between({0, 0}, {0, 0}, {DistanceType::LanceAndWilliams}), 0.0f);
}

TEST(DistanceBetween, LanceAndWilliamsOfEqualRowsWithoutACommonZeroIsAnInvalidDivision) {
    EXPECT_FAILURE(Failure::DivisionByZero, Between({1, 1}, {1, 1}, {DistanceType::LanceAndWilliams}));
    EXPECT_FAILURE(Failure::DivisionByZero, Between({5}, {5}, {DistanceType::LanceAndWilliams}));
}

TEST(DistanceBetween, JaccardIsOneMinusTheShareOfCommonOnes) {
    EXPECT_EQ(Between({1, 1, 0, 0}, {1, 0, 1, 0}, {DistanceType::Jaccard}),
              static_cast<float>(1.0 - 1.0 / 3.0));
    EXPECT_EQ(Between({1, 0}, {0, 1}, {DistanceType::Jaccard}), 1.0f);
}

TEST(DistanceBetween, JaccardOfEqualRowsWithAOneIsZero) {
    EXPECT_EQ(Between({0, 1, 0}, {0, 1, 0}, {DistanceType::Jaccard}), 0.0f);
}

TEST(DistanceBetween, JaccardOfTwoZeroRowsIsAnInvalidDivision) {
    EXPECT_FAILURE(Failure::DivisionByZero, Between({0, 0}, {0, 0}, {DistanceType::Jaccard}));
}

TEST(DistanceBetween, YulesQIsMirroredAndDividedInThirtyTwoBits) {
    const float quotient = (6.0f - 5.0f) / 11.0f; // 2 x 3 alike, 1 x 5 unlike
    EXPECT_EQ(YulesQ(2, 3, 1, 5), 1.0f - quotient);
}

TEST(DistanceBetween, YulesQWithBothProductsZeroIsTwo) {
    EXPECT_EQ(YulesQ(0, 3, 0, 5), 2.0f);
    EXPECT_EQ(YulesQ(0, 0, 0, 0), 2.0f);
    EXPECT_EQ(Between({2, 3}, {2, 4}, {DistanceType::YulesQ}), 2.0f); // counted nowhere
}

TEST(DistanceBetween, YulesQIsZeroWithoutUnlikePairsAndTwoWithoutAlikeOnes) {
    EXPECT_EQ(YulesQ(2, 3, 0, 0), 0.0f);
    EXPECT_EQ(YulesQ(0, 0, 2, 3), 2.0f);
}

TEST(DistanceBetween, YulesQOverflowsSixteenBitsInEitherProductAndInTheSum) {
    EXPECT_EQ(YulesQ(0, 0, 181, 181), 2.0f);
    EXPECT_FAILURE(Failure::Overflow, YulesQ(0, 0, 182, 181));
    EXPECT_EQ(YulesQ(181, 181, 0, 0), 0.0f);
    EXPECT_FAILURE(Failure::Overflow, YulesQ(181, 182, 0, 0));
    EXPECT_EQ(YulesQ(128, 128, 1, 16383), 1.0f - 1.0f / 32767.0f);
    EXPECT_FAILURE(Failure::Overflow, YulesQ(128, 128, 1, 16384));
}

TEST(DistanceBetween, YulesQCountsInSixteenBits) {
    EXPECT_EQ(YulesQ(32767, 0, 0, 0), 2.0f);
    EXPECT_FAILURE(Failure::Overflow, YulesQ(32768, 0, 0, 0));
    EXPECT_FAILURE(Failure::Overflow, YulesQ(0, 32768, 0, 0));
    EXPECT_FAILURE(Failure::Overflow, YulesQ(0, 0, 32768, 0));
    EXPECT_FAILURE(Failure::Overflow, YulesQ(0, 0, 0, 32768));
}

TEST(DistanceBetween, AnotherMeasureThanOneToTenGivesZero) {
    for (const int type : {-1, 0, 11, 32767}) EXPECT_EQ(Between({1}, {5}, Coded(type)), 0.0f);
}

TEST(DistanceBetween, MissingValuesAreOrdinaryNumbersFromTheThirdMeasureOn) {
    EXPECT_EQ(Between({NaValue, 3}, {0, 3}, {DistanceType::Euclidean}), 9999999.0f);
    EXPECT_EQ(Between({NaValue}, {0}, {DistanceType::Manhattan}), 9999999.0f);
    EXPECT_EQ(Between({NaValue}, {0}, {DistanceType::Chebychev}), 9999999.0f);
    EXPECT_EQ(Customized({NaValue}, {0}, 1, 1), 9999999.0f);
    EXPECT_EQ(Between({NaValue}, {NaValue}, {DistanceType::DfDD}), 0.0f);
    EXPECT_EQ(Between({NaValue, 0}, {1, 0}, {DistanceType::LanceAndWilliams}), static_cast<float>(1.0 / 3.0));
    EXPECT_EQ(Between({NaValue, 1}, {1, 1}, {DistanceType::Jaccard}), 0.5f);
}

TEST(DistanceBetween, ADifferenceOutsideTheRangeOverflows) {
    for (const int type : {1, 2, 3, 4, 5})
        EXPECT_FAILURE(Failure::Overflow, Between({Greatest}, {-Greatest}, Coded(type))) << type;
    EXPECT_FAILURE(Failure::Overflow, Customized({Greatest}, {-Greatest}, 1, 1));
}

TEST(DistanceBetween, ASumOutsideTheRangeOverflows) {
    for (const int type : {1, 3})
        EXPECT_FAILURE(Failure::Overflow, Between({1e20f}, {0}, Coded(type))) << type;
    for (const int type : {2, 4})
        EXPECT_FAILURE(Failure::Overflow, Between({Greatest, Greatest}, {0, 0}, Coded(type))) << type;
    EXPECT_EQ(Between({Greatest, Greatest}, {0, 0}, {DistanceType::Chebychev}), Greatest);
}

TEST(DistanceBetween, TheCountingMeasuresTakeNoDifference) {
    for (const int type : {7, 8, 9}) EXPECT_NO_THROW(Between({Greatest}, {-Greatest}, Coded(type))) << type;
    EXPECT_EQ(Between({Greatest}, {-Greatest}, {DistanceType::YulesQ}), 2.0f);
}

TEST(DistanceBetween, WithoutVariablesTheFirstFiveMeasuresAreZeroAndTheQuotientsFail) {
    for (const int type : {1, 2, 3, 4, 5}) EXPECT_EQ(Between({}, {}, Coded(type)), 0.0f) << type;
    EXPECT_EQ(Customized({}, {}, 3, 2), 0.0f);
    for (const int type : {7, 8, 9})
        EXPECT_FAILURE(Failure::DivisionByZero, Between({}, {}, Coded(type))) << type;
    EXPECT_EQ(Between({}, {}, {DistanceType::YulesQ}), 2.0f);
}

} // namespace
} // namespace dorvan
