#pragma once

#include "platform/form.h"
#include "session/session.h"

namespace dorvan {

// The dialog "Print matrix", before a matrix is printed.
class frmPrintMatrix : public Form {
public:
    explicit frmPrintMatrix(Session& session);

    CommandButton Command1{"Command1", "OK"};
    CommandButton Command2{"Command2", "Cancel"};
    CommandButton Command3{"Command3", "&Printer options"};

    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void CancelCommand() override { Command2_Click(); }

private:
    Session& session_;
};

} // namespace dorvan
