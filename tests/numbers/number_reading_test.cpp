#include "numbers/number_text.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace dorvan {
namespace {

TEST(LeadingNumber, TakesTheLongestLeadingPart) {
    EXPECT_EQ(LeadingNumber("12abc"), 12);
    EXPECT_EQ(LeadingNumber("12.5.7"), 12.5);
    EXPECT_EQ(LeadingNumber("1,5"), 1);
    EXPECT_EQ(LeadingNumber("3+4"), 3);
    EXPECT_EQ(LeadingNumber("7 8"), 7);
    EXPECT_EQ(LeadingNumber("5."), 5);
    EXPECT_EQ(LeadingNumber(".5"), 0.5);
    EXPECT_EQ(LeadingNumber("0x10"), 0);
}

TEST(LeadingNumber, TextWithoutANumberIsZero) {
    for (const char* text : {"", " ", "abc", ".", "-", "+", "-.", "e5", ".e5", "--5", "+-5", "- 5", "nan",
                             "inf", "infinity", "N/A", "*3"})
        EXPECT_EQ(LeadingNumber(text), 0) << text;
}

TEST(LeadingNumber, BlanksAndASignMayLead) {
    EXPECT_EQ(LeadingNumber("  42"), 42);
    EXPECT_EQ(LeadingNumber("\t42"), 42);
    EXPECT_EQ(LeadingNumber("-1.25"), -1.25);
    EXPECT_EQ(LeadingNumber("  +1.25"), 1.25);
}

TEST(LeadingNumber, ExponentNeedsADigit) {
    EXPECT_EQ(LeadingNumber("1e3"), 1000);
    EXPECT_EQ(LeadingNumber("1E3"), 1000);
    EXPECT_EQ(LeadingNumber("1e+3x"), 1000);
    EXPECT_EQ(LeadingNumber("25e-1"), 2.5);
    EXPECT_EQ(LeadingNumber("2.e1"), 20);
    EXPECT_EQ(LeadingNumber("1e"), 1);
    EXPECT_EQ(LeadingNumber("1e+"), 1);
    EXPECT_EQ(LeadingNumber("1e-x"), 1);
    EXPECT_EQ(LeadingNumber("1e2.5"), 100);
}

TEST(LeadingNumber, OverflowsBeyondTheRangeAndSinksToZero) {
    EXPECT_EQ(LeadingNumber("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_FAILURE(Failure::Overflow, LeadingNumber("1.8e308"));
    EXPECT_FAILURE(Failure::Overflow, LeadingNumber("-1e999x"));
    EXPECT_FAILURE(Failure::Overflow, LeadingNumber("1e99999999999999999999999"));
    EXPECT_FAILURE(Failure::Overflow, LeadingNumber("61e9223372036854775807"));
    EXPECT_FAILURE(Failure::Overflow, LeadingNumber(std::string(400, '9')));
    EXPECT_EQ(LeadingNumber("5e-324"), 5e-324);
    EXPECT_EQ(LeadingNumber("1e-999"), 0);
    EXPECT_EQ(LeadingNumber("1e-99999999999999999999999"), 0);
    EXPECT_EQ(LeadingNumber("0.001e-9223372036854775808"), 0);
    EXPECT_EQ(LeadingNumber("0e99999999999999999999999"), 0);
    EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + "1e401"), 1);
    EXPECT_EQ(LeadingNumber("1" + std::string(400, '0') + "e-400"), 1);
}

TEST(StrictDouble, ReadsOneWholeNumber) {
    EXPECT_EQ(StrictDouble("12", '.'), 12);
    EXPECT_EQ(StrictDouble(" -12.5 ", '.'), -12.5);
    EXPECT_EQ(StrictDouble("+12,5", ','), 12.5);
    EXPECT_EQ(StrictDouble("-,5", ','), -0.5);
    EXPECT_EQ(StrictDouble("5,", ','), 5);
    EXPECT_EQ(StrictDouble("1,5E-05", ','), 1.5e-5);
    EXPECT_EQ(StrictDouble("1.5e+2", '.'), 150);
    EXPECT_EQ(StrictDouble("0.1", '.'), 0.1);
}

TEST(StrictDouble, AnythingElseIsATypeMismatch) {
    for (const char* text :
         {"",      " ",     "\t",  "abc",     "12abc",  "1 2",       "1.5.5",       ".",
          "-",     "+",     "- 5", "--5",     "+-5",    "1e",        "1e+",         "e5",
          "1e2.5", "nan",   "NAN", "-nan",    "nan(1)", "inf",       "-inf",        "Infinity",
          "0x10",  "0x1p3", "1,5", "1,234.5", "N/A",    "1.5 x",     "1.5\n",       "1.5f",
          "1d5",   "$1",    "(1)", "1%",      "&H10",   "1\xC2\xA0", "\xEF\xBC\x91"})
        EXPECT_FAILURE(Failure::TypeMismatch, StrictDouble(text, '.')) << text;
    EXPECT_FAILURE(Failure::TypeMismatch, StrictDouble("1.5", ','));
    EXPECT_FAILURE(Failure::TypeMismatch, StrictDouble("1,5,5", ','));
    EXPECT_FAILURE(Failure::TypeMismatch, StrictDouble(std::string_view("1\0", 2), '.'));
}

TEST(StrictDouble, OverflowsBeyondTheRange) {
    EXPECT_EQ(StrictDouble("-1.7976931348623157e308", '.'), std::numeric_limits<double>::lowest());
    EXPECT_FAILURE(Failure::Overflow, StrictDouble("1e309", '.'));
    EXPECT_FAILURE(Failure::Overflow, StrictDouble("-1e309", '.'));
    EXPECT_EQ(StrictDouble("1e-400", '.'), 0);
    EXPECT_EQ(StrictDouble("4.9e-324", '.'), 5e-324);
}

TEST(StrictFloat, RoundsOnceToTheNearestFloat) {
    EXPECT_EQ(StrictFloat("0.1", '.'), 0.1F);
    EXPECT_EQ(StrictFloat("16777217", '.'), 16777216.0F);
    EXPECT_EQ(StrictFloat("16777219", '.'), 16777220.0F);
    // A hair above the middle of two floats, and a double of that would lie in the middle itself.
    EXPECT_EQ(StrictFloat("16777217.000000000001", '.'), 16777218.0F);
    EXPECT_EQ(StrictFloat("1.000000059604644775390625", '.'), 1.0F);
    EXPECT_EQ(StrictFloat("1.0000000596046447753906250000000001", '.'), 1.0F + 0x1p-23F);
}

TEST(StrictFloat, OverflowsBeyondTheRange) {
    EXPECT_EQ(StrictFloat("3.4028235e38", '.'), std::numeric_limits<float>::max());
    EXPECT_EQ(StrictFloat("-3.4028235677973365e38", '.'), std::numeric_limits<float>::lowest());
    EXPECT_FAILURE(Failure::Overflow, StrictFloat("3.4028235677973367e38", '.')); // the tie goes to infinity
    EXPECT_FAILURE(Failure::Overflow, StrictFloat("-1E+39", '.'));
    EXPECT_FAILURE(Failure::Overflow, StrictFloat("1" + std::string(39, '0'), '.'));
}

TEST(StrictFloat, TooSmallIsSubnormalOrZero) {
    EXPECT_EQ(StrictFloat("1e-40", '.'), 1e-40F);
    EXPECT_EQ(StrictFloat("1.4e-45", '.'), std::numeric_limits<float>::denorm_min());
    EXPECT_EQ(StrictFloat("1e-46", '.'), 0.0F);
    EXPECT_EQ(StrictFloat("1e-400", '.'), 0.0F);
    const float negative = StrictFloat("-1e-400", '.');
    EXPECT_EQ(negative, 0.0F);
    EXPECT_TRUE(std::signbit(negative));
    EXPECT_EQ(StrictFloat("0." + std::string(60, '0') + "1", '.'), 0.0F);
}

TEST(StrictFloat, AnythingElseIsATypeMismatch) {
    for (const char* text : {"", " ", "N/A", "nan", "inf", "0x1", "1e", "1,5", "abc"})
        EXPECT_FAILURE(Failure::TypeMismatch, StrictFloat(text, '.')) << text;
}

TEST(StrictFloat, AgreesWithTheLibraryOnRandomTexts) {
    std::mt19937 random(21);
    char text[64];
    for (int round = 0; round < 200000; ++round) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(value)) continue;
        std::snprintf(text, sizeof text, round % 2 == 0 ? "%.7G" : "%.3f", static_cast<double>(value));
        const float expected = std::strtof(text, nullptr);
        ASSERT_EQ(StrictFloat(text, '.'), expected) << text;
        ASSERT_EQ(ParseSheetNumber(text, ','), expected) << text;
    }
}

