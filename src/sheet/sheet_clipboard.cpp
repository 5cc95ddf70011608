#include "sheet/sheet_clipboard.h"

#include "session/busy.h"
#include "session/cell_copying.h"
#include "session/status_bar.h"
#include "sheet/sheet_history.h"
#include "sheet/sheet_structure.h"

#include <fmt/format.h>

#include <algorithm>

namespace dorvan {

using namespace DocumentGrid;

namespace {

constexpr int MostRecords = 1999; // as of the dialogs that add them
constexpr int MostVariables = 100;
constexpr std::size_t MostListed = 8;
constexpr const char* Title = "Paste";

std::string Counted(int count, const char* what) {
    return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

// True when the block fits, or has room after the user has agreed.
bool HasRoom(Session& session, const frmNotePad& sheet, const PastedBlock& block) {
    const int records = std::max(0, block.Rows - sheet.Grid1.Rows());
    const int variables = std::max(0, block.Columns - sheet.Grid1.Columns());
    if (records == 0 && variables == 0) return true;
    if ((records > 0 && block.Rows - 1 > MostRecords) ||
        (variables > 0 && block.Columns - FirstValueColumn > MostVariables)) {
        session.platform.messages.show(
            {.Text = fmt::format("A sheet can have {} records and {} variables at most. With these cells it "
                                 "would have {} and {}.",
                                 MostRecords, MostVariables, std::max(block.Rows - 1, sheet.RecordCount()),
                                 std::max(block.Columns - FirstValueColumn, sheet.VariableCount())),
             .Icon = MessageIcon::Exclamation,
             .Title = Title});
        return false;
    }
    std::string more = records > 0 ? Counted(records, "new record") : std::string();
    if (variables > 0) more += (more.empty() ? "" : " and ") + Counted(variables, "new variable");
    return session.platform.messages.show(
               {.Text = fmt::format("These cells need {}. Add them to the sheet?", more),
                .Icon = MessageIcon::Question,
                .Buttons = MessageButtons::YesNo,
                .Title = Title}) == Answer::Yes;
}

std::string PlaceOf(const frmNotePad& sheet, const PlacedText& cell) {
    return fmt::format("{}, {}: {}", RecordCalled(sheet.Grid1.Text(cell.Row, NameColumn), cell.Row),
                       sheet.Grid1.Text(HeaderRow, cell.Column), cell.Text);
}

void TellNoNumbers(Session& session, const frmNotePad& sheet, const PastedBlock& block) {
    if (block.NoNumbers.empty()) return;
    const auto& cells = block.NoNumbers;
    std::string text =
        cells.size() == 1
            ? "One value is no number that a cell can hold. It is marked N/A:\n"
            : fmt::format("{} values are no numbers that a cell can hold. They are marked N/A:\n",
                          cells.size());
    for (std::size_t place = 0; place < std::min(cells.size(), MostListed); ++place)
        text += "\n" + PlaceOf(sheet, cells[place]);
    if (cells.size() > MostListed) text += fmt::format("\nand {} more", cells.size() - MostListed);
    session.platform.messages.show({.Text = text, .Icon = MessageIcon::Exclamation, .Title = Title});
}

std::string Outcome(const PastedBlock& block) {
    std::string text = fmt::format("Pasted {} x {} cells", block.Range.Rows(), block.Range.Columns());
    if (block.EmptyValues > 0) text += fmt::format("; {} empty: N/A", block.EmptyValues);
    if (block.Rounded > 0) text += fmt::format("; {} rounded to three decimals", block.Rounded);
    return text;
}

} // namespace

void CopySheetCells(Session& session) { CopyMarkedCells(session, ActiveDataWindow(session).Grid1); }

void WriteBlock(frmNotePad& sheet, const PastedBlock& block) {
    AppendRecords(sheet, std::max(0, block.Rows - sheet.Grid1.Rows()));
    AppendVariables(sheet, std::max(0, block.Columns - sheet.Grid1.Columns()));
    for (const auto& cell : block.Cells) sheet.Grid1.SetText(cell.Row, cell.Column, cell.Text);
}

void PasteCells(Session& session) {
    if (RefusedWhileBusy(session)) return;
    frmNotePad& sheet = ActiveDataWindow(session);
    CellClipboard* clipboard = session.Of<CellPorts>().clipboard;
    CellRange target = sheet.Grid1.Marked();
    if (target.IsOneCell())
        target.Top = std::max(target.Top, 1); // a head counts where it is marked with others
    const CellTexts table = clipboard ? ReadTabbedText(clipboard->text()) : CellTexts();
    if (table.empty() || sheet.RecordCount() < 1) return session.platform.signals.beep();
    const PastedBlock block =
        PlaceBlock(table, target.Top, std::max(target.Left, NameColumn), session.DecimalSeparator);
    if (!HasRoom(session, sheet, block)) return;
    {
        const SheetStep step(session, sheet, "Paste " + Counted(int(block.Cells.size()), "Cell"));
        WriteBlock(sheet, block);
        sheet.Grid1.SetCurrent(std::max(block.Range.Top, 1), block.Range.Left);
        sheet.Grid1.Mark(block.Range);
        MarkSheetChanged(session);
    }
    StatusText(session) = Outcome(block);
    TellNoNumbers(session, sheet, block);
}

} // namespace dorvan
