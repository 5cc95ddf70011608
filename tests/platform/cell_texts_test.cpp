#include "platform/cell_texts.h"

#include <gtest/gtest.h>

namespace dorvan::test {

TEST(TabbedText, HasALineForEachRowAndATabBetweenFields) {
    EXPECT_EQ(TabbedText({{"Georgia", "1.500"}, {"", "N/A"}}), "Georgia\t1.500\n\tN/A\n");
    EXPECT_EQ(TabbedText({}), "");
}

TEST(TabbedText, QuotesWhatWouldBreakIt) {
    EXPECT_EQ(TabbedText({{"a\tb", "c\nd", "5\" long"}}), "\"a\tb\"\t\"c\nd\"\t\"5\"\" long\"\n");
}

TEST(TabbedText, IsReadBackAsItWas) {
    const CellTexts table = {{"a\tb", "c\r\nd", "5\" long"}, {"", "\"", "x"}, {"", "", ""}};
    EXPECT_EQ(ReadTabbedText(TabbedText(table)), table);
}

TEST(TabbedText, MayEndItsLinesInAnyWay) {
    const CellTexts table = {{"1", "2"}, {"3", "4"}};
    EXPECT_EQ(ReadTabbedText("1\t2\n3\t4\n"), table);
    EXPECT_EQ(ReadTabbedText("1\t2\r\n3\t4\r\n"), table);
    EXPECT_EQ(ReadTabbedText("1\t2\r3\t4"), table);
}

TEST(TabbedText, FillsShortLinesUp) {
    EXPECT_EQ(ReadTabbedText("1\t2\t\n\n3"), (CellTexts{{"1", "2", ""}, {"", "", ""}, {"3", "", ""}}));
    EXPECT_EQ(ReadTabbedText(""), CellTexts());
    EXPECT_EQ(ReadTabbedText("\n"), (CellTexts{{""}}));
}

TEST(TabbedText, TakesAQuotationMarkThatQuotesNothingAsItStands) {
    EXPECT_EQ(ReadTabbedText("\"a\t1\n"), (CellTexts{{"\"a", "1"}}));
    EXPECT_EQ(ReadTabbedText("\"a\"b\t1\n"), (CellTexts{{"\"a\"b", "1"}}));
    EXPECT_EQ(ReadTabbedText("5\"\t1\n"), (CellTexts{{"5\"", "1"}}));
    EXPECT_EQ(ReadTabbedText("\"\"\t\"b\""), (CellTexts{{"", "b"}}));
}

TEST(HtmlTable, EscapesItsTexts) {
    EXPECT_EQ(HtmlTable({{"a<b>", "\"c\" & d"}, {"", "1"}}),
              "<table>\n<tr><td>a&lt;b&gt;</td><td>&quot;c&quot; &amp; d</td></tr>\n"
              "<tr><td></td><td>1</td></tr>\n</table>\n");
}

} // namespace dorvan::test
