#pragma once

#include "platform/form.h"
#include "platform/ports.h"

#include <string_view>

// The key filters of number fields: a key that is not taken becomes 0.
namespace dorvan {

// Takes digits, backspace and the characters of `others`; Enter goes on to the next field.
//
//     void txtPrecision_KeyPress(int& keyAscii) { FilterNumberKey(session_.platform.keyboard, keyAscii); }
void FilterNumberKey(Keyboard& keyboard, int& keyAscii, std::string_view others = {});

// Takes backspace, and digits until the field holds three characters; Enter goes on to the next control of
// the form and selects its text where it has one.
void FilterThreeDigitsKey(Keyboard& keyboard, const Form& form, const TextBox& field, int& keyAscii);

} // namespace dorvan