TEST(StrictInt16, RoundsTiesToEven) {
    EXPECT_EQ(StrictInt16("12", '.'), 12);
    EXPECT_EQ(StrictInt16(" 2.5 ", '.'), 2);
    EXPECT_EQ(StrictInt16("3,5", ','), 4);
    EXPECT_EQ(StrictInt16("-1.5", '.'), -2);
    EXPECT_EQ(StrictInt16("1e3", '.'), 1000);
    EXPECT_EQ(StrictInt16("32767.4", '.'), 32767);
    EXPECT_EQ(StrictInt16("-32768", '.'), -32768);
}

TEST(StrictInt16, FailsOutsideTheRangeAndOnOtherTexts) {
    EXPECT_FAILURE(Failure::Overflow, StrictInt16("32767.5", '.'));
    EXPECT_FAILURE(Failure::Overflow, StrictInt16("32768", '.'));
    EXPECT_FAILURE(Failure::Overflow, StrictInt16("-32769", '.'));
    EXPECT_FAILURE(Failure::Overflow, StrictInt16("1e999", '.'));
    EXPECT_FAILURE(Failure::TypeMismatch, StrictInt16("", '.'));
    EXPECT_FAILURE(Failure::TypeMismatch, StrictInt16("12x", '.'));
}

TEST(ParseSheetNumber, ReadsEitherSeparatorUnderEitherLocale) {
    EXPECT_EQ(ParseSheetNumber("1.5", '.'), 1.5F);
    EXPECT_EQ(ParseSheetNumber("1,5", '.'), 1.5F);
    EXPECT_EQ(ParseSheetNumber("1.5", ','), 1.5F);
    EXPECT_EQ(ParseSheetNumber("1,5", ','), 1.5F);
    EXPECT_EQ(ParseSheetNumber(" -12 ", ','), -12.0F);
    EXPECT_EQ(ParseSheetNumber("1,5E-05", '.'), 1.5e-5F);
    EXPECT_EQ(ParseSheetNumber("-9999999,000", '.'), -9999999.0F);
}

