#include "sheet/structure_commands.h"
#include "sheet/sheet_values.h"

#include "numbers/text.h"
#include "session/busy.h"
#include "session/dialog.h"
#include "sheet/add_dialogs.h"
#include "sheet/frmDeleteVar.h"
#include "sheet/frmNotePad.h"
#include "sheet/frmVar.h"
#include "sheet/sheet_history.h"
#include "sheet/sheet_structure.h"

#include <fmt/format.h>

#include <algorithm>

namespace dorvan {

using namespace DocumentGrid;

namespace {

// Only equality is refused: a larger sheet, which a file or the dialog makes, is not.
constexpr int RecordsRefused = 150;
constexpr int VariablesRefused = 100;

template <class Dialog> bool AskForCount(Session& session, int& count) {
    auto& dialog = session.forms.Load<Dialog>(session);
    dialog.PendingAddCount = 0;
    const bool accepted = Accepted<Dialog>(session);
    count = dialog.PendingAddCount;
    return accepted;
}

// "Add Record", "Add 3 Records"
std::string Counted(const char* verb, int count, const char* what) {
    return count == 1 ? fmt::format("{} {}", verb, what) : fmt::format("{} {} {}s", verb, count, what);
}

bool AsksToDelete(Session& session, int record) {
    return session.platform.messages.show(
               {.Text = fmt::format("Delete record number {}?", SignedText(record)),
                .Buttons = MessageButtons::YesNo,
                .Title = "Delete"}) == Answer::Yes;
}

void RemoveRecord(frmNotePad& sheet, int record) {
    Grid& grid = sheet.Grid1;
    if (sheet.RecordCount() == 1) {
        for (int column = NameColumn; column < grid.Columns(); ++column) grid.SetText(record, column, {});
        return;
    }
    grid.RemoveRow(record);
    for (int row = 1; row <= sheet.RecordCount(); ++row) grid.SetText(row, NumberColumn, SignedText(row));
}

} // namespace

void AddRecord(Session& session) {
    if (RefusedWhileBusy(session)) return;
    frmNotePad& sheet = ActiveDataWindow(session);
    if (sheet.RecordCount() == RecordsRefused) {
        session.platform.signals.beep();
        session.platform.messages.show({.Text = "Max. 150 records!"});
        return;
    }
    int count = 0;
    if (!AskForCount<frmAddRec>(session, count)) return;
    const SheetStep step(session, sheet, Counted("Add", count, "Record"));
    const int before = sheet.RecordCount();
    AppendRecords(sheet, count);
    if (count > 0) sheet.Grid1.SetCurrent(before + count, NumberColumn);
    MarkSheetChanged(session);
}

void AddVariable(Session& session) {
    if (RefusedWhileBusy(session)) return;
    frmNotePad& sheet = ActiveDataWindow(session);
    if (sheet.VariableCount() == VariablesRefused) {
        session.platform.signals.beep();
        session.platform.messages.show({.Text = "You cannot define more than 100 variables in a data sheet!",
                                        .Icon = MessageIcon::Critical});
        return;
    }
    int count = 0;
    if (!AskForCount<frmAddVar>(session, count)) return;
    const SheetStep step(session, sheet, Counted("Add", count, "Variable"));
    const int before = sheet.VariableCount();
    AppendVariables(sheet, count);
    if (count > 0) sheet.Grid1.SetCurrent(HeaderRow, ValueColumn(before + count));
    MarkSheetChanged(session);
}

void DeleteRecord(Session& session) {
    if (RefusedWhileBusy(session)) return;
    frmNotePad& sheet = ActiveDataWindow(session);
    Grid& grid = sheet.Grid1;
    const int row = grid.Row();
    if (row < 1) session.platform.signals.beep();
    if (sheet.RecordCount() >= 1 && row > 0) {
        if (AsksToDelete(session, row)) {
            const SheetStep step(session, sheet, "Delete " + RecordCalled(grid.Text(row, NameColumn), row));
            session.Of<SheetValues>().SuppressCommit = true;
            RemoveRecord(sheet, row);
            grid.SetCurrent(grid.Row(), std::min(FirstValueColumn, grid.Columns() - 1));
            MarkSheetChanged(session);
        }
    } else {
        session.platform.messages.show({.Text = "Brak wierszy do usunięcia"});
    }
    sheet.SetFocus(grid);
}

void EditVariables(Session& session) {
    if (RefusedWhileBusy(session)) return;
    const SheetStep step(session, ActiveDataWindow(session), "Rename Variables");
    ShowModally<frmVar>(session);
    session.forms.Unload<frmVar>();
}

void DeleteVariable(Session& session) {
    if (RefusedWhileBusy(session)) return;
    ShowModally<frmDeleteVar>(session);
    session.forms.Unload<frmDeleteVar>();
}

} // namespace dorvan
