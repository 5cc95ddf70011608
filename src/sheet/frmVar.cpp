#include "sheet/frmVar.h"

#include "platform/keys.h"
#include "sheet/frmNotePad.h"
#include "sheet/sheet_structure.h"

namespace dorvan {

void frmVar::Form_Load() {
    TakeVariableNames(session_);
    ShowVariableNames(session_, List1, 0);
    List1_Click();
}

void frmVar::Text1_KeyPress(int& keyAscii) {
    if (keyAscii != key::Enter) return;
    keyAscii = key::None;
    Command3_Click();
}

void frmVar::Command3_Click() {
    if (List1.ListIndex < 0) return;
    session_.tables.VariableNames(List1.ListIndex + 1) = Text1.Text;
    ShowVariableNames(session_, List1, List1.ListIndex);
    List1_Click();
    MarkSheetChanged(session_);
}

void frmVar::Command1_Click() {
    Grid& grid = ActiveDataWindow(session_).Grid1;
    grid.SetCurrent(DocumentGrid::HeaderRow, grid.Column());
    WriteVariableNames(session_);
    Hide();
}

} // namespace dorvan
