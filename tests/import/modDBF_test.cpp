#include "files/allocations.h"
#include "files/faults.h"
#include "import/dbase_bytes.h"
#include "import/modDBF.h"

#include <gtest/gtest.h>

namespace dorvan::test {

namespace {

using namespace std::string_literals;

const TextCodes Western{CodePage(1252), false};

modDBF Opened(std::string_view file, const TextCodes& codes = Western) {
    modDBF table;
    table.OpenDBF(file, codes);
    return table;
}

int StatusOf(std::string_view file) { return Opened(file).DBStatus; }

// A header alone, of a claimed size.
std::string HeaderOf(int headerSize) {
    DBaseBytes table({});
    table.HeaderSize = headerSize;
    return table.bytes();
}

} // namespace

TEST(modDBF, ReadsHeaderAndFields) {
    const modDBF table = Opened(CountiesTable().bytes());
    EXPECT_EQ(table.DBStatus, 0);
    EXPECT_EQ(table.DBKind, "dBase III");
    EXPECT_EQ(table.DBHeader.Year, 104);
    EXPECT_EQ(table.DBHeader.Month, 3);
    EXPECT_EQ(table.DBHeader.Day, 7);
    EXPECT_EQ(table.DBHeader.RecordCount, 3);
    EXPECT_EQ(table.DBHeader.HeaderSize, 161);
    EXPECT_EQ(table.DBHeader.RecordSize, 26);
    EXPECT_EQ(table.DBFieldCount, 4);
    EXPECT_EQ(table.DBFields.Count(), 4);
    EXPECT_EQ(table.DBFields(2).Name, "NAME");
    EXPECT_EQ(table.DBFields(2).Type, 'C');
    EXPECT_EQ(table.DBFields(2).Length, 10);
}

TEST(modDBF, OffsetsAreSumsOfLengthsNotTheAddressesOfTheFile) {
    const modDBF table = Opened(CountiesTable().bytes());
    EXPECT_EQ(table.DBFields(1).Offset, 2);
    EXPECT_EQ(table.DBFields(2).Offset, 10);
    EXPECT_EQ(table.DBFields(3).Offset, 20);
    EXPECT_EQ(table.DBFields(4).Offset, 21);
}

TEST(modDBF, ATableWithMemoFieldsOpens) {
    DBaseBytes bytes = CountiesTable();
    bytes.Version = 131;
    const modDBF table = Opened(bytes.bytes());
    EXPECT_EQ(table.DBStatus, 0);
    EXPECT_EQ(table.DBKind, "dBase III z polami Memo");
}

TEST(modDBF, AnotherVersionIsStatusThree) {
    for (const int version : {0, 2, 4, 5, 48, 130, 132, 255}) {
        DBaseBytes bytes = CountiesTable();
        bytes.Version = version;
        const modDBF table = Opened(bytes.bytes());
        EXPECT_EQ(table.DBStatus, 3);
        EXPECT_EQ(table.DBKind, "To nie jest plik DBase III!");
        EXPECT_TRUE(table.DBRecord.empty());
    }
}

TEST(modDBF, AFileWithoutAWholeHeaderIsStatusTwo) {
    EXPECT_EQ(StatusOf(""), 2);
    EXPECT_EQ(StatusOf(CountiesTable().bytes().substr(0, 31)), 2);
}

TEST(modDBF, ADescriptorThatCannotBeReadIsStatusSeven) {
    const std::string bytes = CountiesTable().bytes();
    EXPECT_EQ(StatusOf(bytes.substr(0, 32)), 7);
    EXPECT_EQ(StatusOf(bytes.substr(0, 159)), 7);
    EXPECT_EQ(StatusOf(bytes.substr(0, 160)), 0); // the end mark and the records are missed later
}

TEST(modDBF, AHeaderSizeThatDoesNotFitTheFieldsIsStatusFour) {
    DBaseBytes bytes = CountiesTable();
    for (const int size : {160, 162, 150, 175}) {
        bytes.HeaderSize = size;
        EXPECT_EQ(StatusOf(bytes.bytes()), 4) << size;
    }
}

TEST(modDBF, TheFieldCountIsRoundedHalvesToEven) {
    EXPECT_EQ(Opened(HeaderOf(33)).DBStatus, 0);
    EXPECT_EQ(Opened(HeaderOf(32)).DBStatus, 4);
    EXPECT_EQ(Opened(HeaderOf(48)).DBFieldCount, 0);                        // 0.5
    EXPECT_EQ(Opened(HeaderOf(80) + std::string(99, 'x')).DBFieldCount, 2); // 1.5
    EXPECT_EQ(Opened(HeaderOf(49) + std::string(99, 'x')).DBFieldCount, 1);
}

TEST(modDBF, AHeaderBelowItsOwnSizeHasNoFieldsAndNoError) {
    for (const int size : {0, 31, 65535}) { // the last is -1
        const modDBF table = Opened(HeaderOf(size));
        EXPECT_EQ(table.DBStatus, 0);
        EXPECT_EQ(table.DBFieldCount, 0);
        EXPECT_EQ(table.DBFields.Count(), 0);
        EXPECT_EQ(table.DBKind, "");
    }
}

TEST(modDBF, TheStatusesComeInTheOrderOfTheReading) {
    DBaseBytes bytes = CountiesTable();
    bytes.Version = 77;
    bytes.HeaderSize = 162;
    EXPECT_EQ(StatusOf(bytes.bytes()), 4);
    EXPECT_EQ(StatusOf(bytes.bytes().substr(0, 100)), 7);
}

TEST(modDBF, MoreFieldsThanAByteCountsAreAFault) {
    DBaseBytes bytes = CountiesTable();
    bytes.HeaderSize = 32 * 255 + 33;
    EXPECT_EQ(StatusOf(bytes.bytes()), 7);
    bytes.HeaderSize = 32 * 256 + 33;
    EXPECT_EQ(faultOf([&] { Opened(bytes.bytes()); }),
              "Byte 9: the header of 8225 bytes claims 256 fields, more than 255. File: f");
}

TEST(modDBF, ANegativeRecordSizeIsAFault) {
    DBaseBytes bytes = CountiesTable();
    bytes.RecordSize = 65535;
    EXPECT_EQ(faultOf([&] { Opened(bytes.bytes()); }), "Byte 11: the record size -1 is below 0. File: f");
}

TEST(modDBF, NamesEndAtTenCharactersAndLoseTheirPadding) {
    const modDBF table =
        Opened(DBaseBytes({{"TENLETTERS", 'N', 1}, {"ELEVENCHARS", 'N', 1}, {" A B ", 'N', 1}, {"", 'C', 1}})
                   .bytes());
    EXPECT_EQ(table.DBFields(1).Name, "TENLETTERS");
    EXPECT_EQ(table.DBFields(2).Name, "ELEVENCHAR");
    EXPECT_EQ(table.DBFields(3).Name, "A B");
    EXPECT_EQ(table.DBFields(4).Name, "");
}

TEST(modDBF, NamesOfFieldsAreJudgedTogether) {
    const TextCodes polish{CodePage(1250), false};
    EXPECT_EQ(Opened(DBaseBytes({{"GŁĘB", 'N', 1}, {"ŻÓŁW", 'C', 1}}).bytes(), polish).DBFields(1).Name,
              "GŁĘB");
    const modDBF table = Opened(DBaseBytes({{"Ż", 'N', 1}, {"\xAF", 'C', 1}}).bytes(), polish);
    EXPECT_EQ(table.DBFields(1).Name, "Ĺ»");
    EXPECT_EQ(table.DBFields(2).Name, "Ż");
    EXPECT_EQ(Opened(DBaseBytes({{"Ż", 'N', 1}}).bytes(), {CodePage(1250), true}).DBFields(1).Name, "Ĺ»");
}

TEST(modDBF, OpeningAgainForgetsTheTableBefore) {
    modDBF table = Opened(CountiesTable().bytes());
    table.OpenDBF("", Western);
    EXPECT_EQ(table.DBStatus, 2);
    EXPECT_EQ(table.DBFields.Count(), 0);
    EXPECT_EQ(table.DBFieldCount, 0);
    table.OpenDBF(CountiesTable().bytes(), Western);
    EXPECT_EQ(table.DBStatus, 0);
}

TEST(modDBF, TheRecordBufferStartsAsSpaces) {
    EXPECT_EQ(Opened(CountiesTable().bytes()).DBRecord, std::string(26, ' '));
}

TEST(modDBF, ReadsRecordsAndTheirFields) {
    const std::string file = CountiesTable().bytes();
    modDBF table = Opened(file);
    table.ReadRecord(file, 2);
    EXPECT_EQ(table.DBRecord, "    0.061Alleghany F   487");
    EXPECT_EQ(table.FieldValueByIndex(1), "   0.061");
    EXPECT_EQ(table.FieldValueByIndex(4), "   487");
    EXPECT_EQ(table.FieldValue("NAME"), "Alleghany ");
    EXPECT_EQ(table.FieldValue("  NAME "), "Alleghany ");
    EXPECT_EQ(table.FieldValue("Name"), "");
    EXPECT_EQ(table.FieldValue("NAM"), "");
    EXPECT_EQ(table.FieldValue(""), "");
}

TEST(modDBF, TheFirstFieldOfANameWins) {
    DBaseBytes bytes({{"A", 'N', 2}, {"A", 'N', 2}});
    const std::string file = bytes.record({"1", "2"}).bytes();
    modDBF table = Opened(file);
    table.ReadRecord(file, 1);
    EXPECT_EQ(table.FieldValue("A"), " 1");
    EXPECT_EQ(table.FieldIndex("A"), 1);
    EXPECT_EQ(table.FieldIndex("B"), 0);
}

TEST(modDBF, AFieldPastTheRecordHasWhatTheRecordHas) {
    DBaseBytes bytes({{"A", 'N', 3}, {"B", 'N', 3}, {"C", 'N', 3}});
    bytes.record({"123", "456", "789"});
    bytes.RecordSize = 6;
    const std::string file = bytes.bytes();
    modDBF table = Opened(file);
    table.ReadRecord(file, 1);
    EXPECT_EQ(table.FieldValue("A"), "123");
    EXPECT_EQ(table.FieldValue("B"), "45");
    EXPECT_EQ(table.FieldValue("C"), "");
}

TEST(modDBF, AShortFileReadsAsBlankRecords) {
    const std::string file = CountiesTable().bytes().substr(0, 161 + 26 + 10);
    modDBF table = Opened(file);
    table.ReadRecord(file, 2);
    EXPECT_EQ(table.DBRecord, "    0.061A"s + std::string(16, '\0'));
    table.ReadRecord(file, 3);
    EXPECT_EQ(table.DBRecord, std::string(26, '\0'));
    table.ReadRecord(file, 2'147'483'647);
    EXPECT_EQ(table.DBRecord, std::string(26, '\0'));
}

TEST(modDBF, ClaimsOfASmallFileCostNoMemory) {
    DBaseBytes bytes = CountiesTable();
    bytes.RecordCount = 0xFFFFFFFF;
    bytes.HeaderSize = 32 * 255 + 33;
    bytes.RecordSize = 32767;
    const std::string file = bytes.bytes();
    forgetAllocations();
    EXPECT_EQ(StatusOf(file), 7);
    EXPECT_LT(largestAllocation(), 4096u);
}

TEST(CleanName, CutsSpacesAndDropsNuls) {
    EXPECT_EQ(CleanName("  A B \0\0"s), "A B ");
    EXPECT_EQ(CleanName("A\0B\0 "s), "AB");
    EXPECT_EQ(CleanName(" \0 "s), "");
    EXPECT_EQ(CleanName(""), "");
}

} // namespace dorvan::test
