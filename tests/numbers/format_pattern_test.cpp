#include "numbers/number_text.h"
#include "numbers/slow_format_pattern.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace dorvan {
namespace {

using test::SlowFormat;

std::string Format(double value, std::string_view pattern) { return FormatPattern(value, pattern, '.'); }

TEST(FormatPattern, HalvesGoAwayFromZero) {
    EXPECT_EQ(Format(0.5, "0"), "1");
    EXPECT_EQ(Format(1.5, "0"), "2");
    EXPECT_EQ(Format(2.5, "0"), "3");
    EXPECT_EQ(Format(-0.5, "0"), "-1");
    EXPECT_EQ(Format(-2.5, "0"), "-3");
    EXPECT_EQ(Format(0.0625, "0.000"), "0.063");
    EXPECT_EQ(Format(-0.1875, "0.000"), "-0.188");
    EXPECT_EQ(Format(0.125, "#0.00"), "0.13");
}

TEST(FormatPattern, ExactBinaryValueDecidesWhatIsAHalf) {
    EXPECT_EQ(Format(0.0005, "0.000"), "0.001");  // 0.00050000000000000001...
    EXPECT_EQ(Format(1.0005, "0.000"), "1.000");  // 1.00049999999999994...
    EXPECT_EQ(Format(1.005, "0.00"), "1.00");     // 1.00499999999999989...
    EXPECT_EQ(Format(0.0005F, "0.000"), "0.001"); // 0.00050000002374872565...
    EXPECT_EQ(Format(0.0015F, "0.000"), "0.002"); // 0.00150000001303851604...
    EXPECT_EQ(Format(0.0025F, "0.000"), "0.002"); // 0.00249999994412064552...
    EXPECT_EQ(Format(std::nextafter(0.5, 0), "0"), "0");
    EXPECT_EQ(Format(std::nextafter(0.0625, 0), "0.000"), "0.062");
    EXPECT_EQ(Format(std::nextafter(0.0625, 1), "0.000"), "0.063");
}

TEST(FormatPattern, ValueThatRoundsToZeroHasNoMinusSign) {
    EXPECT_EQ(Format(-0.0004, "0.000"), "0.000");
    EXPECT_EQ(Format(-0.0, "0.000"), "0.000");
    EXPECT_EQ(Format(-0.4, "###0"), "0");
    EXPECT_EQ(Format(-0.4, "#"), "");
    EXPECT_EQ(Format(-5e-324, "#0.000"), "0.000");
    EXPECT_EQ(Format(-0.0006, "0.000"), "-0.001");
}

TEST(FormatPattern, CarryRunsThroughAllDigits) {
    EXPECT_EQ(Format(9.9996, "###0.000"), "10.000");
    EXPECT_EQ(Format(-999.9999, "0.00"), "-1000.00");
    EXPECT_EQ(Format(0.9999999, "0.000"), "1.000");
    EXPECT_EQ(Format(99.5, "0"), "100");
}

TEST(FormatPattern, PatternsOfTheDocuments) {
    EXPECT_EQ(Format(0.0, "###0"), "0");
    EXPECT_EQ(Format(7.0, "###0"), "7");
    EXPECT_EQ(Format(32767.0, "###0"), "32767");
    EXPECT_EQ(Format(0.0, "#0.000"), "0.000");
    EXPECT_EQ(Format(-9999999.0, "#0.000"), "-9999999.000");
    EXPECT_EQ(Format(12.3456, "###0.000"), "12.346");
    EXPECT_EQ(Format(3.14159265, "###0.00000"), "3.14159");
    EXPECT_EQ(Format(3.14159265, "###0.0"), "3.1");
    EXPECT_EQ(Format(0.05, "####0.00"), "0.05");
    EXPECT_EQ(Format(123456.0, "#####0"), "123456");
    EXPECT_EQ(Format(5.0, "0.0"), "5.0");
}

TEST(FormatPattern, NumberSignInTheDecimalsIsShownWhenNeeded) {
    EXPECT_EQ(Format(1.0, "#0.00#"), "1.00");
    EXPECT_EQ(Format(1.5, "#0.00#"), "1.50");
    EXPECT_EQ(Format(1.25, "#0.00#"), "1.25");
    EXPECT_EQ(Format(1.125, "#0.00#"), "1.125");
    EXPECT_EQ(Format(1.1249, "#0.00#"), "1.125");
    EXPECT_EQ(Format(1.1999, "#0.00#"), "1.20");
    EXPECT_EQ(Format(0.001, "#0.00#"), "0.001");
    EXPECT_EQ(Format(0.0001, "#0.00#"), "0.00");
    EXPECT_EQ(Format(100.0, "#0.###"), "100.");
    EXPECT_EQ(Format(1.5, "0.#0#"), "1.50");
}

TEST(FormatPattern, NumberSignBeforeTheSeparatorIsShownWhenNeeded) {
    EXPECT_EQ(Format(0.25, "#.00"), ".25");
    EXPECT_EQ(Format(-0.25, "#.00"), "-.25");
    EXPECT_EQ(Format(3.25, "#.00"), "3.25");
    EXPECT_EQ(Format(0.0, "#"), "");
    EXPECT_EQ(Format(10.0, "#"), "10");
    EXPECT_EQ(Format(7.0, "0#"), "07");
}

TEST(FormatPattern, ZerosPadAndNeverCut) {
    EXPECT_EQ(Format(7.0, "000"), "007");
    EXPECT_EQ(Format(-7.25, "000.000"), "-007.250");
    EXPECT_EQ(Format(123456.0, "000"), "123456");
    EXPECT_EQ(Format(1234567.0, "###0.0"), "1234567.0");
    EXPECT_EQ(Format(1.0, "0000000000000000000000000"), "0000000000000000000000001");
}

TEST(FormatPattern, SeparatorIsTheOneGiven) {
    EXPECT_EQ(FormatPattern(1.5, "#0.000", ','), "1,500");
    EXPECT_EQ(FormatPattern(-1234.5, "###0.00", ','), "-1234,50");
    EXPECT_EQ(FormatPattern(3.0, "#0.", ','), "3,");
    EXPECT_EQ(FormatPattern(3.0, "#0", ','), "3");
    EXPECT_EQ(FormatPattern(1e30, "0.0", ','), "1000000000000000019884624838656,0");
}

TEST(FormatPattern, HugeAndTinyValuesHaveAllTheirDigits) {
    EXPECT_EQ(Format(1e30, "0"), "1000000000000000019884624838656");
    EXPECT_EQ(Format(-1e22, "#0.000"), "-10000000000000000000000.000");
    EXPECT_EQ(Format(9007199254740993.0, "0.000"), "9007199254740992.000");
    EXPECT_EQ(Format(18446744073709551616.0, "0"), "18446744073709551616");
    EXPECT_EQ(Format(18446744073709549568.0, "0"), "18446744073709549568");
    EXPECT_EQ(Format(18446744073709549568.0, "0.0"), "18446744073709549568.0");
    EXPECT_EQ(Format(std::numeric_limits<double>::max(), "0").size(), 309U);
    EXPECT_EQ(Format(0x1p-20, "0.0000000000000000000"),
              "0.0000009536743164063"); // 19 decimals, the last a tie
    EXPECT_EQ(Format(5e-324, "0.000"), "0.000");
}

TEST(FormatPattern, AnyNumberOfDecimals) {
    const std::string zeros(1200, '0');
    EXPECT_EQ(Format(0.5, "0." + zeros), "0.5" + zeros.substr(1));
    EXPECT_EQ(Format(5e-324, "0." + zeros), SlowFormat(5e-324, 1200));
    EXPECT_EQ(Format(0.1, "0." + zeros.substr(0, 60)), SlowFormat(0.1, 60));
    EXPECT_EQ(Format(5e-324, "0." + zeros.substr(0, 1074)), SlowFormat(5e-324, 1074));
    EXPECT_EQ(Format(5e-324, "0." + zeros.substr(0, 1073)), SlowFormat(5e-324, 1073));
}

TEST(FormatPattern, WhatIsNoFiniteNumberFails) {
    EXPECT_FAILURE(Failure::Overflow, Format(std::numeric_limits<double>::infinity(), "0"));
    EXPECT_FAILURE(Failure::Overflow, Format(-std::numeric_limits<double>::infinity(), "0"));
    EXPECT_FAILURE(Failure::Overflow, Format(std::numeric_limits<double>::quiet_NaN(), "0"));
}

TEST(FormatPattern, OtherSignsInThePatternFail) {
    EXPECT_FAILURE(Failure::InvalidProcedureCall, Format(1.0, "#,##0.00"));
    EXPECT_FAILURE(Failure::InvalidProcedureCall, Format(1.0, "0.0.0"));
    EXPECT_FAILURE(Failure::InvalidProcedureCall, Format(1.0, "0.0E+00"));
}

// The fast way against the plain twin.

std::string PatternWith(std::size_t decimals) {
    return decimals == 0 ? "0" : "0." + std::string(decimals, '0');
}

void ExpectLikeTheTwin(double value, std::size_t decimals) {
    ASSERT_EQ(Format(value, PatternWith(decimals)), SlowFormat(value, decimals))
        << std::hexfloat << value << " with " << decimals << " decimals";
}

TEST(FormatPattern, AgreesWithThePlainTwinOnFloatsOfAnySize) {
    std::mt19937 random(1);
    for (int round = 0; round < 20000; ++round) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isfinite(value)) ExpectLikeTheTwin(value, round % 5);
    }
}

