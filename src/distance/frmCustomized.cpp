#include "distance/frmCustomized.h"

#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "platform/keys.h"

namespace dorvan {

namespace {

constexpr std::size_t MostDigits = 3;

bool IsDigit(int keyAscii) { return keyAscii >= '0' && keyAscii <= '9'; }

// Stores the number; false when the text is none, or 0.
bool StoreParameter(const TextBox& field, char decimalSeparator, std::int16_t& parameter) {
    try {
        parameter = StrictInt16(field.Text, decimalSeparator);
    } catch (const RuntimeFailure&) {
        return false;
    }
    return parameter != 0;
}

} // namespace

frmCustomized::frmCustomized(Session& session)
    : Form("frmCustomized", "Customized distance"), session_(session) {}

void frmCustomized::Enter(const MeasureChoices& options) {
    if (!options.P.empty()) Text1.Text = options.P;
    if (!options.R.empty()) Text2.Text = options.R;
}

void frmCustomized::Text1_KeyPress(int& keyAscii) { FilterKey(Text1, keyAscii); }
void frmCustomized::Text2_KeyPress(int& keyAscii) { FilterKey(Text2, keyAscii); }

void frmCustomized::FilterKey(const TextBox& field, int& keyAscii) {
    if (keyAscii == key::Enter) {
        keyAscii = key::None;
        LeaveField();
    } else if (IsDigit(keyAscii)) {
        if (CharacterCount(field.Text) >= MostDigits) keyAscii = key::None;
    } else if (keyAscii != key::Backspace) {
        keyAscii = key::None;
    }
}

// On to the next control; a field that gets the focus so has its text selected.
void frmCustomized::LeaveField() {
    Keyboard& keyboard = session_.platform.keyboard;
    keyboard.send("{TAB}");
    if (!dynamic_cast<const TextBox*>(ActiveControl)) return;
    keyboard.send("{HOME}");
    keyboard.send("+{END}");
}

void frmCustomized::Command1_Click() {
    const char separator = session_.DecimalSeparator;
    if (!StoreParameter(Text1, separator, session_.Par_P)) {
        session_.platform.messages.show({.Text = "Invalid value of parametr P"});
        return;
    }
    if (!StoreParameter(Text2, separator, session_.Par_R)) {
        session_.platform.messages.show({.Text = "Invalid value of parametr R"});
        return;
    }
    session_.DialogOutcome = 1;
    Hide();
}

void frmCustomized::Command2_Click() {
    session_.DialogOutcome = -99;
    Hide();
}

} // namespace dorvan
