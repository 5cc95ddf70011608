#include "export/excel_file.h"

#include "excel_bytes.h"
#include "numbers/runtime_failure.h"
#include "support/disk_limits.h"
#include "support/golden.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

namespace dorvan::test {
namespace {

namespace fs = std::filesystem;

constexpr int Overflow = 6;
constexpr int TypeMismatch = 13;
constexpr int BadFileNameOrNumber = 52;

const std::string begin = bytesOf({9, 0, 4, 0, 2, 0, 10, 0});
const std::string end = bytesOf({10, 0, 0, 0});

class Excel : public ::testing::Test {
protected:
    TemporaryFolder folder;
    std::string path = folder / "out.xls";
    ExcelFile excel{FileText{CodePage(1250), '.', {}}};

    // What stands before the first record of the caller.
    static std::size_t openingSize() { return goldenBytes("export/golden/empty.xls").size() - end.size(); }

    void create() { ASSERT_EQ(excel.CreateFile(path), 0); }
    // The bytes of the caller's records, without the opening and the end of the file.
    std::string closed() {
        EXPECT_EQ(excel.CloseFile(), 0);
        const std::string bytes = fileBytes(path);
        EXPECT_GE(bytes.size(), openingSize() + end.size());
        EXPECT_EQ(bytes.substr(bytes.size() - end.size()), end);
        return bytes.substr(openingSize(), bytes.size() - openingSize() - end.size());
    }
    int write(std::int32_t type, const CellValue& value) {
        return excel.WriteValue(type, 0, 3, 0, 1, 1, value);
    }
    std::size_t entries() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
    }
};

TEST_F(Excel, StateBeforeAnyFile) {
    EXPECT_EQ(excel.FileNumber, 0);
    EXPECT_EQ(excel.BeginRecord, begin);
    EXPECT_EQ(excel.EndRecord, end);
    EXPECT_EQ(excel.PageBreakCount, 0);
}

TEST_F(Excel, FileWithoutCellsIsTheBeginTheFormatsAndTheEnd) {
    create();
    EXPECT_NE(excel.FileNumber, 0);
    EXPECT_EQ(excel.CloseFile(), 0);
    EXPECT_TRUE(matchesGolden(fileBytes(path), "export/golden/empty.xls"));
    const auto records = excelRecordsOf(fileBytes(path));
    ASSERT_EQ(records.size(), 1u + 1u + 24u + 1u);
    EXPECT_EQ(records.front(), (ExcelRecord{9, bytesOf({2, 0, 10, 0})}));
    EXPECT_EQ(records[1], (ExcelRecord{31, bytesOf({23, 0})}));
    EXPECT_EQ(records.back(), (ExcelRecord{10, ""}));
}

TEST_F(Excel, The24FormatsStandInTheirOrder) {
    create();
    excel.CloseFile();
    const auto records = excelRecordsOf(fileBytes(path));
    const std::vector<std::string> formats = {"General",
                                              "0",
                                              "0.00",
                                              "#,##0",
                                              "#,##0.00",
                                              R"(#,##0\ "$";\-#,##0\ "$")",
                                              R"(#,##0\ "$";[Red]\-#,##0\ "$")",
                                              R"(#,##0.00\ "$";\-#,##0.00\ "$")",
                                              R"(#,##0.00\ "$";[Red]\-#,##0.00\ "$")",
                                              "0%",
                                              "0.00%",
                                              "0.00E+00",
                                              "dd/mm/yy",
                                              R"(dd/\ mmm\ yy)",
                                              R"(dd/\ mmm)",
                                              R"(mmm\ yy)",
                                              R"(h:mm\ AM/PM)",
                                              R"(h:mm:ss\ AM/PM)",
                                              "hh:mm",
                                              "hh:mm:ss",
                                              R"(dd/mm/yy\ hh:mm)",
                                              "##0.0E+0",
                                              "mm:ss",
                                              "@"};
    ASSERT_EQ(records.size(), 2 + formats.size() + 1);
    for (std::size_t place = 0; place < formats.size(); ++place) {
        const std::string content = static_cast<char>(formats[place].size()) + formats[place];
        EXPECT_EQ(records[2 + place], (ExcelRecord{30, content})) << place;
    }
}

TEST_F(Excel, IntegerCell) {
    create();
    EXPECT_EQ(excel.WriteValue(CellType::Integer, 1, 3, 2, 5, 260, -2, 4), 0);
    EXPECT_EQ(closed(), bytesOf({2, 0, 9, 0, 4, 0, 3, 1, 2, 5, 3, 0xFE, 0xFF}));
}

TEST_F(Excel, NumberCell) {
    create();
    EXPECT_EQ(excel.WriteValue(CellType::Number, 0, 3, 0, 1, 2, 1.5), 0);
    EXPECT_EQ(closed(), bytesOf({3, 0, 15, 0, 0, 0, 1, 0, 0, 0, 3, 0, 0, 0, 0, 0, 0, 0xF8, 0x3F}));
}

TEST_F(Excel, TextCellIsInTheCodePage) {
    create();
    EXPECT_EQ(excel.WriteValue(CellType::Text, 0, 1, 0, 2, 1, "Łódź漢"), 0);
    EXPECT_EQ(closed(), bytesOf({4, 0, 13, 0, 1, 0, 0, 0, 0, 0, 1, 5, 0xA3, 0xF3, 'd', 0x9F, '?'}));
}

TEST_F(Excel, EmptyTextIsACellAllTheSame) {
    create();
    EXPECT_EQ(write(CellType::Text, ""), 0);
    EXPECT_EQ(closed(), bytesOf({4, 0, 8, 0, 0, 0, 0, 0, 0, 0, 3, 0}));
}

TEST_F(Excel, OtherTypesWriteNothing) {
    create();
    for (const std::int32_t type : {-1, 3, 70000}) EXPECT_EQ(write(type, 1), 0);
    EXPECT_EQ(closed(), "");
}

TEST_F(Excel, ValuesAreConvertedToTheTypeOfTheCell) {
    create();
    EXPECT_EQ(write(CellType::Integer, 2.5), 0); // ties to even
    EXPECT_EQ(write(CellType::Integer, " 3.5 "), 0);
    EXPECT_EQ(write(CellType::Number, -7), 0);
    EXPECT_EQ(write(CellType::Number, "0.25"), 0);
    EXPECT_EQ(write(CellType::Text, -7), 0);
    EXPECT_EQ(write(CellType::Text, 0.1), 0);
    EXPECT_EQ(write(CellType::Text, 1e15), 0);
    const auto records = excelRecordsOf(closed());
    ASSERT_EQ(records.size(), 7u);
    EXPECT_EQ(records[0].content.substr(7), bytesOf({2, 0}));
    EXPECT_EQ(records[1].content.substr(7), bytesOf({4, 0}));
    EXPECT_EQ(records[2].content.substr(7), bytesOf({0, 0, 0, 0, 0, 0, 0x1C, 0xC0}));
    EXPECT_EQ(records[3].content.substr(7), bytesOf({0, 0, 0, 0, 0, 0, 0xD0, 0x3F}));
    EXPECT_EQ(records[4].content.substr(7), "\2-7");
    EXPECT_EQ(records[5].content.substr(7), "\3"
                                            "0.1");
    EXPECT_EQ(records[6].content.substr(7), "\5"
                                            "1E+15");
}

TEST_F(Excel, ConversionFollowsTheLocale) {
    ExcelFile comma(FileText{CodePage(1250), ',', {}});
    ASSERT_EQ(comma.CreateFile(path), 0);
    EXPECT_EQ(comma.WriteValue(CellType::Number, 0, 3, 0, 1, 1, "1,5"), 0);
    EXPECT_EQ(comma.WriteValue(CellType::Number, 0, 3, 0, 1, 2, "1.5"), TypeMismatch);
    EXPECT_EQ(comma.WriteValue(CellType::Text, 0, 3, 0, 1, 3, 1.5), 0);
    comma.CloseFile();
    const auto records = excelRecordsOf(fileBytes(path));
    ASSERT_EQ(records.size(), 26u + 2u + 1u);
    EXPECT_EQ(records[26].content.substr(7), bytesOf({0, 0, 0, 0, 0, 0, 0xF8, 0x3F}));
    EXPECT_EQ(records[27].content.substr(7), "\3"
                                             "1,5");
}

TEST_F(Excel, ValueThatIsNoNumberWritesNoRecordAndTheNextOneGoesOn) {
    create();
    EXPECT_EQ(write(CellType::Number, "N/A"), TypeMismatch);
    EXPECT_EQ(write(CellType::Number, ""), TypeMismatch);
    EXPECT_EQ(write(CellType::Number, "1e999"), Overflow);
    EXPECT_EQ(write(CellType::Integer, "five"), TypeMismatch);
    EXPECT_EQ(write(CellType::Integer, 32768), Overflow);
    EXPECT_EQ(write(CellType::Integer, -32769.0), Overflow);
    EXPECT_EQ(write(CellType::Integer, 5), 0);
    const auto records = excelRecordsOf(closed());
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].opcode, 2);
}

