#pragma once

#include <cstdint>

namespace dorvan {

// What the prints keep in the session.
struct PrintValues {
    std::int16_t DiagramPrintSize = 0; // 1 normal, 2 small, 3 large; 0 until the dialog was accepted
};

} // namespace dorvan
