#include "files/faults.h"
#include "files/file_text.h"
#include "files/line_cursor.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan::test {

namespace {

const FileText Point{CodePage(1252), '.', {}};
const FileText Comma{CodePage(1250), ',', {}};

std::vector<std::string> LinesOf(std::string_view bytes) {
    LineCursor cursor(bytes);
    std::vector<std::string> lines;
    while (cursor.Remaining() > 0) lines.emplace_back(cursor.Next());
    return lines;
}

std::string LabelOf(std::string_view line, std::size_t size, const FileText& text = Point) {
    SectionReader reader(line, text);
    Names labels;
    reader.Labels({1, 1}, size, labels);
    return labels(1);
}

HeaderCount CountOf(std::string_view line) { return SectionReader(line, Point).Count("RecCount"); }

} // namespace

TEST(LineCursor, EndsLinesAtCarriageReturnAndLineFeedOrALoneLineFeed) {
    EXPECT_EQ(LinesOf("a\r\nb\n\r\n\nc\r\n"), (std::vector<std::string>{"a", "b", "", "", "c"}));
}

TEST(LineCursor, ALastLineWithoutItsEndIsALine) {
    EXPECT_EQ(LinesOf("a\r\nb"), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(LinesOf("a\r\nb\r"), (std::vector<std::string>{"a", "b"}));
}

TEST(LineCursor, KeepsNulBytesAndCarriageReturnsInsideALine) {
    EXPECT_EQ(LinesOf(std::string("a\0b\rc\r\n", 7)), (std::vector<std::string>{std::string("a\0b\rc", 5)}));
}

TEST(LineCursor, NamesTheLineThatIsMissing) {
    LineCursor cursor("a\r\n");
    cursor.Next();
    EXPECT_EQ(cursor.LineNumber(), 1);
    EXPECT_EQ(faultOf([&] { cursor.Next(); }),
              "Line 2: the line is missing, the file ends before it. File: f");
}

TEST(SectionReader, ASectionLineIsComparedTrimmedAndByExactCharacters) {
    SectionReader("whatever\r\n  [DATA] \r\n", Point).ExpectSection("DATA");
    for (const char* line : {"[data]", "[DATA", "DATA]", "[DATAS]", "[DAT]", "\t[DATA]", "", "[DATA]x"}) {
        EXPECT_EQ(
            faultOf([&] { SectionReader("\n" + std::string(line) + "\n", Point).ExpectSection("DATA"); }),
            "Error in DATA section of file: f")
            << line;
    }
}

TEST(SectionReader, AFileThatEndsBeforeASectionLineEndsTooEarly) {
    EXPECT_EQ(faultOf([] { SectionReader("x\r\n", Point).ExpectSection("DATA"); }),
              "Line 2: the line is missing, the file ends before it. File: f");
}

TEST(SectionReader, AHeaderLineIsSplitAtItsFirstEqualsSign) {
    EXPECT_EQ(SectionReader("Description= a = b=c ", Point).Text("Description"), " a = b=c ");
}

TEST(SectionReader, AHeaderLineWithAnotherKeyLeavesTheValueEmpty) {
    EXPECT_EQ(SectionReader("description=abc", Point).Text("Description"), "");
    EXPECT_EQ(SectionReader(" Description=abc", Point).Text("Description"), "");
    EXPECT_EQ(SectionReader("VarCount=abc", Point).Count("RecCount").Value, 0);
    EXPECT_EQ(SectionReader("SecLimit_2=abc", Point).Limit("SecLimit_1"), 0.0f);
}

TEST(SectionReader, AHeaderLineWithoutAnEqualsSignIsAFault) {
    EXPECT_EQ(faultOf([] { SectionReader("Description", Point).Text("Description"); }),
              "Line 1: \"Description=\" is missing. File: f");
}

TEST(SectionReader, ACountRoundsToSixteenBitsWithTiesToEven) {
    EXPECT_EQ(CountOf("RecCount=32767").Value, 32767);
    EXPECT_EQ(CountOf("RecCount= 12 ").Value, 12);
    EXPECT_EQ(CountOf("RecCount=2.5").Value, 2);
    EXPECT_EQ(CountOf("RecCount=3.5").Value, 4);
    EXPECT_EQ(CountOf("RecCount=-3").Value, -3);
    EXPECT_EQ(SectionReader("\nRecCount=1", Point).FirstLine(), "");
}

TEST(SectionReader, ACountThatIsNoNumberIsAFault) {
    EXPECT_EQ(faultOf([] { CountOf("RecCount=abc"); }), "Line 1: RecCount \"abc\" is not a number. File: f");
    EXPECT_EQ(faultOf([] { CountOf("RecCount="); }), "Line 1: RecCount \"\" is not a number. File: f");
    EXPECT_EQ(faultOf([] { CountOf("RecCount=32768"); }),
              "Line 1: RecCount \"32768\" is out of range. File: f");
}

TEST(SectionReader, ALimitReadsWithEitherSeparator) {
    EXPECT_EQ(SectionReader("SecLimit_1=1,5", Point).Limit("SecLimit_1"), 1.5f);
    EXPECT_EQ(SectionReader("SecLimit_1=1.5", Comma).Limit("SecLimit_1"), 1.5f);
}

TEST(SectionReader, ALabelOfTwentyCharactersKeepsItsFirstFifteen) {
    EXPECT_EQ(LabelOf("abcdefghijklmnopqrst\r\n", 15), "abcdefghijklmno");
    EXPECT_EQ(LabelOf("abcdefghijklmnopqrst\r\n", 8), "abcdefgh");
}

TEST(SectionReader, ALabelIsTrimmedBeforeAndBehindTheCut) {
    EXPECT_EQ(LabelOf("   abcdefghijklmno   ", 15), "abcdefghijklmno");
    EXPECT_EQ(LabelOf("abcdefghijkl    xyz", 15), "abcdefghijkl");
    EXPECT_EQ(LabelOf("\tabc\t", 15), "\tabc\t");
}

TEST(SectionReader, ALabelIsCutByCharactersOfTheCodePage) {
    EXPECT_EQ(LabelOf("\xAF\xF3\xB3w b\xB3otny i inne", 15, Comma), "Żółw błotny i i");
}

TEST(SectionReader, LabelsKeepThoseReadBeforeAFault) {
    SectionReader reader("a\r\nb\r\n", Point);
    Names labels(7);
    EXPECT_EQ(faultOf([&] {
                  reader.Labels({3, 5}, 15, labels);
              }),
              "Line 3: the line is missing, the file ends before it. File: f");
    EXPECT_EQ(labels.Cells(), (std::vector<std::string>{"a", "b"}));
}

TEST(SectionReader, ACountBelowOneFailsAtSizingAndNamesItsLine) {
    Names labels;
    EXPECT_EQ(faultOf([&] {
                  SectionReader("a\n", Point).Labels({0, 5}, 15, labels);
              }),
              "Line 5: the count 0 is below 1. File: f");
    EXPECT_EQ(faultOf([&] {
                  SectionReader("a\n", Point).Labels({-3, 5}, 15, labels);
              }),
              "Line 5: the count -3 is below 1. File: f");
}

TEST(SectionReader, ARowGivesItsFieldsAndIgnoresFurtherOnes) {
    std::vector<std::string> fields;
    SectionReader(" a; b ;c;d \r\n", Point).Row(3, [&](std::int32_t j, std::string_view field) {
        fields.push_back(std::to_string(j) + std::string(field));
    });
    EXPECT_EQ(fields, (std::vector<std::string>{"1a", "2 b ", "3c"}));
}

TEST(SectionReader, ARowWithTooFewFieldsIsAFault) {
    int taken = 0;
    const auto take = [&](std::int32_t, std::string_view) { ++taken; };
    EXPECT_EQ(faultOf([&] { SectionReader("1;2\r\n", Point).Row(3, take); }),
              "Line 1: 2 fields stand where 3 are needed. File: f");
    EXPECT_EQ(taken, 2);
}

TEST(SectionReader, AMissingValueIsComparedTrimmedAndByExactCharacters) {
    const SectionReader reader("", Point);
    EXPECT_EQ(reader.NumberOrMissing(" N/A "), NaValue);
    EXPECT_EQ(reader.NumberOrMissing("-9999999"), NaValue);
    EXPECT_EQ(faultOf([&] { reader.NumberOrMissing("n/a"); }), "Line 0: \"n/a\" is not a number. File: f");
    EXPECT_EQ(faultOf([&] { reader.Number("N/A"); }), "Line 0: \"N/A\" is not a number. File: f");
}

TEST(SectionReader, AFaultQuotesAPieceThatAMessageCanShow) {
    const SectionReader reader("", Comma);
    EXPECT_EQ(faultOf([&] { reader.Number(std::string("a\0\tb", 4)); }),
              "Line 0: \"a??b\" is not a number. File: f");
    EXPECT_EQ(faultOf([&] { reader.Number("\xAF"); }), "Line 0: \"Ż\" is not a number. File: f");
    EXPECT_EQ(faultOf([&] { reader.Number(std::string(1000, 'x')); }),
              "Line 0: \"" + std::string(40, 'x') + "...\" is not a number. File: f");
    EXPECT_EQ(faultOf([&] { reader.Number("1e39"); }), "Line 0: \"1e39\" is out of range. File: f");
}

TEST(SectionReader, ValuesThatTheFileCannotHoldAreAFaultBeforeTheyAreSized) {
    SectionReader("1;2\n3;4", Point).ExpectRoomFor(2, 2);
    EXPECT_EQ(faultOf([] { SectionReader("1;2\n3;", Point).ExpectRoomFor(2, 2); }),
              "Line 0: 2 lines of 2 values do not fit into the 6 bytes that follow. File: f");
    EXPECT_EQ(faultOf([] { SectionReader("1;2\n3;4", Point).ExpectRoomFor(32767, 32767); }),
              "Line 0: 32767 lines of 32767 values do not fit into the 7 bytes that follow. File: f");
}

} // namespace dorvan::test
