#include "export/frmTextOptions.h"

namespace dorvan {

frmTextOptions::frmTextOptions(Session& session)
    : Form("frmTextOptions", "Export text options"), session_(session) {}

void frmTextOptions::Form_Load() { Enter({.Separator = session_.MatrixTextSeparator}); }

void frmTextOptions::Enter(const TextChoices& choices) {
    if (choices.Separator) {
        Option1.Value = *choices.Separator == 1;
        Option2.Value = *choices.Separator == 2;
        Option3.Value = *choices.Separator == 3;
    }
}

void frmTextOptions::Command1_Click() {
    Hide();
    session_.OutputDialogOutcome = -99;
}

void frmTextOptions::Command2_Click() {
    if (Option1.Value) session_.MatrixTextSeparator = 1;
    if (Option2.Value) session_.MatrixTextSeparator = 2;
    if (Option3.Value) session_.MatrixTextSeparator = 3;
    Hide();
    session_.OutputDialogOutcome = 1;
}

} // namespace dorvan