TEST(FormatPattern, AgreesWithThePlainTwinOnDoublesOfAnySize) {
    std::mt19937_64 random(2);
    for (int round = 0; round < 3000; ++round) {
        const auto value = std::bit_cast<double>(random());
        if (std::isfinite(value)) ExpectLikeTheTwin(value, random() % 25);
    }
}

TEST(FormatPattern, AgreesWithThePlainTwinWhereTheFastWayEnds) {
    std::mt19937_64 random(3);
    for (int round = 0; round < 20000; ++round) {
        const int exponent = static_cast<int>(random() % 140) - 75;
        const double value = std::ldexp(static_cast<double>(random() >> 11), exponent - 53);
        ExpectLikeTheTwin(value, random() % 21);
    }
}

TEST(FormatPattern, AgreesWithThePlainTwinOnTiesAndTheirNeighbours) {
    std::mt19937_64 random(4);
    for (int round = 0; round < 20000; ++round) {
        // An odd multiple of 2^-(d + 1) ends in a 5 at the decimal d + 1: a tie with d decimals.
        const std::size_t decimals = random() % 8;
        const double odd = static_cast<double>((random() >> (34 + random() % 25)) * 2 + 1);
        const double tie = std::ldexp(odd, -static_cast<int>(decimals) - 1);
        ExpectLikeTheTwin(tie, decimals);
        ExpectLikeTheTwin(-tie, decimals);
        ExpectLikeTheTwin(std::nextafter(tie, 0), decimals);
        ExpectLikeTheTwin(std::nextafter(tie, 2 * tie), decimals);
    }
}

TEST(FormatPattern, AgreesWithThePlainTwinOnValuesNearDecimalHalves) {
    std::mt19937_64 random(5);
    for (int round = 0; round < 20000; ++round) {
        const double value = static_cast<double>(random() % 20000000) / 2000.0;
        ExpectLikeTheTwin(value, 3);
        ExpectLikeTheTwin(static_cast<float>(value), 3);
    }
}

TEST(FormatPattern, AgreesWithThePlainTwinOnSubnormalNumbers) {
    std::mt19937_64 random(6);
    for (int round = 0; round < 100; ++round) {
        const auto value = std::bit_cast<double>(random() >> 12 >> random() % 52);
        ExpectLikeTheTwin(value, 3);
        ExpectLikeTheTwin(value, 18);
        ExpectLikeTheTwin(value, 320);
    }
}

} // namespace
} // namespace dorvan
