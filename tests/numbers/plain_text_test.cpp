#include "numbers/number_text.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

namespace dorvan {
namespace {

std::string Plain(float value) { return PlainText(value, '.'); }

TEST(PlainText, HasAtMostSevenSignificantDigits) {
    EXPECT_EQ(Plain(3.14159274F), "3.141593");
    EXPECT_EQ(Plain(123456.789F), "123456.8");
    EXPECT_EQ(Plain(0.1F), "0.1");
    EXPECT_EQ(Plain(1.0F / 3.0F), "0.3333333");
    EXPECT_EQ(Plain(-2.0F / 3.0F), "-0.6666667");
    EXPECT_EQ(Plain(0.00123456789F), "0.001234568");
}

TEST(PlainText, HasNoTrailingZeros) {
    EXPECT_EQ(Plain(0.0F), "0");
    EXPECT_EQ(Plain(1.0F), "1");
    EXPECT_EQ(Plain(100.0F), "100");
    EXPECT_EQ(Plain(-2.5F), "-2.5");
    EXPECT_EQ(Plain(1000000.0F), "1000000");
    EXPECT_EQ(Plain(-9999999.0F), "-9999999");
    EXPECT_EQ(Plain(0.99999999F), "1");
    EXPECT_EQ(Plain(0.09999999F), "0.09999999");
    EXPECT_EQ(Plain(0.099999994F), "0.09999999");
}

TEST(PlainText, ZeroHasNoSign) { EXPECT_EQ(Plain(-0.0F), "0"); }

TEST(PlainText, ExponentAboveSixDigits) {
    EXPECT_EQ(Plain(9999999.0F), "9999999");
    EXPECT_EQ(Plain(1e7F), "1E+07");
    EXPECT_EQ(Plain(1e10F), "1E+10");
    EXPECT_EQ(Plain(16777216.0F), "1.677722E+07");
    EXPECT_EQ(Plain(-1.5e20F), "-1.5E+20");
    EXPECT_EQ(Plain(std::numeric_limits<float>::max()), "3.402823E+38");
}

TEST(PlainText, ExponentBelowMinusFour) {
    EXPECT_EQ(Plain(0.0001F), "0.0001"); // a little below 0.0001; its rounded value decides
    EXPECT_EQ(Plain(0.00012345F), "0.00012345");
    EXPECT_EQ(Plain(0.00009999F), "9.999E-05");
    EXPECT_EQ(Plain(1.5e-5F), "1.5E-05");
    EXPECT_EQ(Plain(1.2345678e-5F), "1.234568E-05");
    EXPECT_EQ(Plain(1e-10F), "1E-10");
    EXPECT_EQ(Plain(std::numeric_limits<float>::denorm_min()), "1.401298E-45");
}

TEST(PlainText, TiesGoToEven) {
    EXPECT_EQ(Plain(1000000.5F), "1000000");
    EXPECT_EQ(Plain(1000001.5F), "1000002");
    EXPECT_EQ(Plain(100000.25F), "100000.2");
    EXPECT_EQ(Plain(100000.75F), "100000.8");
}

TEST(PlainText, SeparatorIsTheOneGiven) {
    EXPECT_EQ(PlainText(2.5F, ','), "2,5");
    EXPECT_EQ(PlainText(1.5e-5F, ','), "1,5E-05");
    EXPECT_EQ(PlainText(1e7F, ','), "1E+07");
}

TEST(PlainText, WhatIsNoFiniteNumberFails) {
    EXPECT_FAILURE(Failure::Overflow, Plain(std::numeric_limits<float>::infinity()));
    EXPECT_FAILURE(Failure::Overflow, Plain(-std::numeric_limits<float>::infinity()));
    EXPECT_FAILURE(Failure::Overflow, Plain(std::numeric_limits<float>::quiet_NaN()));
}

// The plain twin: the C library's formatting, which rounds the exact value.
std::string SlowPlainText(float value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.7G", static_cast<double>(value));
    return text;
}

void ExpectLikeTheTwin(float value) {
    ASSERT_EQ(Plain(value), SlowPlainText(value)) << std::hexfloat << value;
}

TEST(PlainText, AgreesWithThePlainTwinOnFloatsOfAnySize) {
    std::mt19937 random(11);
    for (int round = 0; round < 200000; ++round) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isfinite(value)) ExpectLikeTheTwin(value);
    }
}

TEST(PlainText, AgreesWithThePlainTwinBetweenTheExponents) {
    std::mt19937 random(12);
    std::uniform_real_distribution<double> exponent(-5.0, 8.0);
    for (int round = 0; round < 200000; ++round)
        ExpectLikeTheTwin(static_cast<float>(std::pow(10.0, exponent(random))));
}

TEST(PlainText, AgreesWithThePlainTwinAroundThePowersOfTen) {
    for (int exponent = -45; exponent <= 38; ++exponent) {
        const auto power = static_cast<float>(std::pow(10.0, exponent));
        float below = power;
        float above = power;
        for (int step = 0; step < 40; ++step) {
            if (below > 0) ExpectLikeTheTwin(below);
            ExpectLikeTheTwin(-above);
            below = std::nextafter(below, 0.0F);
            above = std::nextafter(above, 1e38F);
        }
    }
}

TEST(PlainText, AgreesWithThePlainTwinOnTies) {
    for (std::uint32_t half = 2000001; half < 2200000; half += 2)
        ExpectLikeTheTwin(static_cast<float>(half) / 2); // 1000000.5, 1000001.5, ...
    for (std::uint32_t quarter = 400001; quarter < 500000; quarter += 2)
        ExpectLikeTheTwin(static_cast<float>(quarter) / 4);
}

TEST(DecimalSeparatorIn, PointThenCommaThenPoint) {
    EXPECT_EQ(DecimalSeparatorIn("1.234"), '.');
    EXPECT_EQ(DecimalSeparatorIn("1,234"), ',');
    EXPECT_EQ(DecimalSeparatorIn("1,234.5"), '.');
    EXPECT_EQ(DecimalSeparatorIn("1\xD9\xAB"
                                 "234"),
              '.');
    EXPECT_EQ(DecimalSeparatorIn(""), '.');
}

// The locales of the machine differ; the one of C is everywhere.
class FindDecimalSeparatorTest : public ::testing::Test {
protected:
    void TearDown() override { std::setlocale(LC_NUMERIC, "C"); }
};

TEST_F(FindDecimalSeparatorTest, PointInTheLocaleOfC) {
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(FindDecimalSeparator(), '.');
}

TEST_F(FindDecimalSeparatorTest, CommaInACommaLocale) {
    const char* found = nullptr;
    for (const char* name : {"pl_PL.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "ru_RU.UTF-8"})
        if (found == nullptr) found = std::setlocale(LC_NUMERIC, name);
    if (found == nullptr) GTEST_SKIP() << "no comma locale on this machine";
    EXPECT_EQ(FindDecimalSeparator(), ',');
    EXPECT_EQ(FormatPattern(1.5, "0.0", '.'), "1.5");
    EXPECT_EQ(FormatPattern(1e30, "0.0", '.'), "1000000000000000019884624838656.0");
    EXPECT_EQ(PlainText(1.5e-5F, '.'), "1.5E-05");
    EXPECT_EQ(StrictFloat("1.5", '.'), 1.5F);
}

} // namespace
} // namespace dorvan
