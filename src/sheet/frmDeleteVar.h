#pragma once

#include "platform/form.h"
#include "session/session.h"

#include <cstdint>

namespace dorvan {

// The dialog that deletes a variable of the active sheet. The last one cannot be removed: it is emptied.
class frmDeleteVar : public Form {
public:
    explicit frmDeleteVar(Session& session) : Form("frmDeleteVar", "Delete variable"), session_(session) {}

    ListBox List1{"List1"};
    CommandButton Command1{"Command1", "OK"};
    CommandButton Command2{"Command2", "Cancel"};

    void Form_Load() override;
    // Fails with TypeMismatch for a sheet with a cell that is no number ("N/A" and an empty one are none),
    // with Overflow for one outside the range of a 32-bit float.
    void Command1_Click();
    void Command2_Click() { Hide(); }
    void CancelCommand() override { Command2_Click(); }

private:
    bool Asked();
    void EmptyOnlyVariable();
    void Delete(std::int32_t variable);

    Session& session_;
};

} // namespace dorvan