TEST_F(Excel, TextOfOver255CharactersEndsTheOperation) {
    create();
    const std::string longest(255, 'x');
    EXPECT_EQ(write(CellType::Text, longest), 0);
    EXPECT_EQ(write(CellType::Text, longest + "x"), Overflow);
    std::string polish; // 255 characters, 510 bytes of UTF-8
    for (int i = 0; i < 255; ++i) polish += "ż";
    EXPECT_EQ(write(CellType::Text, polish), 0);
    EXPECT_EQ(excel.SetHeader(longest), 0);
    EXPECT_EQ(excel.SetHeader(longest + "x"), Overflow);
    EXPECT_EQ(excel.SetFooter(longest + "x"), Overflow);
    EXPECT_EQ(excel.SetFont(longest + "x", 10, 0), Overflow);
    const auto records = excelRecordsOf(closed());
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0].content, bytesOf({0, 0, 0, 0, 0, 0, 3, 255}) + longest);
    EXPECT_EQ(records[1].content, bytesOf({0, 0, 0, 0, 0, 0, 3, 255}) + std::string(255, '\xBF'));
    EXPECT_EQ(records[2], (ExcelRecord{20, '\xFF' + longest}));
}

TEST_F(Excel, CellAttributesAreBytes) {
    create();
    EXPECT_EQ(excel.WriteValue(CellType::Integer, 200, 255, 255, 1, 1, 0, 55), 0);
    EXPECT_EQ(excel.WriteValue(CellType::Integer, 200, 3, 0, 1, 1, 0, 56), Overflow);
    EXPECT_EQ(excel.WriteValue(CellType::Integer, 0, 256, 0, 1, 1, 0), Overflow);
    EXPECT_EQ(excel.WriteValue(CellType::Integer, 0, 3, -1, 1, 1, 0), Overflow);
    EXPECT_EQ(excel.WriteValue(CellType::Integer, 2147483647, 3, 0, 1, 1, 0, 2147483647), Overflow);
    EXPECT_EQ(closed(), bytesOf({2, 0, 9, 0, 0, 0, 0, 0, 255, 255, 255, 0, 0}));
}

