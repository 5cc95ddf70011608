#include "export/excel_export.h"

#include "excel_bytes.h"
#include "export_session.h"
#include "files/disk.h"

#include <bit>
#include <filesystem>

namespace dorvan::test {
namespace {

namespace fs = std::filesystem;

std::string place(int row, int column) { return bytesOf({row % 256, row / 256, column % 256, column / 256}); }

ExcelRecord text(int row, int column, const std::string& bytes) {
    return {4, place(row, column) + bytesOf({0, 0, 1, int(bytes.size())}) + bytes};
}

ExcelRecord number(int row, int column, double value) {
    std::string bytes;
    for (int shift = 0; shift < 64; shift += 8)
        bytes += static_cast<char>(std::bit_cast<std::uint64_t>(value) >> shift);
    return {3, place(row, column) + bytesOf({0, 0, 3}) + bytes};
}

ExcelRecord integer(int row, int column, int value) {
    return {2, place(row, column) + bytesOf({0, 0, 3, value, 0})};
}

ExcelRecord width(int first, int last, int characters) { return {36, bytesOf({first, last, 0, characters})}; }

class ToExcel : public ExportSession {
protected:
    const FileRequest request{.Title = "Dorvan - Export to Excel",
                              .Filters = {{"xls file (*.xls)", "*.xls"}},
                              .Extension = "",
                              .StartFolder = session.AppPath};

    template <class Export> std::vector<ExcelRecord> exported(const Export& act) {
        files.paths.push_back(target);
        act();
        EXPECT_EQ(files.requests.back(), request);
        return excelRecordsOf(fileBytes(target));
    }

