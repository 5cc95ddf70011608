#pragma once

#include "platform/form.h"
#include "session/session.h"

namespace dorvan {

// The dialog that renames the variables of the active sheet. The new names reach the sheet at OK; an accepted
// one counts as a change at once.
class frmVar : public Form {
public:
    explicit frmVar(Session& session) : Form("frmVar", "Var Editor"), session_(session) {}

    ListBox List1{"List1"};
    TextBox Text1{"Text1"};
    CommandButton Command3{"Command3", "&Accept"};
    CommandButton Command1{"Command1", "OK"};
    CommandButton Command2{"Command2", "Cancel"};

    void Form_Load() override;
    void List1_Click() { Text1.Text = List1.Text(); }
    void Text1_KeyPress(int& keyAscii); // Enter accepts
    void Command3_Click();
    void Command1_Click();
    void Command2_Click() { Hide(); }
    void CancelCommand() override { Command2_Click(); }

private:
    Session& session_;
};

} // namespace dorvan
