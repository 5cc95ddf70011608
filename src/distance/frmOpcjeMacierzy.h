#pragma once

#include "distance/measure_choices.h"
#include "session/dialog.h"

namespace dorvan {

// The dialog "Matrix": chooses the measure of a matrix, `CurrentDistType`.
class frmOpcjeMacierzy : public Dialog {
public:
    explicit frmOpcjeMacierzy(Session& session);

    Frame Frame1{"Frame1", "Distance type:"};
    Label lblData{"lblData", "&Data:"};
    ComboBox cboData{"cboData"}; // the data kind
    Label lblDistance{"lblDistance", "D&istance:"};
    ComboBox Combo1{"Combo1"}; // the measures of that kind
    CommandButton Command1{"Command1", "Cancel"};
    CommandButton Command2{"Command2", "OK"};

    void Form_Load() override;
    void Form_Show() override { Form_Load(); } // always opens on the first kind and measure
    void Enter(const MeasureChoices& options);
    void cboData_Click(); // after a change of its selection
    void Command1_Click() { Close(DialogResult::Cancelled); }
    void Command2_Click();
    void CancelCommand() override { Command1_Click(); }
};

} // namespace dorvan
