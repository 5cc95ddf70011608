#pragma once

#include "distance/measure_choices.h"
#include "platform/form.h"
#include "session/session.h"

namespace dorvan {

// The dialog of the customized measure d(x, y) = (sum |x - y|^p)^(1/r): its exponent p and root r.
class frmCustomized : public Form {
public:
    explicit frmCustomized(Session& session);

    Label Label1{"Label1", "p = "};
    TextBox Text1{"Text1", "2"};
    Label Label2{"Label2", "r = "};
    TextBox Text2{"Text2", "2"};
    CommandButton Command1{"Command1", "O&K"};
    CommandButton Command2{"Command2", "Cancel"};

    void Enter(const MeasureChoices& options);
    void Text1_KeyPress(int& keyAscii);
    void Text2_KeyPress(int& keyAscii);
    void Command1_Click();
    void Command2_Click();
    void CancelCommand() override { Command2_Click(); }

private:
    void FilterKey(const TextBox& field, int& keyAscii);
    void LeaveField();

    Session& session_;
};

} // namespace dorvan