TEST_F(Excel, RowsAndColumnsAreConverted) {
    EXPECT_EQ(RecordPlace(1), 0);
    EXPECT_EQ(RecordPlace(32767), 32766);
    EXPECT_EQ(RecordPlace(32768), -32768); // without the step from 1 to 0
    EXPECT_EQ(RecordPlace(32769), -32767);
    EXPECT_EQ(RecordPlace(65536), 0);
    EXPECT_EQ(RecordPlace(0), -1);
    EXPECT_EQ(RecordPlace(-32767), -32768);
    EXPECT_THROW(RecordPlace(-32768), RuntimeFailure);
    EXPECT_EQ(RecordPlace(98303), 32767);
    EXPECT_THROW(RecordPlace(98304), RuntimeFailure);
    EXPECT_THROW(RecordPlace(-2147483647 - 1), RuntimeFailure);

    create();
    EXPECT_EQ(excel.WriteValue(CellType::Integer, 0, 0, 0, 0, 32768, 0), 0);
    EXPECT_EQ(excel.WriteValue(CellType::Integer, 0, 0, 0, 98304, 1, 0), Overflow);
    EXPECT_EQ(excel.WriteValue(CellType::Integer, 0, 0, 0, 1, 98304, 0), Overflow);
    EXPECT_EQ(closed(), bytesOf({2, 0, 9, 0, 0xFF, 0xFF, 0, 0x80, 0, 0, 0, 0, 0}));
}

