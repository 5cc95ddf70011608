#include "sheet/expression.h"

#include "numbers/runtime_failure.h"

#include <gtest/gtest.h>

#include <string>

namespace dorvan::test {
namespace {

double Value(std::string_view text) { return EvaluateCellText(text).Value; }

TEST(EvaluateCellText, ReadsAPlainNumber) {
    EXPECT_EQ(Value("12.5"), 12.5);
    EXPECT_EQ(Value("  7"), 7.0);
    EXPECT_EQ(Value("12stones"), 12.0);
}

TEST(EvaluateCellText, GoesFromLeftToRightWithoutPrecedence) {
    EXPECT_EQ(Value("2*3+1"), 7.0);
    EXPECT_EQ(Value("1+2*3"), 9.0);
    EXPECT_EQ(Value("10-4-3"), 3.0);
    EXPECT_EQ(Value("8/4/2"), 1.0);
    EXPECT_EQ(Value("1.5+.25"), 1.75);
}

TEST(EvaluateCellText, ASignAtTheStartBelongsToTheFirstNumber) {
    EXPECT_EQ(Value("-5+3"), -2.0);
    EXPECT_EQ(Value("+5-3"), 2.0);
    EXPECT_EQ(Value("-5"), -5.0);
    EXPECT_EQ(Value("-"), 0.0);
}

TEST(EvaluateCellText, ASignBehindAnOperatorCountsTwice) {
    EXPECT_EQ(Value("5*-3"), -18.0); // 5 x -3, and then - 3
    EXPECT_EQ(Value("5+-3"), -1.0);
    EXPECT_EQ(Value("--5"), -5.0);
}

TEST(EvaluateCellText, AnOperatorAtTheStartWorksOnZero) {
    EXPECT_EQ(Value("*5"), 0.0);
    EXPECT_EQ(Value("/5"), 0.0);
    EXPECT_EQ(Value("*5+2"), 2.0);
}

TEST(EvaluateCellText, AMissingNumberIsZero) {
    EXPECT_EQ(Value("5+"), 5.0);
    EXPECT_EQ(Value("5*"), 0.0);
}

TEST(EvaluateCellText, StopsAtADivisionByZeroWithWhatItHas) {
    const auto first = EvaluateCellText("10/0");
    EXPECT_EQ(first.Value, 0.0);
    EXPECT_TRUE(first.DividedByZero);
    const auto later = EvaluateCellText("5+1/0+100");
    EXPECT_EQ(later.Value, 6.0);
    EXPECT_TRUE(later.DividedByZero);
    EXPECT_FALSE(EvaluateCellText("0/10").DividedByZero);
    EXPECT_TRUE(EvaluateCellText("7/").DividedByZero);
}

TEST(EvaluateCellText, TheSignOfAnExponentIsAnOperator) {
    EXPECT_EQ(Value("1e-5"), 1e-5 - 5);
    EXPECT_EQ(Value("1e+2"), 1e2 + 2);
    EXPECT_EQ(Value("1e2"), 100.0);
}

TEST(EvaluateCellText, ATextWithoutANumberIsZero) {
    EXPECT_EQ(Value(""), 0.0);
    EXPECT_EQ(Value("stone"), 0.0);
    EXPECT_EQ(Value("N/A"), 0.0);
    EXPECT_EQ(Value("\xC5\xBC\xC3\xB3\xC5\x82w"), 0.0);
}

TEST(EvaluateCellText, ComputesInDoublePrecision) {
    EXPECT_EQ(Value("0.1+0.2"), 0.1 + 0.2);
    EXPECT_EQ(Value("1/3"), 1.0 / 3.0);
}

TEST(EvaluateCellText, OverflowsBeyondDoubles) {
    for (const auto* text : {"1e308*10", "1e308+1e308", "-1e308-1e308", "1e308/0.01", "1e400"}) try {
            EvaluateCellText(text);
            ADD_FAILURE() << text;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.Kind(), Failure::Overflow) << text;
        }
}

} // namespace
} // namespace dorvan::test
