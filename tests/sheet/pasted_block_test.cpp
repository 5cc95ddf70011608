#include "sheet/pasted_block.h"

#include "sheet/spreadsheet_number.h"

#include <gtest/gtest.h>

#include <ostream>

namespace dorvan {

void PrintTo(const PlacedText& cell, std::ostream* out) {
    *out << cell.Row << "," << cell.Column << " " << cell.Text;
}

} // namespace dorvan

namespace dorvan::test {
namespace {

TEST(SpreadsheetNumberTest, TakesDecimalPointsAndCommas) {
    EXPECT_EQ(SpreadsheetNumber("1.5"), 1.5);
    EXPECT_EQ(SpreadsheetNumber("1,5"), 1.5);
    EXPECT_EQ(SpreadsheetNumber(" -12,250 "), -12.25);
    EXPECT_EQ(SpreadsheetNumber("+3"), 3.0);
    EXPECT_EQ(SpreadsheetNumber("\u22124,5"), -4.5);
    EXPECT_EQ(SpreadsheetNumber(".5"), 0.5);
    EXPECT_EQ(SpreadsheetNumber("5,"), 5.0);
    EXPECT_EQ(SpreadsheetNumber("0"), 0.0);
    EXPECT_EQ(SpreadsheetNumber("007"), 7.0);
}

TEST(SpreadsheetNumberTest, TakesGroupsOfThreeDigits) {
    EXPECT_EQ(SpreadsheetNumber("1,234.5"), 1234.5);
    EXPECT_EQ(SpreadsheetNumber("1.234,5"), 1234.5);
    EXPECT_EQ(SpreadsheetNumber("1,234,567"), 1234567.0);
    EXPECT_EQ(SpreadsheetNumber("1.234.567"), 1234567.0);
    EXPECT_EQ(SpreadsheetNumber("12 345,6"), 12345.6);
    EXPECT_EQ(SpreadsheetNumber("12\u00a0345"), 12345.0);
    EXPECT_EQ(SpreadsheetNumber("1\u202f234\u202f567,5"), 1234567.5);
    EXPECT_EQ(SpreadsheetNumber("1'234.5"), 1234.5);
    EXPECT_EQ(SpreadsheetNumber("1,234"), 1.234); // one mark alone is the decimal one
    for (const auto* text : {"1,23,456.5", "12,34.5", "1 23", "1234,567.5", "1.2.3", "1,,234", "1 234 56",
                             "1,234 567.5", ",234,567"})
        EXPECT_EQ(SpreadsheetNumber(text), std::nullopt) << text;
}

TEST(SpreadsheetNumberTest, TakesExponents) {
    EXPECT_EQ(SpreadsheetNumber("1,5E+03"), 1500.0);
    EXPECT_EQ(SpreadsheetNumber("2e-3"), 0.002);
    EXPECT_EQ(SpreadsheetNumber("2E3"), 2000.0);
    for (const auto* text : {"e5", "1e", "1e+", "1e5.5", "1e999", "1e++5", "1e+-5"})
        EXPECT_EQ(SpreadsheetNumber(text), std::nullopt) << text;
}

TEST(SpreadsheetNumberTest, TakesNoOtherText) {
    for (const auto* text : {"", " ", "abc", "12abc", "1-2", "--1", "-", ".", ",", "12%", "$5", "1/2", "0x10",
                             "inf", "(5)", "1.5.", "TRUE", "5.1.2020"})
        EXPECT_EQ(SpreadsheetNumber(text), std::nullopt) << text;
}

TEST(MissingMark, IsWrittenInMoreThanOneWay) {
    for (const auto* text : {"N/A", "n/a", " NA ", "#N/A", "NaN"}) EXPECT_TRUE(IsMissingMark(text)) << text;
    for (const auto* text : {"", "N", "none", "0", "-"}) EXPECT_FALSE(IsMissingMark(text)) << text;
}

TEST(PastedBlockTest, ValuesHaveThreeDecimals) {
    const auto placed = PlaceBlock({{"1", "2,5"}, {"-0.125", "1e2"}}, 2, 3, '.');
    EXPECT_EQ(placed.Range, (CellRange{2, 3, 3, 4}));
    EXPECT_EQ(placed.Rows, 4);
    EXPECT_EQ(placed.Columns, 5);
    EXPECT_EQ(placed.Cells, (std::vector<PlacedText>{
                                {2, 3, "1.000"}, {2, 4, "2.500"}, {3, 3, "-0.125"}, {3, 4, "100.000"}}));
    EXPECT_TRUE(placed.NoNumbers.empty());
    EXPECT_EQ(placed.EmptyValues + placed.Rounded, 0);
    EXPECT_EQ(PlaceBlock({{"2.5"}}, 2, 3, ',').Cells.front().Text, "2,500");
}

TEST(PastedBlockTest, MissingAndEmptyValuesAreNotAvailable) {
    const auto placed = PlaceBlock({{"n/a", "", "#N/A"}, {" ", "-9999999", "1"}}, 1, 2, '.');
    for (std::size_t cell = 0; cell < 5; ++cell) EXPECT_EQ(placed.Cells[cell].Text, "N/A") << cell;
    EXPECT_EQ(placed.Cells[5].Text, "1.000");
    EXPECT_EQ(placed.EmptyValues, 2);
    EXPECT_TRUE(placed.NoNumbers.empty());
}

TEST(PastedBlockTest, WhatIsNoNumberIsNeverAZero) {
    const auto placed = PlaceBlock({{"1", "abc"}, {"12%", "10000000"}, {"9999999", "3"}}, 1, 2, '.');
    EXPECT_EQ(placed.Cells[1].Text, "N/A");
    EXPECT_EQ(placed.Cells[2].Text, "N/A");
    EXPECT_EQ(placed.Cells[3].Text, "N/A"); // as large as no cell takes by typing
    EXPECT_EQ(placed.Cells[4].Text, "9999999.000");
    EXPECT_EQ(placed.NoNumbers, (std::vector<PlacedText>{{1, 3, "abc"}, {2, 2, "12%"}, {2, 3, "10000000"}}));
}

TEST(PastedBlockTest, MoreThanThreeDecimalsAreCounted) {
    const auto placed = PlaceBlock({{"0.1234", "0.123", "1234567.125", "1e-9"}}, 1, 2, '.');
    EXPECT_EQ(placed.Rounded, 2);
    EXPECT_EQ(placed.Cells[0].Text, "0.123");
}

TEST(PastedBlockTest, NamesStandWhereTheBlockCoversThem) {
    const auto placed = PlaceBlock({{"", "Height", "7"}, {" Georgia\r\nUSA", "1", "2"}}, 0, 1, '.');
    EXPECT_EQ(placed.Cells, (std::vector<PlacedText>{{0, 2, "Height"},
                                                     {0, 3, "7"}, // also a name
                                                     {1, 1, "Georgia USA"},
                                                     {1, 2, "1.000"},
                                                     {1, 3, "2.000"}})); // the corner keeps its caption
    EXPECT_EQ(placed.EmptyValues, 0);
}

TEST(PastedBlockTest, AFirstLineOfNamesOnTheFirstRecordGoesToTheHeads) {
    const auto placed = PlaceBlock({{"Name", "Height", "Weight"}, {"Georgia", "1", "2"}}, 1, 1, '.');
    EXPECT_EQ(placed.Range, (CellRange{0, 1, 1, 3}));
    EXPECT_EQ(placed.Cells.front(), (PlacedText{0, 2, "Height"}));
    EXPECT_EQ(placed.Cells.back(), (PlacedText{1, 3, "2.000"}));
    EXPECT_EQ(PlaceBlock({{"Height", "Weight"}, {"1", "2"}}, 1, 2, '.').Range.Top, 0);
    EXPECT_EQ(PlaceBlock({{"Height", "Weight"}, {"1", "2"}}, 2, 2, '.').Range.Top, 2); // not on the first
    EXPECT_EQ(PlaceBlock({{"Height", "5"}, {"1", "2"}}, 1, 2, '.').Range.Top, 1);      // one is a value
    EXPECT_EQ(PlaceBlock({{"abc", "def"}, {"ghi", "jkl"}}, 1, 2, '.').Range.Top, 1);   // no values below
    EXPECT_EQ(PlaceBlock({{"Height", "Weight"}}, 1, 2, '.').Range.Top, 1);             // nothing below
    EXPECT_EQ(PlaceBlock({{"A", "B"}, {"C", "D"}}, 1, 1, '.').NoNumbers.size(), 2u);
}

TEST(PastedBlockTest, AFirstColumnOfNamesOnTheFirstVariableGoesToTheNames) {
    const auto placed = PlaceBlock({{"Georgia", "1"}, {"Texas", "2"}}, 3, 2, '.');
    EXPECT_EQ(placed.Range, (CellRange{3, 1, 4, 2}));
    EXPECT_EQ(placed.Cells.front(), (PlacedText{3, 1, "Georgia"}));
    EXPECT_EQ(PlaceBlock({{"Georgia", "1"}, {"Texas", "2"}}, 3, 3, '.').Range.Left, 3);
    EXPECT_EQ(PlaceBlock({{"Georgia", "1"}, {"5", "2"}}, 3, 2, '.').Range.Left, 2);
    EXPECT_EQ(PlaceBlock({{"Georgia"}, {"Texas"}}, 3, 2, '.').Range.Left, 2);
    // With both, the corner may hold anything.
    EXPECT_EQ(PlaceBlock({{"", "Height"}, {"Georgia", "1"}}, 1, 2, '.').Range, (CellRange{0, 1, 1, 2}));
}

TEST(PastedBlockTest, NothingIsNoBlock) {
    EXPECT_TRUE(PlaceBlock({}, 1, 1, '.').Cells.empty());
    EXPECT_EQ(PlaceBlock({}, 1, 1, '.').Rows, 0);
}

} // namespace
} // namespace dorvan::test
