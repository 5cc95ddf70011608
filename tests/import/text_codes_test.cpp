#include "files/faults.h"
#include "import/text_codes.h"

#include <gtest/gtest.h>

namespace dorvan::test {

namespace {

using namespace std::string_literals;

const TextCodes Polish{CodePage(1250), false};
const TextCodes PolishForced{CodePage(1250), true};

std::string Units(std::u16string_view text, bool bigEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

} // namespace

TEST(TextOfFile, PlainTextStaysAsItIs) {
    EXPECT_EQ(TextOfFile("a;b\r\n1;2\n", Polish), "a;b\r\n1;2\n");
    EXPECT_EQ(TextOfFile("", Polish), "");
}

TEST(TextOfFile, BytesOfTheCodePageAreReadByIt) {
    EXPECT_EQ(TextOfFile("\xA3\xF3\x64\x9F;1", Polish), "Łódź;1");
    EXPECT_EQ(TextOfFile("caf\xE9", {CodePage(1252), false}), "café");
}

TEST(TextOfFile, WellFormedUtf8IsReadAsSuch) {
    EXPECT_EQ(TextOfFile("Łódź;1\r\nŻółw;2", Polish), "Łódź;1\r\nŻółw;2");
    EXPECT_EQ(TextOfFile("日本;𝄞", Polish), "日本;𝄞");
}

TEST(TextOfFile, OneByteThatIsNotUtf8MakesTheWholeACodePageText) {
    EXPECT_EQ(TextOfFile("\xC5\x81;\xF3", Polish), "Ĺ\u0081;ó");
}

TEST(TextOfFile, AForcedPageHoldsWhateverTheBytesLookLike) {
    EXPECT_EQ(TextOfFile("ó", PolishForced), "Ăł");
    EXPECT_EQ(TextOfFile("\xEF\xBB\xBF"
                         "a",
                         PolishForced),
              "ď»ża");
}

TEST(TextOfFile, AByteOrderMarkIsNoPartOfTheText) {
    EXPECT_EQ(TextOfFile("\xEF\xBB\xBF"
                         "name;ż",
                         Polish),
              "name;ż");
    EXPECT_EQ(TextOfFile("\xEF\xBB\xBF", Polish), "");
}

TEST(TextOfFile, AFileThatBeginsAsUtf8HasToGoOnSo) {
    EXPECT_EQ(faultOf([] {
                  TextOfFile("\xEF\xBB\xBF"
                             "a\nb\n\xF3",
                             Polish);
              }),
              "Line 3: the file begins as UTF-8, but this line is not UTF-8. File: f");
}

TEST(TextOfFile, Utf16IsReadInEitherByteOrder) {
    const std::u16string text = u"Łódź\t1\r\n𝄞;2";
    EXPECT_EQ(TextOfFile("\xFF\xFE" + Units(text, false), Polish), "Łódź\t1\r\n𝄞;2");
    EXPECT_EQ(TextOfFile("\xFE\xFF" + Units(text, true), Polish), "Łódź\t1\r\n𝄞;2");
    EXPECT_EQ(TextOfFile("\xFF\xFE", Polish), "");
}

TEST(TextOfFile, BrokenUtf16IsAFault) {
    const std::string message = "Line 2: the file begins as UTF-16, but this line is not UTF-16. File: f";
    for (const std::u16string& broken :
         {u"a\n"s + char16_t(0xD834), u"a\n"s + char16_t(0xDD1E), u"a\n"s + char16_t(0xD834) + u"b"s})
        EXPECT_EQ(faultOf([&] { TextOfFile("\xFF\xFE" + Units(broken, false), Polish); }), message);
    EXPECT_EQ(faultOf([&] { TextOfFile("\xFF\xFE" + Units(u"a\n", false) + "b", Polish); }), message);
}

TEST(TextOfFile, ANulIsAFault) {
    EXPECT_EQ(faultOf([] { TextOfFile("a\nb\0c"s, Polish); }),
              "Line 2: a NUL stands here, which no text file has. File: f");
    EXPECT_EQ(faultOf([] { TextOfFile(Units(u"a;1\n", false), Polish); }), // no mark tells that it is UTF-16
              "Line 1: a NUL stands here, which no text file has. File: f");
    EXPECT_EQ(faultOf([] { TextOfFile("a\0"s, PolishForced); }),
              "Line 1: a NUL stands here, which no text file has. File: f");
}

TEST(TextsJudgedTogether, AllOfThemDecide) {
    using Texts = std::vector<std::string>;
    EXPECT_EQ(TextsJudgedTogether({"AREA", "Łódź", "ż"}, Polish), (Texts{"AREA", "Łódź", "ż"}));
    EXPECT_EQ(TextsJudgedTogether({"\xA3\xF3\x64\x9F", "ż"}, Polish), (Texts{"Łódź", "ĹĽ"}));
    EXPECT_EQ(TextsJudgedTogether({"ż"}, PolishForced), (Texts{"ĹĽ"}));
    EXPECT_EQ(TextsJudgedTogether({}, Polish), Texts{});
}

TEST(TextsJudgedTogether, ACharacterIsNotMadeOfTwoTexts) {
    EXPECT_EQ(TextsJudgedTogether({"\xC5", "\xBC"}, Polish), (std::vector<std::string>{"Ĺ", "Ľ"}));
}

} // namespace dorvan::test
