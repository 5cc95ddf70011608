#pragma once

#include <array>
#include <cstdint>

namespace dorvan {

// The characters (UTF-16, all of the basic plane) of the bytes 0x80 to 0xFF of one code page. A byte without
// a character of its own holds its own number.
struct CodePageTable {
    int number;
    std::array<std::uint16_t, 128> upperHalf;
};

extern const std::array<CodePageTable, 10> CodePageTables;

} // namespace dorvan
