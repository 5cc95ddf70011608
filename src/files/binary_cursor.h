#pragma once

#include "numbers/code_page.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dorvan {

// Walks over the bytes of an older binary file in memory. Positions count from 1, numbers are little-endian;
// each read goes on behind the one before it. All fail with a FileFault.
class BinaryCursor {
public:
    // The last position that the older formats can compute, in 16-bit signed arithmetic.
    static constexpr std::int64_t LastPosition = 32767;

    BinaryCursor(std::string_view bytes, const CodePage& codes) : bytes_(bytes), codes_(codes) {}

    // Fails past LastPosition.
    void MoveTo(std::int64_t position);

    // Fails when something of `size` bytes at `position` is out of reach or not in the file, so that nothing
    // is sized by counts that the file does not fill.
    void ExpectRoomFor(std::int64_t position, std::int64_t size) const;

    std::string Text(std::size_t size); // with its padding
    std::int16_t Int16();
    float Float();        // finite
    std::int16_t Count(); // an Int16 from 1 up

private:
    std::string_view Take(std::size_t size);

    std::string_view bytes_;
    CodePage codes_;
    std::int64_t position_ = 1;
};

} // namespace dorvan
