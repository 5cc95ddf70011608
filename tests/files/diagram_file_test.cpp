#include "files/allocations.h"
#include "files/diagram_file.h"
#include "files/faults.h"
#include "files/files_session.h"
#include "files/older_bytes.h"
#include "support/expect_failure.h"

#include <algorithm>
#include <limits>

namespace dorvan::test {

namespace {

template <class T> Array2<T> TableOf(std::int32_t rows, std::int32_t columns, const std::vector<T>& cells) {
    Array2<T> table(rows, columns);
    table.Cells() = cells;
    return table;
}

template <class T> Array1<T> ListOf(const std::vector<T>& cells) {
    Array1<T> list;
    list.Cells() = cells;
    return list;
}

// The document of the golden file.
DiagramDocument Pots() {
    DiagramDocument document;
    document.RecCount = 3;
    document.VarCount = 2;
    document.DistType = 1;
    document.DiagType = 2;
    document.Par_P = 3;
    document.Par_R = 4;
    document.RecordNames = ListOf<std::string>({" Third one ", "Café", "First"});
    document.VariableNames = ListOf<std::string>({"Length ", " Width"});
    document.Data = TableOf<float>(3, 2, {1, -2.5f, NaValue, 1234.5678f, 0.0005001f, -0.0001f});
    document.Matrix =
        TableOf<float>(3, 3, {0, 0.1234567f, 12345.678f, 0.1234567f, 0, 2.5f, 12345.678f, 2.5f, 0});
    document.SectionLimits = ListOf<float>({0.5f, 1.5f, 2.5f, 3.5f});
    return document;
}

DiagramDocument WithoutData() {
    DiagramDocument document;
    document.RecCount = 2;
    document.NoData = true;
    document.DistType = 6;
    document.DiagType = 3;
    document.Par_P = 3;
    document.Par_R = 4;
    document.RecordNames = ListOf<std::string>({"First", "Second"});
    document.Matrix = TableOf<float>(2, 2, {0, 1, 1, 0});
    document.SectionLimits = ListOf<float>({0.5f, 1.5f, 2.5f, 3.5f});
    return document;
}

struct ParsedDiagram {
    DocumentTables Tables;
    DiagramHeader Header;
};

ParsedDiagram Parsed(std::string_view bytes, const FileText& text = PointText()) {
    ParsedDiagram parsed;
    parsed.Header = ParseDiagramFile(bytes, text, parsed.Tables);
    return parsed;
}

ParsedDiagram ParsedOlder(std::string_view bytes, const FileText& text = PointText()) {
    ParsedDiagram parsed;
    parsed.Header = ParseOldDiagramFile(bytes, text, parsed.Tables);
    return parsed;
}

std::string FaultOfDiagram(std::string_view bytes) {
    return faultOf([&] { Parsed(bytes); });
}

std::string FaultOfOlder(std::string_view bytes) {
    return faultOf([&] { ParsedOlder(bytes); });
}

OlderBytes OlderHeader(int variables, int records) {
    OlderBytes bytes;
    return bytes.text("Old", 50).int16(variables).int16(0).int16(records).int16(0).floats({1, 2, 3, 4});
}

} // namespace

TEST(DiagramFile, WritesTheGoldenFile) {
    EXPECT_TRUE(
        matchesGolden(ComposeDiagramFile(Pots(), "  Pots, bowls, jugs ", PointText()), "files/diagram.dgr"));
}

TEST(DiagramFile, WritesTheGoldenFileOfADiagramWithoutData) {
    EXPECT_TRUE(matchesGolden(ComposeDiagramFile(WithoutData(), "From a matrix", PointText()),
                              "files/diagram_without_data.dgr"));
}

TEST(DiagramFile, WritesTheGoldenFileOfACommaLocaleInItsCodePage) {
    DiagramDocument document = WithoutData();
    document.NoData = false;
    document.DistType = 4;
    document.DiagType = 1;
    document.VarCount = 1;
    document.RecordNames = ListOf<std::string>({"Łódź", "Świdnica"});
    document.VariableNames = ListOf<std::string>({"Źródło"});
    document.Data = TableOf<float>(2, 1, {1, NaValue});
    document.Matrix = TableOf<float>(2, 2, {0, 1.25f, 1.25f, 0});
    EXPECT_TRUE(matchesGolden(ComposeDiagramFile(document, "Gęś", CommaText()), "files/diagram_comma.dgr"));
}

TEST(DiagramFile, ReadsTheGoldenFile) {
    const ParsedDiagram parsed = Parsed(golden("diagram.dgr"));
    EXPECT_EQ(parsed.Header.Description, "Pots; bowls; jugs");
    EXPECT_EQ(parsed.Header.Type, 0);
    EXPECT_EQ(parsed.Header.RecCount, 3);
    EXPECT_EQ(parsed.Header.VarCount, 2);
    EXPECT_EQ(parsed.Header.SectionLimits.Cells(), (std::vector<float>{0.5f, 1.5f, 2.5f, 3.5f}));
    EXPECT_EQ(parsed.Header.DistType, 1);
    EXPECT_EQ(parsed.Header.DiagType, 2);
    EXPECT_EQ(parsed.Tables.RecordNames.Cells(), (std::vector<std::string>{"Third one", "Café", "First"}));
    EXPECT_EQ(parsed.Tables.VariableNames.Cells(), (std::vector<std::string>{"Length", "Width"}));
    EXPECT_EQ(parsed.Tables.DataValues.Cells(),
              (std::vector<float>{1, -2.5f, NaValue, 1234.568f, 0.001f, 0}));
    EXPECT_EQ(parsed.Tables.DistanceValues.Cells(),
              (std::vector<float>{0, 0.123f, 12345.678f, 0.123f, 0, 2.5f, 12345.678f, 2.5f, 0}));
}

TEST(DiagramFile, ARecordWithAMissingValueIsMarked) {
    const ParsedDiagram parsed = Parsed(golden("diagram.dgr"));
    EXPECT_EQ(parsed.Tables.RecordHasNA.Cells(), (std::vector<bool>{false, true, false}));
    EXPECT_TRUE(parsed.Tables.DataHasNA);
}

TEST(DiagramFile, TheMarkOfAMissingValueInTheDataIsNeverCleared) {
    DocumentTables tables;
    const std::string bytes = with(golden("diagram.dgr"), "N/A;1234.568", "1;1");
    ParseDiagramFile(bytes, PointText(), tables);
    EXPECT_FALSE(tables.DataHasNA);
    tables.DataHasNA = true;
    tables.RecordHasNA = Flags(3, true);
    ParseDiagramFile(bytes, PointText(), tables);
    EXPECT_TRUE(tables.DataHasNA);
    EXPECT_EQ(tables.RecordHasNA, Flags(3, false));
}

TEST(DiagramFile, ADiagramWithoutDataReadsItsLoneLines) {
    const ParsedDiagram parsed = Parsed(golden("diagram_without_data.dgr"));
    EXPECT_EQ(parsed.Header.Type, 1);
    EXPECT_EQ(parsed.Header.VarCount, 0);
    EXPECT_EQ(parsed.Header.Par_R, 4);
    EXPECT_EQ(parsed.Header.Par_P, 3);
    EXPECT_EQ(parsed.Tables.RecordNames.Cells(), (std::vector<std::string>{"First", "Second"}));
    EXPECT_EQ(parsed.Tables.RecordHasNA, Flags(2, false));
    EXPECT_EQ(parsed.Tables.DistanceValues.Cells(), (std::vector<float>{0, 1, 1, 0}));
    EXPECT_EQ(parsed.Tables.VariableNames.Count(), 0);
    EXPECT_EQ(parsed.Tables.DataValues.Rows(), 0);
}

TEST(DiagramFile, OnlyTheCustomizedMeasureWritesItsParameters) {
    for (std::int16_t measure = 0; measure <= 11; ++measure) {
        DiagramDocument document = Pots();
        document.DistType = measure;
        const std::string bytes = ComposeDiagramFile(document, "", PointText());
        const char* wanted = measure == 6 ? "\r\nPar_R=4\r\nPar_P=3\r\n" : "\r\nPar_R=0\r\nPar_P=0\r\n";
        EXPECT_NE(bytes.find(wanted), std::string::npos) << measure;
    }
}

TEST(DiagramFile, AFileOfACommaLocaleReadsTheSameUnderAPointLocale) {
    for (const char separator : {'.', ','}) {
        const ParsedDiagram parsed = Parsed(golden("diagram_comma.dgr"), {CodePage(1250), separator, {}});
        EXPECT_EQ(parsed.Header.SectionLimits.Cells(), (std::vector<float>{0.5f, 1.5f, 2.5f, 3.5f}));
        EXPECT_EQ(parsed.Tables.DataValues.Cells(), (std::vector<float>{1, NaValue}));
        EXPECT_EQ(parsed.Tables.DistanceValues.Cells(), (std::vector<float>{0, 1.25f, 1.25f, 0}));
        EXPECT_EQ(parsed.Tables.VariableNames(1), "Źródło");
        EXPECT_EQ(parsed.Header.Description, "Gęś");
    }
}

TEST(DiagramFile, ALineWithAnotherKeyLeavesItsValueAtZero) {
    const auto headerWithout = [](std::string_view key) {
        return Parsed(with(golden("diagram_without_data.dgr"), std::string(key) + "=", "Other=")).Header;
    };
    EXPECT_EQ(headerWithout("Description").Description, "");
    EXPECT_EQ(headerWithout("SecLimit_3").SectionLimits.Cells(), (std::vector<float>{0.5f, 1.5f, 0, 3.5f}));
    EXPECT_EQ(headerWithout("DistType").DistType, 0);
    EXPECT_EQ(headerWithout("DiagType").DiagType, 0);
    EXPECT_EQ(headerWithout("Par_R").Par_R, 0);
    EXPECT_EQ(headerWithout("Par_P").Par_P, 0);
    EXPECT_EQ(headerWithout("VarCount").VarCount, 0);
    EXPECT_EQ(Parsed(with(golden("diagram.dgr"), "Type=0\r\nDesc", "Typ=1\r\nDesc")).Header.Type, 0);
}

TEST(DiagramFile, AnotherTypeThanZeroMeansNoData) {
    for (const std::int16_t type : {1, 2, -1, -7, 32767}) {
        const auto parsed = Parsed(
            with(golden("diagram_without_data.dgr"), "Type=1\r\nDesc", fmt::format("Type={}\r\nDesc", type)));
        EXPECT_EQ(parsed.Header.Type, type);
        EXPECT_EQ(parsed.Tables.DataValues.Rows(), 0) << type;
        EXPECT_EQ(parsed.Tables.VariableNames.Count(), 0) << type;
        EXPECT_EQ(parsed.Tables.DistanceValues.Rows(), 2) << type;
        // The sections of data are looked for by the type alone.
        EXPECT_EQ(FaultOfDiagram(with(golden("diagram.dgr"), "Type=0\r\n", fmt::format("Type={}\r\n", type))),
                  "Unexpected symbol in VARIABLE_LABEL section.");
    }
}

TEST(DiagramFile, AHeaderValueThatIsNoNumberIsAFault) {
    const std::string bytes = golden("diagram_without_data.dgr");
    EXPECT_EQ(FaultOfDiagram(with(bytes, "SecLimit_2=1.500", "SecLimit_2=abc")),
              "Line 9: \"abc\" is not a number. File: f");
    EXPECT_EQ(FaultOfDiagram(with(bytes, "DistType=6", "DistType=")),
              "Line 12: DistType \"\" is not a number. File: f");
    EXPECT_EQ(FaultOfDiagram(with(bytes, "Par_P=3", "Par_P=40000")),
              "Line 15: Par_P \"40000\" is out of range. File: f");
    EXPECT_EQ(FaultOfDiagram(with(bytes, "DiagType=3", "DiagType")),
              "Line 13: \"DiagType=\" is missing. File: f");
}

TEST(DiagramFile, CountsBelowOneFailWhereTheySizeSomething) {
    EXPECT_EQ(FaultOfDiagram(with(golden("diagram.dgr"), "RecCount=3", "RecCount=0")),
              "Line 6: the count 0 is below 1. File: f");
    EXPECT_EQ(FaultOfDiagram(with(golden("diagram.dgr"), "VarCount=2", "VarCount=-2")),
              "Line 7: the count -2 is below 1. File: f");
    EXPECT_EQ(FaultOfDiagram(with(golden("diagram_without_data.dgr"), "RecCount=2", "RecCount=-2")),
              "Line 6: the count -2 is below 1. File: f");
}

TEST(DiagramFile, EachSectionIsLookedFor) {
    for (const std::string section : {"HEADER", "RECORD_LABEL", "VARIABLE_LABEL", "DATA", "MATRIX"})
        for (const char* name : {"diagram.dgr", "diagram_without_data.dgr"})
            EXPECT_EQ(FaultOfDiagram(with(golden(name), "[" + section + "]", "[" + section + "S]")),
                      "Error in " + section + " section of file: f");
}

TEST(DiagramFile, ASectionWithoutContentHoldsALoneMark) {
    const std::string bytes = golden("diagram_without_data.dgr");
    EXPECT_EQ(FaultOfDiagram(with(bytes, "[VARIABLE_LABEL]\r\nN/A", "[VARIABLE_LABEL]\r\nA")),
              "Unexpected symbol in VARIABLE_LABEL section.");
    EXPECT_EQ(FaultOfDiagram(with(bytes, "[DATA]\r\nN/A", "[DATA]\r\n1;2")),
              "Unexpected symbol in DATA section.");
    EXPECT_EQ(Parsed(with(bytes, "\r\nN/A", "\r\n  N/A ")).Header.Type, 1);
}

TEST(DiagramFile, AValueOfTheMatrixIsNeverMissing) {
    EXPECT_EQ(FaultOfDiagram(with(golden("diagram.dgr"), "12345.678;2.500", "N/A;2.500")),
              "Line 34: \"N/A\" is not a number. File: f");
}

TEST(DiagramFile, RowsWithTooFewFieldsAreFaults) {
    EXPECT_EQ(FaultOfDiagram(with(golden("diagram.dgr"), "1.000;-2.500", "1.000")),
              "Line 27: 1 fields stand where 2 are needed. File: f");
    EXPECT_EQ(FaultOfDiagram(with(golden("diagram.dgr"), "0.123;0.000;2.500", "0.1230000000;2.500")),
              "Line 33: 2 fields stand where 3 are needed. File: f");
}

TEST(DiagramFile, FieldsBeyondTheCountsAreIgnored) {
    const std::string longer =
        with(with(golden("diagram.dgr"), "1.000;-2.500", "1.000;-2.500;x"), ";2.500;0.000", ";2.500;0;;");
    EXPECT_EQ(Parsed(longer).Tables.DataValues, Parsed(golden("diagram.dgr")).Tables.DataValues);
    EXPECT_EQ(Parsed(longer).Tables.DistanceValues, Parsed(golden("diagram.dgr")).Tables.DistanceValues);
}

TEST(DiagramFile, AFaultKeepsWhatWasReadSoFar) {
    DocumentTables tables;
    const std::string bytes = with(golden("diagram.dgr"), "0.123;0.000;2.500", "0.123;0.000;xxxxx");
    EXPECT_EQ(faultOf([&] { ParseDiagramFile(bytes, PointText(), tables); }),
              "Line 33: \"xxxxx\" is not a number. File: f");
    EXPECT_EQ(tables.RecordNames.Count(), 3);
    EXPECT_EQ(tables.DataValues.Rows(), 3);
    EXPECT_TRUE(tables.RecordHasNA(2));
    EXPECT_EQ(tables.DistanceValues.Cells(),
              (std::vector<float>{0, 0.123f, 12345.678f, 0.123f, 0, 0, 0, 0, 0}));
}

TEST(DiagramFile, WhatIsWrittenReadsBack) {
    for (const auto& text : {PointText(), CommaText()}) {
        const std::string bytes = ComposeDiagramFile(Pots(), "a", text);
        const ParsedDiagram parsed = Parsed(bytes, text);
        DiagramDocument again = Pots();
        again.Data = parsed.Tables.DataValues;
        again.Matrix = parsed.Tables.DistanceValues;
        again.RecordNames = parsed.Tables.RecordNames;
        again.VariableNames = parsed.Tables.VariableNames;
        EXPECT_EQ(ComposeDiagramFile(again, parsed.Header.Description, text), bytes);
    }
}

TEST(DiagramFile, ClaimsCostNoMemory) {
    const std::string bytes = with(golden("diagram_without_data.dgr"), "RecCount=2", "RecCount=32767");
    const auto lines = std::count(bytes.begin(), bytes.end(), '\n');
    forgetAllocations();
    EXPECT_EQ(FaultOfDiagram(bytes),
              fmt::format("Line {}: the line is missing, the file ends before it. File: f", lines + 1));
    EXPECT_LT(largestAllocation(), 40 * bytes.size());
    const std::string longer =
        with(bytes, "[RECORD_LABEL]\r\n", "[RECORD_LABEL]\r\n" + std::string(32765, '\n'));
    forgetAllocations();
    EXPECT_EQ(FaultOfDiagram(longer),
              "Line 32792: 32767 lines of 32767 values do not fit into the 26 bytes that follow. File: f");
    EXPECT_LT(largestAllocation(), 40 * longer.size());
}

TEST(DiagramFile, TheFirstLineTellsTheFormats) {
    EXPECT_TRUE(IsCurrentDiagramFile("Dorvan DIAGRAM"));
    EXPECT_TRUE(IsCurrentDiagramFile("Dorvan DIAGRAM 2.1\r\n"));
    EXPECT_FALSE(IsCurrentDiagramFile("Dorvan DIAGRA"));
    EXPECT_FALSE(IsCurrentDiagramFile("Dorvan MATRIX 3.3"));
}

TEST(DiagramFile, AValueThatIsNotFiniteCannotBeWritten) {
    DiagramDocument document = Pots();
    document.Matrix(1, 2) = std::numeric_limits<float>::infinity();
    EXPECT_FAILURE(Failure::Overflow, ComposeDiagramFile(document, "", PointText()));
}

TEST(OlderDiagramFile, ReadsTheGoldenFile) {
    const ParsedDiagram parsed = ParsedOlder(golden("older_diagram.dgr"));
    EXPECT_EQ(parsed.Header.Description, "Old, pots");
    EXPECT_EQ(parsed.Header.Type, 0);
    EXPECT_EQ(parsed.Header.RecCount, 3);
    EXPECT_EQ(parsed.Header.VarCount, 2);
    EXPECT_EQ(parsed.Header.DistType, 1);
    EXPECT_EQ(parsed.Header.SectionLimits.Cells(), (std::vector<float>{0.5f, 1.5f, 2.5f, 3.5f}));
    EXPECT_EQ(parsed.Tables.RecordNames.Cells(), (std::vector<std::string>{"First", "Café", "Third"}));
    EXPECT_EQ(parsed.Tables.VariableNames.Cells(), (std::vector<std::string>{"Length", "Width"}));
    EXPECT_EQ(parsed.Tables.DataValues.Cells(), (std::vector<float>{0, 0, 3, 4, NaValue, 1}));
    EXPECT_EQ(parsed.Tables.RecordHasNA.Cells(), (std::vector<bool>{false, false, true}));
    EXPECT_TRUE(parsed.Tables.DataHasNA);
}

TEST(OlderDiagramFile, OnlyTheCustomizedMeasureHasParameters) {
    const ParsedDiagram customized = ParsedOlder(golden("older_customized_diagram.dgr"));
    EXPECT_EQ(customized.Header.DistType, 6);
    EXPECT_EQ(customized.Header.Par_R, 2);
    EXPECT_EQ(customized.Header.Par_P, 3);
    const ParsedDiagram other = ParsedOlder(golden("older_diagram.dgr") + std::string("\1\0\1\0", 4));
    EXPECT_EQ(other.Header.Par_R, 0);
    EXPECT_EQ(other.Header.Par_P, 0);
}

TEST(OlderDiagramFile, CountsBelowOneAreFaults) {
    EXPECT_EQ(FaultOfOlder(OlderHeader(0, 1).bytes()), "Byte 51: the count 0 is below 1. File: f");
    EXPECT_EQ(FaultOfOlder(OlderHeader(1, -1).bytes()), "Byte 55: the count -1 is below 1. File: f");
}

TEST(OlderDiagramFile, PositionsPastTheSixteenBitRangeAreAFault) {
    // Records of 19 bytes from 75 on: value 1721 stands at 75 + 1720 * 19 + 15 = 32770.
    const auto bytes = [](int records) {
        OlderBytes all = OlderHeader(1, records);
        for (int record = 1; record <= records; ++record) all.text("R", 15).float32(1);
        return all.text("A", 8).int16(1).bytes();
    };
    EXPECT_EQ(ParsedOlder(bytes(1720)).Tables.RecordNames.Count(), 1720);
    EXPECT_EQ(FaultOfOlder(bytes(1721)), "Byte 32770: positions past 32767 are out of range. File: f");
}

TEST(OlderDiagramFile, LabelsOfVariablesMayStandPastTheSixteenBitRange) {
    // One record of 4000 variables ends below 32767, its 4000 labels do not.
    OlderBytes bytes = OlderHeader(4000, 1).text("R", 15);
    for (int j = 1; j <= 4000; ++j) bytes.float32(static_cast<float>(j));
    for (int j = 1; j <= 4000; ++j) bytes.text("V" + std::to_string(j), 8);
    const ParsedDiagram parsed = ParsedOlder(bytes.int16(4).bytes());
    EXPECT_EQ(parsed.Tables.VariableNames(4000), "V4000");
    EXPECT_EQ(parsed.Header.DistType, 4);
}

TEST(OlderDiagramFile, ClaimsCostNoMemory) {
    forgetAllocations();
    EXPECT_EQ(FaultOfOlder(OlderHeader(32767, 32767).bytes()),
              "Byte 4295196732: positions past 32767 are out of range. File: f");
    EXPECT_EQ(FaultOfOlder(OlderHeader(1, 1720).bytes()),
              "Byte 75: the file ends, its counts ask for 32764 bytes. File: f");
    EXPECT_LT(largestAllocation(), 4096u);
}

TEST(OlderDiagramFile, AValueThatIsNotFiniteIsAFault) {
    const float infinity = std::numeric_limits<float>::infinity();
    const std::string bytes =
        OlderHeader(1, 1).text("R", 15).float32(-infinity).text("V", 8).int16(1).bytes();
    EXPECT_EQ(FaultOfOlder(bytes), "Byte 90: the value is not a finite number. File: f");
    OlderBytes limits;
    limits.text("Old", 50).int16(1).int16(0).int16(1).int16(0).floats({1, infinity, 3, 4});
    EXPECT_EQ(FaultOfOlder(limits.bytes()), "Byte 63: the value is not a finite number. File: f");
}

} // namespace dorvan::test
