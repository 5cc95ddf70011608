#include "export/frmExportOptions.h"

namespace dorvan {

// The tick does not follow `DataTextNames`.
void frmExportOptions::Form_Load() {
    SeparatorDialog::Form_Load();
    Check1.Value = true;
}

void frmExportOptions::Enter(const TextChoices& choices) {
    SeparatorDialog::Enter(choices);
    Check1.Value = choices.VariableNames.value_or(Check1.Value);
}

void frmExportOptions::Command2_Click() {
    session_.DataTextNames = Check1.Value ? 1 : 0;
    SeparatorDialog::Command2_Click();
}

} // namespace dorvan
