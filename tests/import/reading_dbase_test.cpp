#include "files/allocations.h"
#include "files/faults.h"
#include "import/plain_imports.h"
#include "import/reading_dbase.h"

#include <gtest/gtest.h>

namespace dorvan::test {

namespace {

const TextCodes Western{CodePage(1252), false};
const DBaseSelection BirthsAndArea{{"BIRTHS", "AREA"}, "NAME"};

struct ReadTable {
    DBaseRecords Records;
    std::vector<std::int32_t> Unreadable;
};

ReadTable Read(const std::string& file, const DBaseSelection& selection, std::int32_t count,
               const TextCodes& codes = Western, char separator = '.') {
    modDBF table;
    table.OpenDBF(file, codes);
    ReadTable read;
    read.Records = ReadDBaseRecords(table, file, selection, count, separator, codes,
                                    [&](std::int32_t record) { read.Unreadable.push_back(record); });
    return read;
}

std::string Fault(const std::string& file, const DBaseSelection& selection, std::int32_t count) {
    return faultOf([&] { Read(file, selection, count); });
}

using Texts = std::vector<std::string>;
using Floats = std::vector<float>;
using Numbers = std::vector<std::int32_t>;

} // namespace

TEST(ReadDBaseRecords, ReadsTheSelectionInItsOrder) {
    const auto [read, unreadable] = Read(CountiesTable().bytes(), BirthsAndArea, 3);
    EXPECT_EQ(read.Table.VariableNames.Cells(), (Texts{"BIRTHS", "AREA"}));
    EXPECT_EQ(read.Table.RecordNames.Cells(), (Texts{"Ashe", "Alleghany", "Surry"}));
    EXPECT_EQ(read.Table.Values.Cells(), (Floats{1091, 0.114f, 487, 0.061f, 3188, -1.5f}));
    EXPECT_EQ(read.Deleted, 0);
    EXPECT_EQ(unreadable, Numbers{});
}

TEST(ReadDBaseRecords, ReadsNoMoreThanAskedFor) {
    EXPECT_EQ(Read(CountiesTable().bytes(), BirthsAndArea, 2).Records.Table.Values.Rows(), 2);
}

TEST(ReadDBaseRecords, WithoutACharacterFieldTheNamesStayEmpty) {
    const auto read = Read(CountiesTable().bytes(), {{"AREA"}, {}}, 3).Records;
    EXPECT_EQ(read.Table.RecordNames.Cells(), (Texts{"", "", ""}));
}

TEST(ReadDBaseRecords, ADeletedRecordKeepsAZeroRowInItsPlace) {
    DBaseBytes bytes({{"A", 'N', 3}, {"N", 'C', 3}});
    bytes.record({"1", "one"}).record({"x", "two"}, '*').record({"3", "thr"}).record({"4", "fou"}, '*');
    const auto [read, unreadable] = Read(bytes.bytes(), {{"A"}, "N"}, 4);
    EXPECT_EQ(read.Table.Values.Cells(), (Floats{1, 0, 3, 0}));
    EXPECT_EQ(read.Table.RecordNames.Cells(), (Texts{"one", "", "thr", ""}));
    EXPECT_EQ(read.Deleted, 2);
    EXPECT_EQ(unreadable, Numbers{});
}

TEST(ReadDBaseRecords, ARecordWithNeitherMarkIsToldAndStaysAtZero) {
    DBaseBytes bytes({{"A", 'N', 3}, {"N", 'C', 3}});
    bytes.record({"1", "one"}, '+').record({"2", "two"}).record({"x", "thr"}, '\0');
    const auto [read, unreadable] = Read(bytes.bytes(), {{"A"}, "N"}, 3);
    EXPECT_EQ(read.Table.Values.Cells(), (Floats{0, 2, 0}));
    EXPECT_EQ(read.Table.RecordNames.Cells(), (Texts{"", "two", ""}));
    EXPECT_EQ(unreadable, (Numbers{1, 3}));
}

TEST(ReadDBaseRecords, RecordsThatTheFileDoesNotHaveAreUnreadable) {
    const std::string file = CountiesTable().bytes().substr(0, 161 + 26);
    EXPECT_EQ(Read(file, BirthsAndArea, 3).Unreadable, (Numbers{2, 3}));
}

TEST(ReadDBaseRecords, ARecordThatIsCutOffIsAFaultWhereItsNumbersEnd) {
    const std::string file = CountiesTable().bytes().substr(0, 161 + 26 + 24);
    EXPECT_EQ(Fault(file, BirthsAndArea, 3), "Record 2, field BIRTHS: \"   4??\" is not a number. File: f");
}

TEST(ReadDBaseRecords, ARecordSizeOfZeroMakesEveryRecordUnreadable) {
    DBaseBytes bytes = CountiesTable();
    bytes.RecordSize = 0;
    EXPECT_EQ(Read(bytes.bytes(), BirthsAndArea, 3).Unreadable, (Numbers{1, 2, 3}));
}

TEST(ReadDBaseRecords, AFieldThatIsNoNumberIsAFault) {
    DBaseBytes bytes({{"A", 'N', 4}, {"BLANK", 'N', 3}});
    const std::string file = bytes.record({"1", "2"}).record({"****", ""}).bytes();
    EXPECT_EQ(Fault(file, {{"A"}, {}}, 2), "Record 2, field A: \"****\" is not a number. File: f");
    EXPECT_EQ(Fault(file, {{"BLANK"}, {}}, 2), "Record 2, field BLANK: \"   \" is not a number. File: f");
    EXPECT_EQ(Fault(file, {{"C"}, {}}, 2), "Record 1, field C: \"\" is not a number. File: f");
}

TEST(ReadDBaseRecords, AnUnreadableRecordIsToldBeforeAFaultBehindIt) {
    DBaseBytes bytes({{"A", 'N', 3}});
    const std::string file = bytes.record({"1"}, '?').record({"x"}).bytes();
    modDBF table;
    table.OpenDBF(file, Western);
    Numbers unreadable;
    EXPECT_EQ(faultOf([&] {
                  ReadDBaseRecords(table, file, {{"A"}, {}}, 2, '.', Western,
                                   [&](std::int32_t record) { unreadable.push_back(record); });
              }),
              "Record 2, field A: \"  x\" is not a number. File: f");
    EXPECT_EQ(unreadable, Numbers{1});
}

TEST(ReadDBaseRecords, AFieldPastTheRecordIsAFault) {
    DBaseBytes bytes({{"A", 'N', 3}, {"B", 'N', 255}});
    bytes.record({"1", "2"});
    bytes.RecordSize = 4;
    EXPECT_EQ(Read(bytes.bytes(), {{"A"}, {}}, 1).Records.Table.Values(1, 1), 1.0f);
    EXPECT_EQ(Fault(bytes.bytes(), {{"B"}, {}}, 1), "Record 1, field B: \"\" is not a number. File: f");
}

TEST(ReadDBaseRecords, EitherNotationOfDecimalsReads) {
    DBaseBytes bytes({{"A", 'N', 5}});
    const std::string file = bytes.record({"1,25"}).record({"1.25"}).bytes();
    for (const char separator : {'.', ','})
        EXPECT_EQ(Read(file, {{"A"}, {}}, 2, Western, separator).Records.Table.Values.Cells(),
                  (Floats{1.25f, 1.25f}));
}

TEST(ReadDBaseRecords, AVariableIsNamedByTheFirstEightCharacters) {
    DBaseBytes bytes({{"EIGHTLET", 'N', 1}, {"TENLETTERS", 'N', 1}, {"ŻÓŁĆŹ", 'N', 1}});
    const auto read =
        Read(bytes.record({"1", "2", "3"}).bytes(), {{"EIGHTLET", "TENLETTERS", "ŻÓŁĆŹ"}, {}}, 1).Records;
    EXPECT_EQ(read.Table.VariableNames.Cells(), (Texts{"EIGHTLET", "TENLETTE", "ŻÓŁĆŹ"}));
    EXPECT_EQ(read.Table.Values.Cells(), (Floats{1, 2, 3}));
}

TEST(ReadDBaseRecords, TheNamesOfRecordsAreJudgedTogether) {
    const TextCodes polish{CodePage(1250), false};
    DBaseBytes utf8({{"A", 'N', 1}, {"N", 'C', 8}});
    utf8.record({"1", "Łódź"}).record({"2", "Kutno"});
    EXPECT_EQ(Read(utf8.bytes(), {{"A"}, "N"}, 2, polish).Records.Table.RecordNames.Cells(),
              (Texts{"Łódź", "Kutno"}));
    EXPECT_EQ(Read(utf8.bytes(), {{"A"}, "N"}, 2, {CodePage(1250), true}).Records.Table.RecordNames(1),
              CodePage(1250).ToUtf8("Łódź"));
    utf8.record({"3", "\xA3\xF3"});
    EXPECT_EQ(Read(utf8.bytes(), {{"A"}, "N"}, 3, polish).Records.Table.RecordNames.Cells(),
              (Texts{CodePage(1250).ToUtf8("Łódź"), "Kutno", "Łó"}));
}

TEST(ReadDBaseRecords, ACountBelowOneCannotBeSized) {
    EXPECT_EQ(Fault(CountiesTable().bytes(), BirthsAndArea, 0), "The table's count of records is 0. File: f");
    EXPECT_EQ(Fault(CountiesTable().bytes(), BirthsAndArea, -1),
              "The table's count of records is -1. File: f");
}

TEST(ReadDBaseRecords, ReadsTheSameAsByTheNamesOfTheFields) {
    for (const std::uint32_t seed : {1u, 2u, 3u}) {
        const std::string file = plainDBaseTable(20, 9, seed);
        DBaseSelection selection{{}, "NAME"};
        for (int j = 9; j >= 1; --j) selection.Variables.push_back("VAR" + std::to_string(j));
        modDBF dbase;
        dbase.OpenDBF(file, Western);
        const TableOfRecords plain = plainReadDBase(dbase, file, selection, 20);
        const TableOfRecords table = Read(file, selection, 20).Records.Table;
        EXPECT_EQ(table.RecordNames, plain.RecordNames);
        EXPECT_EQ(table.VariableNames, plain.VariableNames);
        EXPECT_EQ(table.Values, plain.Values);
    }
}

} // namespace dorvan::test
