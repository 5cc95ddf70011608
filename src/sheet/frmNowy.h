#pragma once

#include "platform/form.h"
#include "platform/number_field.h"
#include "session/session.h"

#include <cstdint>

namespace dorvan {

// The dialog that asks for the size of a new data sheet: 1 to 1999 records, 1 to 100 variables, handed over
// in `PendingRecCount` and `PendingVarCount`.
class frmNowy : public Form {
public:
    explicit frmNowy(Session& session) : Form("frmNowy", "New data "), session_(session) {}

    Label Label1{"Label1", "Number of records:"};
    TextBox txtRecords{"txtRecords"};
    Label Label2{"Label2", "Number of variables:"};
    TextBox txtLiczba{"txtLiczba"};
    CommandButton Command1{"Command1", "OK"};
    CommandButton Command2{"Command2", "Cancel"};

    // This dialog's own result, apart from `DialogOutcome`.
    std::int16_t Result = 0;

    void Form_Show() override;
    void CancelCommand() override { Command2_Click(); }
    void Command1_Click();
    void Command2_Click();
    void txtRecords_KeyPress(int& keyAscii) { FilterNumberKey(session_.platform.keyboard, keyAscii); }
    void txtLiczba_KeyPress(int& keyAscii) { FilterNumberKey(session_.platform.keyboard, keyAscii); }

private:
    const char* Refusal();

    Session& session_;
};

} // namespace dorvan