TEST_F(Excel, SettingRecords) {
    create();
    EXPECT_EQ(excel.SetMargin(38, 1.5), 0);
    EXPECT_EQ(closed(), bytesOf({38, 0, 8, 0, 0, 0, 0, 0, 0, 0, 0xF8, 0x3F}));
    create();
    EXPECT_EQ(excel.SetColumnWidth(2, 251, 18), 0);
    EXPECT_EQ(closed(), bytesOf({36, 0, 4, 0, 1, 250, 0, 18}));
    create();
    EXPECT_EQ(excel.SetFont("Arial", 10, 5), 0);
    EXPECT_EQ(closed(), bytesOf({49, 0, 10, 0, 200, 0, 5, 0, 5}) + "Arial");
    create();
    EXPECT_EQ(excel.SetHeader("top"), 0);
    EXPECT_EQ(closed(), bytesOf({20, 0, 4, 0, 3}) + "top");
    create();
    EXPECT_EQ(excel.SetFooter("foot"), 0);
    EXPECT_EQ(closed(), bytesOf({21, 0, 5, 0, 4}) + "foot");
    create();
    EXPECT_EQ(excel.SetFilePassword("hasło"), 0); // as it is given, without a length of its own
    EXPECT_EQ(closed(), bytesOf({47, 0, 5, 0, 'h', 'a', 's', 0xB3, 'o'}));
    create();
    EXPECT_EQ(excel.SetDefaultRowHeight(14), 0);
    EXPECT_EQ(closed(), bytesOf({37, 0, 2, 0, 0x18, 0x01}));
    create();
    EXPECT_EQ(excel.SetRowHeight(3, 14), 0);
    EXPECT_EQ(closed(), bytesOf({8, 0, 16, 0, 2, 0, 0, 0, 0, 1, 0x18, 0x01, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(Excel, FlagsAreOneOrZero) {
    create();
    EXPECT_EQ(excel.PrintGridLines(true), 0);
    EXPECT_EQ(excel.PrintGridLines(false), 0);
    EXPECT_EQ(excel.ProtectSpreadsheet(true), 0);
    EXPECT_EQ(excel.ProtectSpreadsheet(false), 0);
    EXPECT_EQ(closed(),
              bytesOf({43, 0, 2, 0, 1, 0, 43, 0, 2, 0, 0, 0, 18, 0, 2, 0, 1, 0, 18, 0, 2, 0, 0, 0}));
}

TEST_F(Excel, SizesThatDoNotFitEndTheirOperation) {
    create();
    EXPECT_EQ(excel.SetColumnWidth(0, 1, 8), Overflow);
    EXPECT_EQ(excel.SetColumnWidth(1, 0, 8), Overflow);
    EXPECT_EQ(excel.SetColumnWidth(2, 256, 8), Overflow);
    EXPECT_EQ(excel.SetColumnWidth(1, 1, 128), Overflow);
    EXPECT_EQ(excel.SetFont("Arial", 10, 256), Overflow);
    EXPECT_EQ(excel.SetFont("Arial", 1639, 0), Overflow);
    EXPECT_EQ(excel.SetDefaultRowHeight(1639), Overflow);
    EXPECT_EQ(excel.SetRowHeight(1, 1639), Overflow);
    EXPECT_EQ(excel.SetRowHeight(98304, 1), Overflow);
    EXPECT_EQ(excel.SetFilePassword(std::string(32768, 'x')), Overflow);
    EXPECT_EQ(closed(), "");
}

TEST_F(Excel, MKIHoldsTheLowByteFirst) {
    EXPECT_EQ(excel.MKI(0x0102), bytesOf({2, 1}));
    EXPECT_EQ(excel.MKI(-1), bytesOf({0xFF, 0xFF}));
}

TEST_F(Excel, PageBreaksStandSortedBeforeTheEnd) {
    create();
    EXPECT_EQ(excel.InsertHorizPageBreak(9), 0);
    EXPECT_EQ(excel.InsertHorizPageBreak(3), 0);
    EXPECT_EQ(write(CellType::Integer, 1), 0);
    const std::string cell = bytesOf({2, 0, 9, 0, 0, 0, 0, 0, 0, 0, 3, 1, 0});
    EXPECT_EQ(closed(), cell + bytesOf({27, 0, 6, 0, 2, 0, 2, 0, 8, 0}));
    EXPECT_EQ(excel.BreakHeader, bytesOf({27, 0, 6, 0, 2, 0}));
    EXPECT_EQ(excel.PageBreakRows, (std::vector<std::int16_t>{0, 2, 8}));
}

TEST_F(Excel, PageBreaksOfManyRowsRise) {
    create();
    for (const int row : {50, 2, 700, 1, 33, 2}) EXPECT_EQ(excel.InsertHorizPageBreak(row), 0);
    EXPECT_EQ(closed(), bytesOf({27, 0, 14, 0, 6, 0, 0, 0, 1, 0, 1, 0, 32, 0, 49, 0, 0xBB, 2}));
}

// The element that is not written is the lowest, and a row from 32768 up is below 0.
TEST_F(Excel, TheFirstElementTakesPartInTheSort) {
    create();
    EXPECT_EQ(excel.InsertHorizPageBreak(40000), 0);
    EXPECT_EQ(excel.InsertHorizPageBreak(3), 0);
    EXPECT_EQ(closed(), bytesOf({27, 0, 6, 0, 2, 0, 0, 0, 2, 0}));
}

TEST_F(Excel, RowThatDoesNotConvertIsNoPageBreak) {
    create();
    EXPECT_EQ(excel.InsertHorizPageBreak(98304), Overflow);
    EXPECT_EQ(excel.PageBreakCount, 0);
    EXPECT_EQ(closed(), "");
}

TEST_F(Excel, CreateFileForgetsPageBreaks) {
    create();
    excel.InsertHorizPageBreak(5);
    excel.CloseFile();
    create();
    EXPECT_EQ(excel.PageBreakRows, std::vector<std::int16_t>{0});
    EXPECT_EQ(closed(), "");
}

TEST_F(Excel, NothingIsWrittenWithoutAFile) {
    EXPECT_EQ(excel.CloseFile(), 0);
    EXPECT_EQ(write(CellType::Integer, 1), BadFileNameOrNumber);
    EXPECT_EQ(excel.SetMargin(38, 1.5), BadFileNameOrNumber);
    EXPECT_EQ(excel.SetColumnWidth(1, 1, 1), BadFileNameOrNumber);
    EXPECT_EQ(excel.SetFont("Arial", 10, 0), BadFileNameOrNumber);
    EXPECT_EQ(excel.SetHeader(""), BadFileNameOrNumber);
    EXPECT_EQ(excel.SetFooter(""), BadFileNameOrNumber);
    EXPECT_EQ(excel.SetFilePassword(""), BadFileNameOrNumber);
    EXPECT_EQ(excel.PrintGridLines(true), BadFileNameOrNumber);
    EXPECT_EQ(excel.ProtectSpreadsheet(true), BadFileNameOrNumber);
    EXPECT_EQ(excel.WriteDefaultFormats(), BadFileNameOrNumber);
    EXPECT_EQ(excel.SetDefaultRowHeight(1), BadFileNameOrNumber);
    EXPECT_EQ(excel.SetRowHeight(1, 1), BadFileNameOrNumber);
    EXPECT_EQ(entries(), 0u);
    create();
    EXPECT_EQ(closed(), "");
    EXPECT_EQ(write(CellType::Integer, 1), BadFileNameOrNumber); // closed
    EXPECT_EQ(excel.CloseFile(), 0);
    EXPECT_EQ(excel.FileNumber, 0);
}

TEST_F(Excel, ExistingFileGoesAtCreateFileAndTheNewOneComesAtCloseFile) {
    writeFile(path, "what stood there");
    create();
    EXPECT_FALSE(fs::exists(path));
    write(CellType::Integer, 1);
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(excel.CloseFile(), 0);
    EXPECT_EQ(fileBytes(path).substr(0, begin.size()), begin);
    EXPECT_EQ(entries(), 1u);
}

TEST_F(Excel, FileThatNobodyClosesLeavesNothing) {
    {
        ExcelFile unfinished(FileText{CodePage(1252), '.', {}});
        ASSERT_EQ(unfinished.CreateFile(path), 0);
        EXPECT_EQ(entries(), 1u); // beside the target
    }
    EXPECT_EQ(entries(), 0u);
}

TEST_F(Excel, FileThatCannotBeCreatedIsTold) {
    EXPECT_EQ(excel.CreateFile(folder / "none/out.xls"), 76);
    EXPECT_EQ(excel.DiskFailure(), "No such file or directory");
    EXPECT_EQ(excel.FileNumber, 0);
    EXPECT_EQ(excel.CreateFile(folder.path()), 75);
    create();
    EXPECT_EQ(excel.DiskFailure(), "");
    EXPECT_EQ(closed(), "");
}

TEST_F(Excel, FullDiskIsToldAtCloseFile) {
    EXPECT_EQ(excel.CreateFile("/dev/full"), 75); // no regular file
    ASSERT_EQ(excel.CreateFile(path), 0);
    {
        const FileSizeLimit limit(1);
        EXPECT_EQ(excel.CloseFile(), 61);
    }
    EXPECT_EQ(excel.DiskFailure(), "File too large");
    EXPECT_EQ(excel.CloseFile(), 0); // there is no file any more
}

// What a class put in the place of one operation does is seen by the others.
TEST_F(Excel, OperationsAreVirtual) {
    struct Bare : ExcelFile {
        using ExcelFile::ExcelFile;
        int WriteDefaultFormats() override { return 0; }
        std::string MKI(std::int16_t) override { return "ab"; }
    };
    Bare bare(FileText{CodePage(1252), '.', {}});
    ASSERT_EQ(bare.CreateFile(path), 0);
    bare.InsertHorizPageBreak(1);
    EXPECT_EQ(bare.CloseFile(), 0);
    EXPECT_EQ(fileBytes(path), begin + bytesOf({27, 0, 4, 0, 1, 0}) + "ab" + end);
}

} // namespace
} // namespace dorvan::test
