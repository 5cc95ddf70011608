#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dorvan {

// One character of a text, or one byte that is not part of well-formed UTF-8.
struct Utf8Character {
    char32_t codePoint = 0;  // the byte's value where it is not well-formed
    std::size_t length = 1;  // in bytes, 1 to 4
    bool wellFormed = false; // no overlong forms, no surrogates, nothing above U+10FFFF
};

// The character that starts at the byte `offset` < text.size().
Utf8Character Utf8CharacterAt(std::string_view text, std::size_t offset);

// `codePoint` is a character's (no surrogate, at most U+10FFFF).
void AppendUtf8(std::string& text, char32_t codePoint);

} // namespace dorvan
