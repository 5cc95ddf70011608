#include "export/separator_dialog.h"

namespace dorvan {

void SeparatorDialog::Enter(const TextChoices& choices) {
    if (!choices.Separator) return;
    Option1.Value = *choices.Separator == 1;
    Option2.Value = *choices.Separator == 2;
    Option3.Value = *choices.Separator == 3;
}

void SeparatorDialog::Command1_Click() {
    Hide();
    session_.OutputDialogOutcome = -99;
}

void SeparatorDialog::Command2_Click() {
    if (Option1.Value) session_.*separator_ = 1;
    if (Option2.Value) session_.*separator_ = 2;
    if (Option3.Value) session_.*separator_ = 3;
    Hide();
    session_.OutputDialogOutcome = 1;
}

} // namespace dorvan
