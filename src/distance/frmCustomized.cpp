#include "distance/frmCustomized.h"

#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "platform/number_field.h"

namespace dorvan {

namespace {

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

frmCustomized::frmCustomized(Session& session) : Dialog("frmCustomized", "Customized distance", session) {}

void frmCustomized::Enter(const MeasureChoices& options) {
    if (!options.P.empty()) Text1.Text = options.P;
    if (!options.R.empty()) Text2.Text = options.R;
}

void frmCustomized::FilterKey(const TextBox& field, int& keyAscii) {
    FilterThreeDigitsKey(session_.platform.keyboard, *this, field, keyAscii);
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
    Close(DialogResult::Accepted);
}

} // namespace dorvan
