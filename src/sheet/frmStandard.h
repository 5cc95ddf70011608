#pragma once

#include "session/dialog.h"

#include <cstdint>

namespace dorvan {

// The dialog that chooses how a sheet is standardized.
class frmStandard : public Dialog {
public:
    static constexpr std::int16_t ByDeviation = 1;
    static constexpr std::int16_t ToRange = 2;

    explicit frmStandard(Session& session) : Dialog("frmStandard", "Standardize data", session) {}

    OptionButton Option1{"Option1", "by standard deviation"};
    OptionButton Option2{"Option2", "0 - 100 range"};
    CommandButton Command2{"Command2", "OK"};
    CommandButton Command1{"Command1", "Cancel"};

    std::int16_t StandardMethod = ToRange; // as accepted

    // Chooses a method, as a user does before OK.
    void Enter(std::int16_t method);

    void Form_Show() override;
    void Command2_Click();
    void Command1_Click() { Close(DialogResult::Cancelled); }
    void CancelCommand() override { Command1_Click(); }
};

} // namespace dorvan
