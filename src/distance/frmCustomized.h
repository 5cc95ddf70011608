#pragma once

#include "distance/measure_choices.h"
#include "session/dialog.h"

namespace dorvan {

// The dialog of the customized measure d(x, y) = (sum |x - y|^p)^(1/r): its exponent p and root r.
class frmCustomized : public Dialog {
public:
    explicit frmCustomized(Session& session);

    Label Label1{"Label1", "p = "};
    TextBox Text1{"Text1", "2"};
    Label Label2{"Label2", "r = "};
    TextBox Text2{"Text2", "2"};
    CommandButton Command1{"Command1", "O&K"};
    CommandButton Command2{"Command2", "Cancel"};

    void Enter(const MeasureChoices& options);
    void Text1_KeyPress(int& keyAscii) { FilterKey(Text1, keyAscii); }
    void Text2_KeyPress(int& keyAscii) { FilterKey(Text2, keyAscii); }
    void Command1_Click();
    void Command2_Click() { Close(DialogResult::Cancelled); }
    void CancelCommand() override { Command2_Click(); }

private:
    void FilterKey(const TextBox& field, int& keyAscii);
};

} // namespace dorvan
