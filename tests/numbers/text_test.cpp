#include "numbers/text.h"

#include "numbers/utf8.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cwctype>
#include <limits>
#include <string>
#include <vector>

namespace dorvan {
namespace {

using Fields = std::vector<std::string_view>;

TEST(CharacterCount, CountsCodePoints) {
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("abc"), 3U);
    EXPECT_EQ(CharacterCount("żółw"), 4U);
    EXPECT_EQ(CharacterCount("€😀"), 2U);
    EXPECT_EQ(CharacterCount("e\u0301"), 2U); // a combining accent is a character of its own
}

TEST(CharacterCount, BadByteIsOneCharacter) {
    EXPECT_EQ(CharacterCount("a\xFF\xFE"), 3U);
    EXPECT_EQ(CharacterCount("\xE2\x82"), 2U);
    EXPECT_EQ(CharacterCount("\xC5"), 1U);
}

TEST(LeftCharacters, NeverCutsInsideACharacter) {
    EXPECT_EQ(LeftCharacters("żółw", 0), "");
    EXPECT_EQ(LeftCharacters("żółw", 2), "żó");
    EXPECT_EQ(LeftCharacters("żółw", 3), "żół");
    EXPECT_EQ(LeftCharacters("€😀a", 2), "€😀");
    EXPECT_EQ(LeftCharacters("\xFF\xC5\x81", 2), "\xFF\xC5\x81");
}

TEST(LeftCharacters, TextThatIsNotLongerIsWhole) {
    EXPECT_EQ(LeftCharacters("żółw", 4), "żółw");
    EXPECT_EQ(LeftCharacters("żółw", 100), "żółw");
    EXPECT_EQ(LeftCharacters("", 3), "");
}

TEST(RightCharacters, NeverCutsInsideACharacter) {
    EXPECT_EQ(RightCharacters("żółw", 0), "");
    EXPECT_EQ(RightCharacters("żółw", 2), "łw");
    EXPECT_EQ(RightCharacters("wół", 1), "ł");
    EXPECT_EQ(RightCharacters("a€😀", 2), "€😀");
    EXPECT_EQ(RightCharacters("a\xE2\x82", 1), "\x82");
}

TEST(RightCharacters, TextThatIsNotLongerIsWhole) {
    EXPECT_EQ(RightCharacters("żółw", 4), "żółw");
    EXPECT_EQ(RightCharacters("żółw", std::numeric_limits<std::size_t>::max()), "żółw");
    EXPECT_EQ(RightCharacters("", 1), "");
}

TEST(TrimSpaces, CutsSpacesFromBothEndsOnly) {
    EXPECT_EQ(TrimSpaces("  a b  "), "a b");
    EXPECT_EQ(TrimSpaces("a"), "a");
    EXPECT_EQ(TrimSpaces("   "), "");
    EXPECT_EQ(TrimSpaces(""), "");
}

TEST(TrimSpaces, LeavesTabsLineEndsAndOtherBlanks) {
    EXPECT_EQ(TrimSpaces(" \ta\r\n "), "\ta\r\n");
    EXPECT_EQ(TrimSpaces("\u00A0a\u00A0"), "\u00A0a\u00A0");
}

TEST(ReplaceAll, ReplacesEveryOccurrenceFromTheLeft) {
    EXPECT_EQ(ReplaceAll("1,2,3", ",", "."), "1.2.3");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("ab", "b", "bb"), "abb");
    EXPECT_EQ(ReplaceAll("abab", "ab", ""), "");
    EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
    EXPECT_EQ(ReplaceAll("", "x", "y"), "");
}

TEST(ReplaceAll, NothingToLookForChangesNothing) { EXPECT_EQ(ReplaceAll("abc", "", "y"), "abc"); }

TEST(SplitFields, GivesOneFieldMoreThanSeparators) {
    EXPECT_EQ(SplitFields("a;b;c", ';'), (Fields{"a", "b", "c"}));
    EXPECT_EQ(SplitFields("a;;c;", ';'), (Fields{"a", "", "c", ""}));
    EXPECT_EQ(SplitFields(";", ';'), (Fields{"", ""}));
    EXPECT_EQ(SplitFields("a;b", '\t'), (Fields{"a;b"}));
}

TEST(SplitFields, EmptyTextIsOneEmptyField) { EXPECT_EQ(SplitFields("", ';'), (Fields{""})); }

TEST(LowerCase, LowersTheLettersOfTheNamedAlphabets) {
    EXPECT_EQ(LowerCase("C:\\DATA\\Iris.MDT"), "c:\\data\\iris.mdt");
    EXPECT_EQ(LowerCase("ĄĆĘŁŃÓŚŹŻ"), "ąćęłńóśźż");
    EXPECT_EQ(LowerCase("ÀÖ×ØÞß÷ÿ"), "àö×øþß÷ÿ");
    EXPECT_EQ(LowerCase("ŸŽŇŐĲĿ"), "ÿžňőĳŀ");
    EXPECT_EQ(LowerCase("ΑΣΏΫΆ"), "ασώϋά");
    EXPECT_EQ(LowerCase("ЀЏАЯҐѢӀ"), "ѐџаяґѣӏ");
    EXPECT_EQ(LowerCase("İ"), "i");
}

TEST(LowerCase, LeavesAllElseAsItStands) {
    EXPECT_EQ(LowerCase("@[`{0 ąćé"), "@[`{0 ąćé");
    EXPECT_EQ(LowerCase("Ꙁ😀Ａ"), "Ꙁ😀Ａ"); // letters of other blocks
    EXPECT_EQ(LowerCase("A\xFF\xC5"
                        "B"),
              "a\xFF\xC5"
              "b");
    EXPECT_EQ(LowerCase(""), "");
}

// The C library's table of the C.UTF-8 locale, which is on every Debian.
TEST(LowerCase, AgreesWithTheLibraryOnEveryLetterOfTheNamedAlphabets) {
    const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (unicode == nullptr) GTEST_SKIP() << "no C.UTF-8 on this machine";
    for (char32_t codePoint = 1; codePoint < 0x530; ++codePoint) {
        if (codePoint >= 0x180 && codePoint < 0x370) continue;
        std::string capital;
        std::string small;
        AppendUtf8(capital, codePoint);
        AppendUtf8(small, static_cast<char32_t>(towlower_l(static_cast<wint_t>(codePoint), unicode)));
        EXPECT_EQ(LowerCase(capital), small) << std::hex << static_cast<unsigned>(codePoint);
    }
    freelocale(unicode);
}

TEST(SignedText, HasABlankInThePlaceOfAPlusSign) {
    EXPECT_EQ(SignedText(3), " 3");
    EXPECT_EQ(SignedText(0), " 0");
    EXPECT_EQ(SignedText(-3), "-3");
    EXPECT_EQ(SignedText(32767), " 32767");
}

} // namespace
} // namespace dorvan
