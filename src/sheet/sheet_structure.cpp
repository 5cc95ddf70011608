#include "sheet/sheet_structure.h"

#include "numbers/text.h"
#include "sheet/frmNotePad.h"

namespace dorvan {

using namespace DocumentGrid;

void TakeVariableNames(Session& session) {
    const frmNotePad& sheet = ActiveDataWindow(session);
    session.tables.VariableNames = Names(sheet.VariableCount());
    for (int variable = 1; variable <= sheet.VariableCount(); ++variable)
        session.tables.VariableNames(variable) = TrimSpaces(sheet.Grid1.Text(HeaderRow, ValueColumn(variable)));
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

void MarkSheetChanged(Session& session) {
    session.DataStates.at(std::size_t(ActiveDataWindow(session).Index)).Dirty = true;
}

} // namespace dorvan
