#include "numbers/utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace dorvan {
namespace {

bool IsBadByte(std::string_view text) {
    const Utf8Character character = Utf8CharacterAt(text, 0);
    return !character.wellFormed && character.length == 1 &&
           character.codePoint == static_cast<unsigned char>(text[0]);
}

TEST(Utf8, EveryCharacterRoundTrips) {
    for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
        if (codePoint >= 0xD800 && codePoint <= 0xDFFF) continue;
        std::string text;
        AppendUtf8(text, codePoint);
        const Utf8Character character = Utf8CharacterAt(text, 0);
        ASSERT_TRUE(character.wellFormed) << static_cast<unsigned>(codePoint);
        ASSERT_EQ(character.codePoint, codePoint);
        ASSERT_EQ(character.length, text.size());
    }
}

TEST(Utf8, WritesOneToFourBytes) {
    std::string text;
    for (const char32_t codePoint : {U'A', U'\u0141', U'\u20AC', U'\U0001F600'}) AppendUtf8(text, codePoint);
    EXPECT_EQ(text, "A\xC5\x81\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Utf8, OverlongFormsAreBadBytes) {
    EXPECT_TRUE(IsBadByte("\xC0\x80"));
    EXPECT_TRUE(IsBadByte("\xC1\xBF"));
    EXPECT_TRUE(IsBadByte("\xE0\x9F\xBF"));
    EXPECT_TRUE(IsBadByte("\xF0\x8F\xBF\xBF"));
}

TEST(Utf8, SurrogatesAndTooLargeNumbersAreBadBytes) {
    EXPECT_TRUE(IsBadByte("\xED\xA0\x80"));
    EXPECT_TRUE(IsBadByte("\xED\xBF\xBF"));
    EXPECT_TRUE(IsBadByte("\xF4\x90\x80\x80"));
    EXPECT_TRUE(IsBadByte("\xF5\x80\x80\x80"));
    EXPECT_TRUE(IsBadByte("\xFF"));
}

TEST(Utf8, CutOffSequencesAndLoneContinuationsAreBadBytes) {
    EXPECT_TRUE(IsBadByte("\xC5"));
    EXPECT_TRUE(IsBadByte("\xE2\x82"));
    EXPECT_TRUE(IsBadByte("\xF0\x9F\x98"));
    EXPECT_TRUE(IsBadByte("\xE2"
                          "A\xAC"));
    EXPECT_TRUE(IsBadByte("\xE2\x82"
                          "A"));
    EXPECT_TRUE(IsBadByte("\x80"));
}

} // namespace
} // namespace dorvan
