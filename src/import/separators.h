#pragma once

#include <cstdint>

// The separators of delimited text, by their numbers in the session and the dialogs.
namespace dorvan {

inline constexpr std::int16_t SemicolonSeparator = 1;
inline constexpr std::int16_t TabSeparator = 3;

inline char SeparatorOf(std::int16_t number) { return number == TabSeparator ? '\t' : ';'; }

} // namespace dorvan