    // What comes behind the formats and the settings that all documents share.
    static std::vector<ExcelRecord> contentOf(const std::vector<ExcelRecord>& records) {
        constexpr std::size_t Formats = 26;
        const std::string margin = bytesOf({0, 0, 0, 0, 0, 0, 0xF8, 0x3F});
        const std::string face = bytesOf({11}) + "Courier New";
        const std::vector<ExcelRecord> settings = {{43, bytesOf({1, 0})},
                                                   {40, margin},
                                                   {38, margin},
                                                   {39, margin},
                                                   {41, margin},
                                                   {37, bytesOf({0x18, 1})},
                                                   {49, bytesOf({200, 0, 0, 0}) + face},
                                                   {49, bytesOf({200, 0, 1, 0}) + face},
                                                   {49, bytesOf({200, 0, 5, 0}) + face},
                                                   {49, bytesOf({200, 0, 3, 0}) + face},
                                                   width(0, 0, 18)};
        const std::size_t opening = Formats + settings.size();
        if (records.size() <= opening || records.back() != ExcelRecord{10, ""}) {
            ADD_FAILURE() << records.size() << " records";
            return {};
        }
        const auto from = records.begin() + Formats;
        EXPECT_EQ(std::vector(from, from + std::ptrdiff_t(settings.size())), settings);
        return {records.begin() + std::ptrdiff_t(opening), records.end() - 1};
    }
};

TEST_F(ToExcel, Sheet) {
    OpenSmallSheet();
    signals.cursors.clear();
    const auto records = exported([&] { ExportDataToExcel(session); });
    EXPECT_EQ(contentOf(records),
              (std::vector<ExcelRecord>{width(1, 3, 8), text(0, 0, "Record Name"), text(0, 1, " VAR  1"),
                                        text(0, 2, "Width"), text(0, 3, "Depth "), text(1, 0, "r1"),
                                        number(1, 1, 1.0), number(1, 2, 2.5), text(2, 0, "r2"),
                                        number(2, 1, -4.0), number(2, 2, 0.0), number(2, 3, 1234.567)}));
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
    EXPECT_TRUE(matchesGolden(fileBytes(target), "export/golden/sheet.xls"));
}

TEST_F(ToExcel, Matrix) {
    session.codePage = CodePage(1250);
    auto& window = OpenMatrix(SmallMatrix());
    signals.cursors.clear();
    const auto records = exported([&] { window.ExportMatrixToExcel(); });
    EXPECT_EQ(contentOf(records),
              (std::vector<ExcelRecord>{width(1, 1, 8),
                                        text(0, 0,
                                             "\xA3\xF3"
                                             "d\x9F"),
                                        number(0, 1, 0), number(0, 2, 1.234568E-05), text(1, 0, "b;c"),
                                        number(1, 1, 1.234568E-05), number(1, 2, 0)}));
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
    EXPECT_TRUE(matchesGolden(fileBytes(target), "export/golden/matrix.xls"));
}

TEST_F(ToExcel, Diagram) {
    auto& window = OpenDiagram(SampleDocument(3)); // distances 12, 13 and 23; limits 1, 13, 23, 30
    signals.cursors.clear();
    const auto records = exported([&] { window.ExportDiagramToExcel(); });
    EXPECT_EQ(contentOf(records),
              (std::vector<ExcelRecord>{width(1, 3, 3), text(0, 0, "A"), integer(0, 1, 5), integer(0, 2, 4),
                                        integer(0, 3, 3), text(1, 0, "B"), integer(1, 1, 4), integer(1, 2, 5),
                                        integer(1, 3, 2), text(2, 0, "C"), integer(2, 1, 3), integer(2, 2, 2),
                                        integer(2, 3, 5)}));
    EXPECT_TRUE(signals.cursors.empty()); // no wait cursor here
    EXPECT_TRUE(matchesGolden(fileBytes(target), "export/golden/diagram.xls"));
}

TEST_F(ToExcel, DiagramGoesOutInItsCurrentOrder) {
    auto& window = OpenDiagram(SampleDocument(3));
    window.Siatka.SetCurrent(1, 2);
    window.SelectThisRow();
    window.EndRow();
    const auto content = contentOf(exported([&] { window.ExportDiagramToExcel(); }));
    ASSERT_EQ(content.size(), 13u);
    EXPECT_EQ(content[1], text(0, 0, "B"));
    EXPECT_EQ(content[3], integer(0, 2, 2)); // B and C
    EXPECT_EQ(content[9], text(2, 0, "A"));
}

TEST_F(ToExcel, DiagramOf250RecordsKeepsItsWidths) {
    auto& window = OpenDiagram(SampleDocument(250));
    const auto content = contentOf(exported([&] { window.ExportDiagramToExcel(); }));
    ASSERT_EQ(content.size(), 1u + 250u * 251u);
    EXPECT_EQ(content[0], width(1, 250, 3));
    EXPECT_EQ(content.back(), integer(249, 250, 5));
}

// The width of the columns does not fit its bytes then, and is left out; the cells are not.
TEST_F(ToExcel, SheetOf300VariablesKeepsItsCells) {
    OpenSheet(1, 300);
    const auto content = contentOf(exported([&] { ExportDataToExcel(session); }));
    ASSERT_EQ(content.size(), 301u + 301u);
    EXPECT_EQ(content.back(), number(1, 300, 1));
}

TEST_F(ToExcel, TextOfOver255CharactersLeavesItsCellEmpty) {
    auto& sheet = OpenSmallSheet();
    sheet.Grid1.SetText(1, 1, std::string(255, 'a'));
    sheet.Grid1.SetText(2, 1, std::string(256, 'a'));
    const auto content = contentOf(exported([&] { ExportDataToExcel(session); }));
    ASSERT_EQ(content.size(), 11u);
    EXPECT_EQ(content[5], text(1, 0, std::string(255, 'a')));
    EXPECT_EQ(content[8], number(2, 1, -4.0));
}

TEST_F(ToExcel, NumbersAreReadInTheLocale) {
    auto& sheet = OpenSmallSheet();
    session.DecimalSeparator = ',';
    sheet.Grid1.SetText(1, 2, "1,250");
    const auto content = contentOf(exported([&] { ExportDataToExcel(session); }));
    EXPECT_EQ(content,
              (std::vector<ExcelRecord>{width(1, 3, 8), text(0, 0, "Record Name"), text(0, 1, " VAR  1"),
                                        text(0, 2, "Width"), text(0, 3, "Depth "), text(1, 0, "r1"),
                                        number(1, 1, 1.25), text(2, 0, "r2")}));
}

TEST_F(ToExcel, NothingHappensWithoutAFile) {
    auto& diagram = OpenDiagram(SampleDocument(3));
    auto& matrix = OpenMatrix(SmallMatrix());
    OpenSmallSheet();
    signals.cursors.clear();
    files.paths = {"", "", ""};
    ExportDataToExcel(session);
    matrix.ExportMatrixToExcel();
    diagram.ExportDiagramToExcel();
    EXPECT_EQ(files.requests, (std::vector<FileRequest>(3, request)));
    EXPECT_TRUE(signals.cursors.empty());
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(ToExcel, ExistingFileIsReplacedWithoutAQuestion) {
    writeFile(target, std::string(100000, 'x'));
    OpenSmallSheet();
    contentOf(exported([&] { ExportDataToExcel(session); }));
}

TEST_F(ToExcel, NothingIsSaidOfAFileThatCannotBeWritten) {
    auto& diagram = OpenDiagram(SampleDocument(3));
    auto& matrix = OpenMatrix(SmallMatrix());
    OpenSmallSheet();
    const std::string path = folder / "none/out.xls";
    const auto silently = [&](const auto& act) {
        session.Of<FileValues>().SilentFailure = "of an earlier one";
        files.paths = {path};
        act();
        EXPECT_EQ(session.Of<FileValues>().SilentFailure, "No such file or directory");
        EXPECT_TRUE(messages.shown.empty());
        EXPECT_EQ(signals.cursors.back(), Cursor::Default);
        files.paths = {target};
        act();
        EXPECT_EQ(session.Of<FileValues>().SilentFailure, "");
    };
    silently([&] { ExportDataToExcel(session); });
    silently([&] { matrix.ExportMatrixToExcel(); });
    silently([&] { diagram.ExportDiagramToExcel(); });
}

// These three do not ask whether a diagram is being made.
TEST_F(ToExcel, WorksWhileADiagramIsBeingMade) {
    auto& diagram = OpenDiagram(SampleDocument(3));
    auto& matrix = OpenMatrix(SmallMatrix());
    OpenSmallSheet();
    session.DiagramBusy = 1;
    contentOf(exported([&] { ExportDataToExcel(session); }));
    contentOf(exported([&] { matrix.ExportMatrixToExcel(); }));
    contentOf(exported([&] { diagram.ExportDiagramToExcel(); }));
    EXPECT_EQ(signals.beeps, 0);
}

TEST_F(ToExcel, IsReachedByItsCommands) {
    auto& diagram = OpenDiagram(SampleDocument(3));
    auto& matrix = OpenMatrix(SmallMatrix());
    OpenSmallSheet();
    const auto content = [&](const char* command, std::int16_t slot) {
        return contentOf(exported([&] { session.commands.Call(command, {.Index = slot, .Path = {}}); }));
    };
    EXPECT_EQ(content("ExportDataToExcel", 0).size(), 12u);
    EXPECT_EQ(content("frmMacierz.ExportMatrixToExcel", matrix.Index).size(), 7u);
    EXPECT_EQ(content("frmDiagram.ExportDiagramToExcel", diagram.Index).size(), 13u);
}

} // namespace
} // namespace dorvan::test
