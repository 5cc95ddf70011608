#include "platform/number_field.h"

#include "numbers/text.h"
#include "platform/keys.h"

namespace dorvan {

namespace {

constexpr std::size_t MostDigits = 3;

} // namespace

void FilterNumberKey(Keyboard& keyboard, int& keyAscii, std::string_view others) {
    if (key::IsDigit(keyAscii) || keyAscii == key::Backspace) return;
    const bool ascii = keyAscii > 0 && keyAscii < 128;
    if (ascii && others.find(static_cast<char>(keyAscii)) != std::string_view::npos) return;
    if (keyAscii == key::Enter) keyboard.send("{TAB}");
    keyAscii = key::None;
}

void FilterThreeDigitsKey(Keyboard& keyboard, const Form& form, const TextBox& field, int& keyAscii) {
    if (keyAscii == key::Enter) {
        keyAscii = key::None;
        keyboard.send("{TAB}");
        if (!dynamic_cast<const TextBox*>(form.ActiveControl)) return;
        keyboard.send("{HOME}");
        keyboard.send("+{END}");
    } else if (key::IsDigit(keyAscii)) {
        if (CharacterCount(field.Text) >= MostDigits) keyAscii = key::None;
    } else if (keyAscii != key::Backspace) {
        keyAscii = key::None;
    }
}

} // namespace dorvan
