#include "files/allocations.h"
#include "files/data_file.h"
#include "files/faults.h"
#include "files/files_session.h"
#include "files/older_bytes.h"

#include <limits>

namespace dorvan::test {

namespace {

// The first row holds the variables' names, the first column the records'.
SheetTable SheetOf(const std::vector<std::vector<std::string>>& rows) {
    SheetTable sheet(static_cast<int>(rows.size()) - 1, static_cast<int>(rows[0].size()) - 1);
    for (std::size_t column = 1; column < rows[0].size(); ++column)
        sheet.VariableNames(static_cast<int>(column)) = rows[0][column];
    for (std::size_t row = 1; row < rows.size(); ++row) {
        sheet.RecordNames(static_cast<int>(row)) = rows[row][0];
        for (std::size_t column = 1; column < rows[row].size(); ++column)
            sheet.Cells(static_cast<int>(row), static_cast<int>(column)) = rows[row][column];
    }
    return sheet;
}

const std::vector<std::vector<std::string>> Pots = {{"Record Name", "Length ", " Width"},
                                                    {" First", "1", "-2.5"},
                                                    {"Café", " N/A ", "1234.5678"},
                                                    {"Third one ", "0.0005001", "-0.0004"}};

DocumentTables Parsed(std::string_view bytes, const FileText& text = PointText()) {
    DocumentTables tables;
    ParseDataFile(bytes, text, tables);
    return tables;
}

std::string FaultOfData(std::string_view bytes) {
    DocumentTables tables;
    return faultOf([&] { ParseDataFile(bytes, PointText(), tables); });
}

OlderBytes OlderHeader(int variables, int records) {
    OlderBytes bytes;
    return bytes.text("Old", 50).int16(variables).int16(0).int16(records).int16(0);
}

std::string FaultOfOlder(std::string_view bytes) {
    DocumentTables tables;
    return faultOf([&] { ParseOldDataFile(bytes, PointText(), tables); });
}

} // namespace

TEST(DataFile, WritesTheGoldenFile) {
    EXPECT_TRUE(matchesGolden(ComposeDataFile(SheetOf(Pots), "  Length = 2, width ", PointText()),
                              "files/sheet.mdt"));
}

TEST(DataFile, WritesTheGoldenFileOfACommaLocaleInItsCodePage) {
    const SheetTable sheet = SheetOf(
        {{"Record Name", "Długość", "Źródło"}, {"Łódź", "1", "-2,5"}, {"Świdnica", "N/A", "1234,5678"}});
    EXPECT_TRUE(matchesGolden(ComposeDataFile(sheet, "Żółw i gęś", CommaText()), "files/sheet_comma.mdt"));
}

TEST(DataFile, ReadsTheGoldenFile) {
    DocumentTables tables;
    EXPECT_EQ(ParseDataFile(golden("sheet.mdt"), PointText(), tables), "Length = 2, width");
    EXPECT_EQ(tables.RecordNames.Cells(), (std::vector<std::string>{"First", "Café", "Third one"}));
    EXPECT_EQ(tables.VariableNames.Cells(), (std::vector<std::string>{"Length", "Width"}));
    EXPECT_EQ(tables.DataValues.Rows(), 3);
    EXPECT_EQ(tables.DataValues.Cells(), (std::vector<float>{1.0f, -2.5f, NaValue, 1234.568f, 0.001f, 0.0f}));
}

TEST(DataFile, AFileOfACommaLocaleReadsTheSameUnderAPointLocale) {
    const FileText polishPoint{CodePage(1250), '.', {}};
    const DocumentTables comma = Parsed(golden("sheet_comma.mdt"), CommaText());
    const DocumentTables point = Parsed(golden("sheet_comma.mdt"), polishPoint);
    EXPECT_EQ(comma.DataValues, point.DataValues);
    EXPECT_EQ(point.DataValues.Cells(), (std::vector<float>{1.0f, -2.5f, NaValue, 1234.568f}));
    EXPECT_EQ(point.RecordNames.Cells(), (std::vector<std::string>{"Łódź", "Świdnica"}));
    EXPECT_EQ(Parsed(golden("sheet.mdt"), CommaText()).DataValues, Parsed(golden("sheet.mdt")).DataValues);
}

TEST(DataFile, ADescriptionKeepsItsEqualsSigns) {
    DocumentTables tables;
    EXPECT_EQ(ParseDataFile(with(golden("sheet.mdt"), "Length = 2, width", " a=b==c "), PointText(), tables),
              "a=b==c");
}

TEST(DataFile, ACellThatIsNoNumberGivesAnEmptyFieldAndThatFileFailsOnReading) {
    const SheetTable sheet = SheetOf({{"Record Name", "A", "B", "C"}, {"R", "abc", "1e39", "2"}});
    const std::string bytes = ComposeDataFile(sheet, "", PointText());
    EXPECT_TRUE(bytes.ends_with("\r\n;;2.000\r\n")) << bytes;
    EXPECT_EQ(FaultOfData(bytes), "Line 17: \"\" is not a number. File: f");
}

TEST(DataFile, EmptyFieldsReadAsEmptyCellsWhereTheyAreTaken) {
    const SheetTable sheet =
        SheetOf({{"Record Name", "A", "B"}, {"R", "", " "}, {"S", "N/A", "x"}, {"T", "1", ""}});
    const std::string bytes = ComposeDataFile(sheet, "", PointText());
    for (const std::string& whole :
         {bytes, bytes.substr(0, bytes.size() - 2)}) { // with a last line end, without
        DocumentTables tables;
        ParseDataFile(whole, PointText(), tables, EmptyFields::Taken);
        const auto& values = tables.DataValues;
        for (const auto& [row, column] : {std::pair(1, 1), std::pair(1, 2), std::pair(2, 2), std::pair(3, 2)})
            EXPECT_TRUE(IsEmptyValue(values(row, column))) << row << "," << column;
        EXPECT_EQ(values(2, 1), NaValue);
        EXPECT_EQ(values(3, 1), 1.0f);
    }
}

TEST(DataFile, WhatIsNoNumberIsAFaultWhereEmptyFieldsAreTakenToo) {
    DocumentTables tables;
    const std::string bytes = with(golden("sheet.mdt"), "N/A", "n/a");
    EXPECT_EQ(faultOf([&] { ParseDataFile(bytes, PointText(), tables, EmptyFields::Taken); }),
              "Line 19: \"n/a\" is not a number. File: f");
    EXPECT_EQ(faultOf([&] {
                  ParseDataFile(with(golden("sheet.mdt"), ";0.000\r\n", "\r\n"), PointText(), tables,
                                EmptyFields::Taken);
              }),
              "Line 20: 1 fields stand where 2 are needed. File: f");
}

TEST(DataFile, AValueReadsBackWithThreeDecimals) {
    const SheetTable sheet = SheetOf({{"Record Name", "A"}, {"R", "1234.5678"}});
    EXPECT_EQ(Parsed(ComposeDataFile(sheet, "", PointText())).DataValues(1, 1), 1234.568f);
}

TEST(DataFile, ACellWithTheOtherSeparatorIsANumberToo) {
    const SheetTable sheet = SheetOf({{"Record Name", "A"}, {"R", "1,5"}});
    EXPECT_TRUE(ComposeDataFile(sheet, "", PointText()).ends_with("\r\n1.500\r\n"));
}

TEST(DataFile, WritesLargeNumbersWithoutGroupingOrExponent) {
    const SheetTable sheet = SheetOf({{"Record Name", "A", "B"}, {"R", "12345678", "-1e10"}});
    EXPECT_TRUE(ComposeDataFile(sheet, "", PointText()).ends_with("\r\n12345678.000;-10000000000.000\r\n"));
}

TEST(DataFile, ACharacterOutsideTheCodePageBecomesAQuestionMark) {
    const SheetTable sheet = SheetOf({{"Record Name", "Ж"}, {"Łódź", "1"}});
    const std::string bytes = ComposeDataFile(sheet, "日本", PointText());
    EXPECT_NE(bytes.find("Description=??\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\r\n?\xF3"
                         "d?\r\n"),
              std::string::npos);
}

TEST(DataFile, ADescriptionOfSeveralLinesStaysOneLine) {
    const SheetTable sheet = SheetOf({{"Record Name", "A"}, {"R\nS", "1"}});
    DocumentTables tables;
    EXPECT_EQ(
        ParseDataFile(ComposeDataFile(sheet, "one\r\ntwo\nthree\rfour", PointText()), PointText(), tables),
        "one two three four");
    EXPECT_EQ(tables.RecordNames(1), "R S");
}

TEST(DataFile, ASheetWithoutVariablesIsWrittenAndFailsAtSizing) {
    const SheetTable sheet = SheetOf({{"Record Name"}, {"R"}});
    const std::string bytes = ComposeDataFile(sheet, "", PointText());
    EXPECT_NE(bytes.find("VarCount=0\r\n"), std::string::npos);
    EXPECT_EQ(FaultOfData(bytes), "Line 6: the count 0 is below 1. File: f");
}

TEST(DataFile, TheFirstLineTellsTheFormats) {
    EXPECT_TRUE(IsCurrentDataFile("Dorvan DATA 3.3\r\n"));
    EXPECT_TRUE(IsCurrentDataFile("Dorvan DATA\n"));
    EXPECT_TRUE(IsCurrentDataFile("Dorvan DATAxyz 99"));
    EXPECT_FALSE(IsCurrentDataFile("Dorvan DAT\r\nA"));
    EXPECT_FALSE(IsCurrentDataFile("dorvan data 3.3"));
    EXPECT_FALSE(IsCurrentDataFile(" Dorvan DATA 3.3"));
    EXPECT_FALSE(IsCurrentDataFile("\xEF\xBB\xBF"
                                   "Dorvan DATA 3.3"));
    EXPECT_FALSE(IsCurrentDataFile("\r\nDorvan DATA"));
    EXPECT_EQ(faultOf([] { IsCurrentDataFile(""); }),
              "Line 1: the line is missing, the file ends before it. File: f");
}

TEST(DataFile, TheVersionIsNotLookedAt) {
    EXPECT_EQ(Parsed(with(golden("sheet.mdt"), "Dorvan DATA 3.3", "Dorvan DATA")).RecordNames.Count(), 3);
    EXPECT_EQ(Parsed(with(golden("sheet.mdt"), "DATA 3.3", "DATA 99.1 beta")).RecordNames.Count(), 3);
}

TEST(DataFile, TheLinesBeforeTheSectionsAreNotLookedAt) {
    EXPECT_EQ(Parsed(with(golden("sheet.mdt"), "\r\n\r\n[", "\r\nremark\r\n[")).DataValues,
              Parsed(golden("sheet.mdt")).DataValues);
}

TEST(DataFile, LoneLineFeedsEndLinesToo) {
    EXPECT_EQ(Parsed(with(golden("sheet.mdt"), "\r\n", "\n")).DataValues,
              Parsed(golden("sheet.mdt")).DataValues);
}

TEST(DataFile, FieldsBeyondTheVariablesAndLinesBeyondTheRecordsAreIgnored) {
    EXPECT_EQ(Parsed(with(golden("sheet.mdt"), "0.001;0.000", "0.001;0.000;abc;") + "more\r\n").DataValues,
              Parsed(golden("sheet.mdt")).DataValues);
}

TEST(DataFile, ADataLineWithTooFewFieldsIsAFault) {
    EXPECT_EQ(FaultOfData(with(golden("sheet.mdt"), "1.000;-2.500", "1.000xx-2.500")),
              "Line 18: \"1.000xx-2.500\" is not a number. File: f");
    EXPECT_EQ(FaultOfData(with(golden("sheet.mdt"), "1.000;-2.500", "1.000")),
              "Line 18: 1 fields stand where 2 are needed. File: f");
}

TEST(DataFile, AFaultKeepsWhatWasReadSoFar) {
    DocumentTables tables;
    tables.RecordNames = Names(9);
    tables.VariableNames = Names(9);
    const std::string bytes = with(golden("sheet.mdt"), "N/A;1234.568", "7;x");
    EXPECT_EQ(faultOf([&] { ParseDataFile(bytes, PointText(), tables); }),
              "Line 19: \"x\" is not a number. File: f");
    EXPECT_EQ(tables.RecordNames.Count(), 3);
    EXPECT_EQ(tables.VariableNames.Count(), 2);
    EXPECT_EQ(tables.DataValues.Cells(), (std::vector<float>{1, -2.5f, 7, 0, 0, 0}));
}

TEST(DataFile, AFaultLeavesThePartsThatWereNotReached) {
    DocumentTables tables;
    tables.VariableNames = Names(9);
    const std::string bytes = with(golden("sheet.mdt"), "[VARIABLE_LABEL]", "[VARIABLE]");
    EXPECT_EQ(faultOf([&] { ParseDataFile(bytes, PointText(), tables); }),
              "Error in VARIABLE_LABEL section of file: f");
    EXPECT_EQ(tables.RecordNames.Count(), 3);
    EXPECT_EQ(tables.VariableNames.Count(), 9);
}

TEST(DataFile, ClaimsOfASmallFileCostNoMemory) {
    const std::string bytes = "Dorvan DATA 3.3\n\n[HEADER]\nDescription=\nRecCount=32767\nVarCount=32767\n\n"
                              "[RECORD_LABEL]\na\nb\n";
    forgetAllocations();
    EXPECT_EQ(FaultOfData(bytes), "Line 11: the line is missing, the file ends before it. File: f");
    EXPECT_LT(largestAllocation(), 4096u);
}

TEST(DataFile, ValuesAreNotSizedByCountsThatTheFileDoesNotFill) {
    const std::string labels(32767, '\n');
    const std::string bytes = "Dorvan DATA 3.3\n\n[HEADER]\nDescription=\nRecCount=32767\nVarCount=32767\n\n"
                              "[RECORD_LABEL]\n" +
                              labels + "\n[VARIABLE_LABEL]\n" + labels + "\n[DATA]\n1;2\n";
    forgetAllocations();
    EXPECT_EQ(FaultOfData(bytes),
              "Line 65546: 32767 lines of 32767 values do not fit into the 4 bytes that follow. File: f");
    EXPECT_LT(largestAllocation(), 32 * bytes.size());
}

TEST(OlderDataFile, ReadsTheGoldenFile) {
    DocumentTables tables;
    EXPECT_EQ(ParseOldDataFile(golden("older_sheet.mdt"), PointText(), tables), "Old pots");
    EXPECT_EQ(tables.RecordNames.Cells(), (std::vector<std::string>{"First", "Café", "A name of  15 c"}));
    EXPECT_EQ(tables.DataValues.Cells(), (std::vector<float>{1.0f, -2.5f, NaValue, 1234.5678f, 0.1f, 0.0f}));
}

TEST(OlderDataFile, KeepsTheSpacesOfTheVariablesLabels) {
    DocumentTables tables;
    ParseOldDataFile(golden("older_sheet.mdt"), PointText(), tables);
    EXPECT_EQ(tables.VariableNames.Cells(), (std::vector<std::string>{"Length  ", " Width  "}));
}

TEST(OlderDataFile, ReadsTextInTheCodePage) {
    const std::string bytes =
        OlderHeader(1, 1).text("\xAF", 8).text("\xA3\xF3\x64\x9F", 15).float32(1).bytes();
    DocumentTables tables;
    ParseOldDataFile(bytes, CommaText(), tables);
    EXPECT_EQ(tables.RecordNames(1), "Łódź");
    EXPECT_EQ(tables.VariableNames(1), "Ż       ");
}

TEST(OlderDataFile, CountsBelowOneAreFaults) {
    EXPECT_EQ(FaultOfOlder(OlderHeader(0, 1).bytes()), "Byte 51: the count 0 is below 1. File: f");
    EXPECT_EQ(FaultOfOlder(OlderHeader(-1, 1).bytes()), "Byte 51: the count -1 is below 1. File: f");
    EXPECT_EQ(FaultOfOlder(OlderHeader(1, 0).bytes()), "Byte 55: the count 0 is below 1. File: f");
    EXPECT_EQ(FaultOfOlder(OlderHeader(1, -32768).bytes()), "Byte 55: the count -32768 is below 1. File: f");
}

TEST(OlderDataFile, PositionsPastTheSixteenBitRangeAreAFault) {
    // One variable: records start at 67 and take 19 bytes, so value 1722 stands at 67 + 1721 * 19 + 15.
    OlderBytes fits = OlderHeader(1, 1721).text("A", 8);
    for (int record = 1; record <= 1721; ++record) fits.text("R", 15).float32(1);
    DocumentTables tables;
    ParseOldDataFile(fits.bytes(), PointText(), tables);
    EXPECT_EQ(tables.RecordNames.Count(), 1721);

    OlderBytes tooLong = OlderHeader(1, 1722).text("A", 8);
    for (int record = 1; record <= 1722; ++record) tooLong.text("R", 15).float32(1);
    EXPECT_EQ(FaultOfOlder(tooLong.bytes()), "Byte 32781: positions past 32767 are out of range. File: f");
}

TEST(OlderDataFile, ClaimsOfASmallFileCostNoMemory) {
    forgetAllocations();
    EXPECT_EQ(FaultOfOlder(OlderHeader(32767, 32767).bytes()),
              "Byte 4295458852: positions past 32767 are out of range. File: f");
    EXPECT_EQ(FaultOfOlder(OlderHeader(1, 1721).bytes()),
              "Byte 59: the file ends, its counts ask for 32765 bytes. File: f");
    EXPECT_LT(largestAllocation(), 4096u);
}

TEST(OlderDataFile, AValueThatIsNotFiniteIsAFault) {
    for (const float value :
         {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()})
        EXPECT_EQ(FaultOfOlder(OlderHeader(1, 1).text("A", 8).text("R", 15).float32(value).bytes()),
                  "Byte 82: the value is not a finite number. File: f");
}

} // namespace dorvan::test
