#include "numbers/code_page.h"

#include "numbers/text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace dorvan {
namespace {

constexpr int CodePages[] = {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

TEST(CodePage, PolishInItsOwnPage) {
    const CodePage page(1250);
    EXPECT_EQ(page.FromUtf8("ąćęłńóśźż"), "\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF");
    EXPECT_EQ(page.FromUtf8("ĄĆĘŁŃÓŚŹŻ"), "\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF");
    EXPECT_EQ(page.ToUtf8("\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF"), "ąćęłńóśźż");
    EXPECT_EQ(page.ToUtf8("\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF"), "ĄĆĘŁŃÓŚŹŻ");
}

TEST(CodePage, LettersOfEachPage) {
    const std::tuple<int, std::string, std::string> texts[] = {
        {874, "ไทย฿", "\xE4\xB7\xC2\xDF"},
        {1250, "őčřş€", "\xF5\xE8\xF8\xBA\x80"},
        {1251, "Привет №", "\xCF\xF0\xE8\xE2\xE5\xF2 \xB9"},
        {1252, "äßœŸ€", "\xE4\xDF\x9C\x9F\x80"},
        {1253, "Ωμέγα", "\xD9\xEC\xDD\xE3\xE1"},
        {1254, "ığŞİ", "\xFD\xF0\xDE\xDD"},
        {1255, "שלום₪", "\xF9\xEC\xE5\xED\xA4"},
        {1256, "سلام،", "\xD3\xE1\xC7\xE3\xA1"},
        {1257, "ąžūõ", "\xE0\xFE\xFB\xF5"},
        {1258, "đơư₫", "\xF0\xF5\xFD\xFE"},
    };
    for (const auto& [number, text, bytes] : texts) {
        EXPECT_EQ(CodePage(number).FromUtf8(text), bytes) << number;
        EXPECT_EQ(CodePage(number).ToUtf8(bytes), text) << number;
    }
}

TEST(CodePage, CharacterOutsideThePageIsAQuestionMark) {
    EXPECT_EQ(CodePage(1252).FromUtf8("Łódź"), "?\xF3"
                                               "d?");
    EXPECT_EQ(CodePage(1250).FromUtf8("a€Ω😀b"), "a\x80??b");
    EXPECT_EQ(CodePage(1252).FromUtf8("\u0080"), "?"); // that byte is the euro sign
}

TEST(CodePage, EachMalformedByteIsAQuestionMark) {
    EXPECT_EQ(CodePage(1250).FromUtf8("a\xFF"
                                      "b"),
              "a?b");
    EXPECT_EQ(CodePage(1250).FromUtf8("\xE2\x82"), "??");
    EXPECT_EQ(CodePage(1250).FromUtf8("\xC5"), "?");
    EXPECT_EQ(CodePage(1250).FromUtf8("\xED\xA0\x80"), "???");
}

TEST(CodePage, EveryByteOfEveryPageRoundTrips) {
    const std::string bytes = AllBytes();
    for (const int number : CodePages) {
        const std::string text = CodePage(number).ToUtf8(bytes);
        EXPECT_EQ(CharacterCount(text), 256U) << number;
        EXPECT_EQ(CodePage(number).FromUtf8(text), bytes) << number;
    }
}

TEST(CodePage, AsciiStaysAsItIs) {
    const std::string ascii = AllBytes().substr(0, 128);
    for (const int number : CodePages) {
        EXPECT_EQ(CodePage(number).ToUtf8(ascii), ascii) << number;
        EXPECT_EQ(CodePage(number).FromUtf8(ascii), ascii) << number;
    }
}

TEST(CodePage, ByteWithoutACharacterIsTheControlCharacterOfItsNumber) {
    EXPECT_EQ(CodePage(1250).ToUtf8("\x81\x83\x88\x90\x98"), "\u0081\u0083\u0088\u0090\u0098");
    EXPECT_EQ(CodePage(1252).ToUtf8("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(CodePage(1252).FromUtf8("\u0081\u008D\u008F\u0090\u009D"), "\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(CodePage(1251).ToUtf8("\x98"), "\u0098");
    EXPECT_EQ(CodePage(1253).ToUtf8("\xAA\xD2\xFF"), "\u00AA\u00D2\u00FF");
    EXPECT_EQ(CodePage(874).FromUtf8("\u00DB\u00FF"), "\xDB\xFF");
}

TEST(CodePage, NumberThatIsNoneIsWestern) {
    EXPECT_EQ(CodePage().Number(), 1252);
    EXPECT_EQ(CodePage(65001).Number(), 1252);
    EXPECT_EQ(CodePage(0).Number(), 1252);
    EXPECT_EQ(CodePage(1250).Number(), 1250);
    EXPECT_EQ(CodePage(437).FromUtf8("é"), "\xE9");
}

TEST(IsCodePage, KnowsTheTenPages) {
    for (const int number : CodePages) EXPECT_TRUE(IsCodePage(number)) << number;
    for (const int number : {0, -1, 437, 852, 873, 1249, 1259, 65001})
        EXPECT_FALSE(IsCodePage(number)) << number;
}

TEST(CodePageOfLocale, FollowsTheLanguage) {
    const std::map<int, std::string_view> languages = {
        {1250, "bs cs hr hu pl ro sk sl sq tk"},
        {1251, "ba be bg kk ky mk mn ru sr tg tt uk"},
        {1252, "en de fr es it pt nl sv da nb nn fi is ga ca eu sw xx C POSIX"},
        {1253, "el"},
        {1254, "az tr uz"},
        {1255, "he iw yi"},
        {1256, "ar fa ps ug ur"},
        {1257, "et lt lv"},
        {1258, "vi"},
        {874, "th"},
    };
    for (const auto& [codePage, names] : languages)
        for (const std::string_view name : SplitFields(names, ' '))
            EXPECT_EQ(CodePageOfLocale(name), codePage) << name;
}

TEST(CodePageOfLocale, ReadsTheNameInAllItsForms) {
    EXPECT_EQ(CodePageOfLocale("pl_PL.UTF-8"), 1250);
    EXPECT_EQ(CodePageOfLocale("pl_PL"), 1250);
    EXPECT_EQ(CodePageOfLocale("pl.ISO-8859-2"), 1250);
    EXPECT_EQ(CodePageOfLocale("pl-PL"), 1250);
    EXPECT_EQ(CodePageOfLocale("PL_pl"), 1250);
    EXPECT_EQ(CodePageOfLocale("de_DE@euro"), 1252);
    EXPECT_EQ(CodePageOfLocale("C.UTF-8"), 1252);
    EXPECT_EQ(CodePageOfLocale(""), 1252);
    EXPECT_EQ(CodePageOfLocale("polish"), 1252);
}

TEST(CodePageOfLocale, ModifierChoosesTheAlphabet) {
    EXPECT_EQ(CodePageOfLocale("sr_RS@latin"), 1250);
    EXPECT_EQ(CodePageOfLocale("sr_RS.UTF-8@latin"), 1250);
    EXPECT_EQ(CodePageOfLocale("sr_RS.UTF-8"), 1251);
    EXPECT_EQ(CodePageOfLocale("uz_UZ@cyrillic"), 1251);
    EXPECT_EQ(CodePageOfLocale("az_AZ@cyrillic"), 1251);
    EXPECT_EQ(CodePageOfLocale("be_BY@latin"), 1251);
}

class SystemCodePageTest : public ::testing::Test {
protected:
    void SetUp() override {
        for (auto& [name, value] : saved_) {
            if (const char* current = std::getenv(name)) value = current;
            unsetenv(name);
        }
    }
    void TearDown() override {
        for (const auto& [name, value] : saved_) {
            unsetenv(name);
            if (value) setenv(name, value->c_str(), 1);
        }
    }

private:
    std::map<const char*, std::optional<std::string>> saved_{{"LC_ALL", {}}, {"LC_CTYPE", {}}, {"LANG", {}}};
};

TEST_F(SystemCodePageTest, TakesTheFirstVariableThatIsSet) {
    setenv("LANG", "ru_RU.UTF-8", 1);
    EXPECT_EQ(SystemCodePage(), 1251);
    setenv("LC_CTYPE", "el_GR.UTF-8", 1);
    EXPECT_EQ(SystemCodePage(), 1253);
    setenv("LC_ALL", "pl_PL.UTF-8", 1);
    EXPECT_EQ(SystemCodePage(), 1250);
}

TEST_F(SystemCodePageTest, EmptyVariableIsNotSet) {
    setenv("LC_ALL", "", 1);
    setenv("LC_CTYPE", "", 1);
    setenv("LANG", "pl_PL.UTF-8", 1);
    EXPECT_EQ(SystemCodePage(), 1250);
}

TEST_F(SystemCodePageTest, WesternWhenNothingIsSet) { EXPECT_EQ(SystemCodePage(), 1252); }

} // namespace
} // namespace dorvan
