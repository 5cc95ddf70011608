#include "sheet/new_data_sheet.h"

#include "numbers/text.h"
#include "session/children.h"
#include "session/registry.h"
#include "sheet/frmNotePad.h"
#include "sheet/frmNowy.h"

namespace dorvan {

namespace {

void FillWithDefaults(frmNotePad& window, int recordCount, int variableCount) {
    window.LayOut(recordCount, variableCount);
    auto& grid = window.Grid1;
    for (int column = 2; column < grid.Columns(); ++column)
        grid.SetText(0, column, "VAR " + SignedText(column - 1));
    for (int row = 1; row < grid.Rows(); ++row) {
        grid.SetText(row, 1, "Record" + SignedText(row));
        for (int column = 2; column < grid.Columns(); ++column) grid.SetText(row, column, "0.000");
    }
    grid.SetCurrent(1, 1);
}

} // namespace

void NewDataSheet(Session& session) {
    if (session.DiagramBusy == 1) {
        session.platform.signals.beep();
        return;
    }
    auto& dialog = session.forms.Load<frmNowy>(session);
    session.platform.forms.showModal(dialog);
    if (dialog.Result == -99) return;
    session.NewWindowIndex = FindFreeDataSlot(session);
    auto& window = dynamic_cast<frmNotePad&>(CreateChildWindow(session, DocumentKind::Data));
    window.Caption = UntitledCaption(DocumentKind::Data, session.NewWindowIndex);
    FillWithDefaults(window, session.PendingRecCount, session.PendingVarCount);
    session.DataStates.at(std::size_t(window.Index)).Dirty = false;
    PlaceNewWindow(session, window);
    ShowChild(session, window);
}

} // namespace dorvan
