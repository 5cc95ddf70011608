#include "import/frmImpMatrix.h"

#include "import/separators.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"

#include <fmt/format.h>

namespace dorvan {

void frmImpMatrix::Form_Load() {
    chkFirstCol.Value = ImpMatrixFirstColumn;
    optDist.Value = true;
}

void frmImpMatrix::Form_Show() {
    optSep1.Value = ImpMatrixSeparator == SemicolonSeparator;
    optSep2.Value = ImpMatrixSeparator == TabSeparator;
}

void frmImpMatrix::Enter(const MatrixImportChoices& choices) {
    if (choices.Separator) {
        optSep1.Value = *choices.Separator == SemicolonSeparator;
        optSep2.Value = *choices.Separator == TabSeparator;
    }
    chkFirstCol.Value = choices.RecordNames.value_or(chkFirstCol.Value);
    if (choices.Precision) txtPrecision.Text = fmt::format("{}", *choices.Precision);
}

void frmImpMatrix::Command3_Click() {
    ChooseFile(Label1, FileFiltersOf("txt", "txt"), " - Select txt matrix file");
}

// False when the text is no number of 16 bits.
bool frmImpMatrix::TakePrecision() {
    try {
        ImpMatrixPrecision = StrictInt16(txtPrecision.Text, session_.DecimalSeparator);
        return true;
    } catch (const RuntimeFailure&) {
        Tell("Invalid precision");
        return false;
    }
}

void frmImpMatrix::Command1_Click() {
    if (!HasFile(Label1) || !TakePrecision()) return;
    ImpMatrixSeparator = optSep2.Value ? TabSeparator : SemicolonSeparator;
    ImpMatrixFirstColumn = chkFirstCol.Value;
    ImpMatrixPath = Label1.Caption;
    Close(DialogResult::Accepted);
}

} // namespace dorvan
