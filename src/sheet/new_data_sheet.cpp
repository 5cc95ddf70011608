#include "sheet/new_data_sheet.h"

#include "numbers/text.h"
#include "session/busy.h"
#include "session/dialog.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"
#include "sheet/frmNowy.h"

namespace dorvan {

using namespace DocumentGrid;

namespace {

void FillWithDefaults(frmNotePad& window, int recordCount, int variableCount) {
    window.LayOut(recordCount, variableCount);
    auto& grid = window.Grid1;
    for (int variable = 1; variable <= variableCount; ++variable)
        grid.SetText(HeaderRow, ValueColumn(variable), "VAR " + SignedText(variable));
    for (int row = 1; row <= recordCount; ++row) {
        grid.SetText(row, NameColumn, "Record" + SignedText(row));
        for (int column = FirstValueColumn; column < grid.Columns(); ++column)
            grid.SetText(row, column, "0.000");
    }
    grid.SetCurrent(1, NameColumn);
}

} // namespace

void NewDataSheet(Session& session) {
    if (RefusedWhileBusy(session)) return;
    if (ShowModally<frmNowy>(session).Result == DialogResult::Cancelled) return;
    OpenDocumentWindow<frmNotePad>(session, {.Dirty = false}, [&](frmNotePad& window) {
        FillWithDefaults(window, session.PendingRecCount, session.PendingVarCount);
    });
}

} // namespace dorvan