TEST(ParseSheetNumber, TextWithBothSeparatorsStaysAsItIs) {
    EXPECT_FAILURE(Failure::TypeMismatch, ParseSheetNumber("1,234.5", '.'));
    EXPECT_FAILURE(Failure::TypeMismatch, ParseSheetNumber("1.234,5", '.'));
    EXPECT_FAILURE(Failure::TypeMismatch, ParseSheetNumber("1,234.5", ','));
    EXPECT_FAILURE(Failure::TypeMismatch, ParseSheetNumber("1.234,5", ','));
}

TEST(ParseSheetNumber, AllOccurrencesOfTheOtherSeparatorAreReplaced) {
    EXPECT_FAILURE(Failure::TypeMismatch, ParseSheetNumber("1,234,5", '.'));
    EXPECT_FAILURE(Failure::TypeMismatch, ParseSheetNumber("1.234.5", ','));
}

TEST(ParseSheetNumber, FailsLikeTheStrictConversion) {
    EXPECT_FAILURE(Failure::TypeMismatch, ParseSheetNumber("", '.'));
    EXPECT_FAILURE(Failure::TypeMismatch, ParseSheetNumber("N/A", ','));
    EXPECT_FAILURE(Failure::TypeMismatch, ParseSheetNumber("nan", '.'));
    EXPECT_FAILURE(Failure::Overflow, ParseSheetNumber("1e39", ','));
}

TEST(ParseSheetNumber, ReadsBackThePlainTextOfEachFloatToSevenDigits) {
    std::mt19937 random(22);
    for (int round = 0; round < 100000; ++round) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(value) || value >= 3.4028230e38F || value <= -3.4028230e38F) continue;
        const std::string text = PlainText(value, ',');
        const float again = ParseSheetNumber(text, '.');
        ASSERT_EQ(PlainText(again, ','), text);
    }
}

} // namespace
} // namespace dorvan
