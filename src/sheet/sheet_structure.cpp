#include "sheet/sheet_structure.h"

#include "numbers/text.h"
#include "sheet/frmNotePad.h"

namespace dorvan {

using namespace DocumentGrid;

void TakeVariableNames(Session& session) {
    const frmNotePad& sheet = ActiveDataWindow(session);
    session.tables.VariableNames = Names(sheet.VariableCount());
    for (int variable = 1; variable <= sheet.VariableCount(); ++variable)
        session.tables.VariableNames(variable) =
            TrimSpaces(sheet.Grid1.Text(HeaderRow, ValueColumn(variable)));
}

void ShowVariableNames(const Session& session, ListBox& list, int selected) {
    list.List = session.tables.VariableNames.Cells();
    list.ListIndex = list.List.empty() ? -1 : selected;
}

void WriteVariableNames(Session& session) {
    Grid& grid = ActiveDataWindow(session).Grid1;
    for (int variable = 1; variable <= session.tables.VariableNames.Count(); ++variable)
        grid.SetText(HeaderRow, ValueColumn(variable),
                     std::string(TrimSpaces(session.tables.VariableNames(variable))));
}

void AppendRecords(frmNotePad& sheet, int count) {
    const int before = sheet.RecordCount();
    DocumentGrid::SetSize(sheet.Grid1, before + count, sheet.VariableCount());
    for (int record = before + 1; record <= before + count; ++record)
        sheet.Grid1.SetText(record, NumberColumn, SignedText(record));
}

void AppendVariables(frmNotePad& sheet, int count) {
    Grid& grid = sheet.Grid1;
    const int before = sheet.VariableCount();
    DocumentGrid::SetSize(grid, sheet.RecordCount(), before + count);
    for (int variable = before + 1; variable <= before + count; ++variable) {
        const int column = ValueColumn(variable);
        grid.SetText(HeaderRow, column, "VAR" + SignedText(variable));
        grid.SetColumnWidth(column, grid.ColumnWidth(column - 1));
        grid.SetHeaderAlignment(column, Alignment::Centre);
        grid.SetColumnAlignment(column, Alignment::Centre);
    }
}

void MarkSheetChanged(Session& session) {
    session.DataStates.at(std::size_t(ActiveDataWindow(session).Index)).Dirty = true;
}

} // namespace dorvan
