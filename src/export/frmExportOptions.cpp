#include "export/frmExportOptions.h"

namespace dorvan {

frmExportOptions::frmExportOptions(Session& session)
    : Form("frmExportOptions", "Export to text file options"), session_(session) {}

// The tick does not follow `DataTextNames`.
void frmExportOptions::Form_Load() {
    Enter({.Separator = session_.DataTextSeparator, .VariableNames = true});
}

void frmExportOptions::Enter(const TextChoices& choices) {
    if (choices.Separator) {
        Option1.Value = *choices.Separator == 1;
        Option2.Value = *choices.Separator == 2;
        Option3.Value = *choices.Separator == 3;
    }
    Check1.Value = choices.VariableNames.value_or(Check1.Value);
}

void frmExportOptions::Command1_Click() {
    Hide();
    session_.OutputDialogOutcome = -99;
}

void frmExportOptions::Command2_Click() {
    if (Option1.Value) session_.DataTextSeparator = 1;
    if (Option2.Value) session_.DataTextSeparator = 2;
    if (Option3.Value) session_.DataTextSeparator = 3;
    session_.DataTextNames = Check1.Value ? 1 : 0;
    Hide();
    session_.OutputDialogOutcome = 1;
}

} // namespace dorvan
