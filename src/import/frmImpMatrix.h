#pragma once

#include "import/import_choices.h"
#include "import/import_dialog.h"
#include "platform/number_field.h"

#include <cstdint>
#include <string>

namespace dorvan {

// The dialog of the import of a text matrix: the file, its separator, whether names stand in it, and how many
// decimals are kept. Whether it holds distances or similarities is asked and changes nothing.
class frmImpMatrix : public ImportDialog {
public:
    explicit frmImpMatrix(Session& session) : ImportDialog("frmImpMatrix", "Import matrix", session) {}

    Frame Frame1{"Frame1", "Separator:"};
    OptionButton optSep1{"optSep1", "&semicolon (;)"};
    OptionButton optSep2{"optSep2", "&tab separator"};
    Frame Frame2{"Frame2", "Names:"};
    CheckBox chkFirstCol{"chkFirstCol", "&Records names in first column"};
    Frame Frame3{"Frame3", "File:"};
    Label Label1{"Label1"}; // the chosen path
    CommandButton Command3{"Command3", "&Browse"};
    Frame Frame4{"Frame4", "Type:"};
    OptionButton optDist{"optDist", "&distance"};
    OptionButton optSimilar{"optSimilar", "si&milarity"};
    Label Label2{"Label2", "Precision:"};
    TextBox txtPrecision{"txtPrecision", "3"}; // as many decimals as a matrix shows
    CommandButton Command1{"Command1", "OK"};
    CommandButton Command2{"Command2", "Cancel"};

    // What was accepted last.
    std::int16_t ImpMatrixSeparator = 1; // 1 semicolon, 3 tab
    bool ImpMatrixFirstColumn = true;
    std::string ImpMatrixPath;
    std::int16_t ImpMatrixPrecision = 0;

    void Enter(const MatrixImportChoices& choices);

    void Form_Load() override;
    void Form_Show() override;
    void Command3_Click();
    void Command1_Click();
    void Command2_Click() { Close(DialogResult::Cancelled); }
    void CancelCommand() override { Command2_Click(); }
    void txtPrecision_KeyPress(int& keyAscii) { FilterNumberKey(session_.platform.keyboard, keyAscii); }

private:
    bool TakePrecision();
};

} // namespace dorvan
