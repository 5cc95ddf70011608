#include "import/frmImportText.h"

#include "import/separators.h"

namespace dorvan {

void frmImportText::Form_Load() {
    Option1.Value = true;
    Check1.Value = true;
    Check2.Value = true;
}

void frmImportText::Enter(const TextImportChoices& choices) {
    if (choices.Separator) {
        Option1.Value = *choices.Separator == SemicolonSeparator;
        Option3.Value = *choices.Separator == TabSeparator;
    }
    Check1.Value = choices.VariableNames.value_or(Check1.Value);
    Check2.Value = choices.RecordNames.value_or(Check2.Value);
}

void frmImportText::Command3_Click() {
    ChooseFile(Label1, FileFiltersOf("text csv", "csv"), " - Select csv/txt file");
}

void frmImportText::Command2_Click() {
    if (!HasFile(Label1)) return;
    session_.MatrixTextSeparator = Option3.Value ? TabSeparator : SemicolonSeparator;
    ImportFirstRowNames = Check1.Value;
    ImportFirstColumnNames = Check2.Value;
    ImportPath = Label1.Caption;
    Close(DialogResult::Accepted);
}

} // namespace dorvan
