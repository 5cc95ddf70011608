#include "sheet/frmNowy.h"

#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"
#include "session/dialog.h"

namespace dorvan {

namespace {

constexpr int MaxVariables = 100;
constexpr int MaxRecords = 1999;

// False when the leading number of the text does not fit into 16 bits.
bool ReadCount(const std::string& text, std::int16_t& count) {
    try {
        count = RoundToInt16(LeadingNumber(text));
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

} // namespace

void frmNowy::Form_Show() {
    txtRecords.Text = "10";
    txtLiczba.Text = "5";
    SetFocus(txtRecords);
}

// Why the counts cannot be taken; null when they can.
const char* frmNowy::Refusal() {
    if (!ReadCount(txtLiczba.Text, session_.PendingVarCount)) return "Invalid number of variables";
    if (!ReadCount(txtRecords.Text, session_.PendingRecCount)) return "Invalid number of records";
    if (session_.PendingVarCount > MaxVariables) return "Too many variables - max. 100";
    if (session_.PendingVarCount <= 0) return "Number of variables must be higher than 0!";
    if (session_.PendingRecCount > MaxRecords) return "Too many records - max. 1999";
    if (session_.PendingRecCount <= 0) return "Number of records must be higher than 0!";
    return nullptr;
}

void frmNowy::Command1_Click() {
    if (const char* refusal = Refusal()) {
        session_.platform.messages.show({.Text = refusal});
        return;
    }
    SetFocus(txtRecords);
    Result = DialogResult::Accepted;
    Hide();
}

void frmNowy::Command2_Click() {
    Result = DialogResult::Cancelled;
    Hide();
}

} // namespace dorvan
