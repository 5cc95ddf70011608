#include "painting/text_measure.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

TextExtent extentOf(const std::string& text, const drawing::Font& font = {}) {
    painting::QtTextMeasure measure;
    return measure.extentOf(text, font);
}

TEST(TextMeasure, GrowsWithTheText) {
    EXPECT_EQ(extentOf("").Width, 0);
    EXPECT_GT(extentOf("mm").Width, extentOf("m").Width);
    EXPECT_EQ(extentOf("").Height, extentOf("m").Height);
}

TEST(TextMeasure, IsInTwipsAndInProportionToTheSize) {
    const TextExtent small = extentOf("Czekanowski", {"", 8, false});
    const TextExtent large = extentOf("Czekanowski", {"", 16, false});
    EXPECT_NEAR(large.Width, 2 * small.Width, 0.01 * large.Width);
    EXPECT_GT(small.Height, 8 * 20);
    EXPECT_LT(small.Height, 8 * 20 * 1.5);
}

TEST(TextMeasure, BoldLettersAreWider) {
    EXPECT_GT(extentOf("nana", {"", 8, true}).Width, extentOf("nana", {"", 8, false}).Width);
}

TEST(TextMeasure, CountsCharactersNotBytes) {
    EXPECT_NEAR(extentOf("ś").Width, extentOf("s").Width, 0.01 * extentOf("s").Width);
}

TEST(TextMeasure, NamedFontIsTaken) {
    const drawing::Font fixed{"Liberation Mono", 7, false};
    EXPECT_EQ(extentOf("iii", fixed).Width, extentOf("mmm", fixed).Width);
    EXPECT_NEAR(extentOf("i", fixed).Width, 84, 1); // 0.6 of 140 twips
}

} // namespace
} // namespace dorvan::test
