#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace dorvan::test {

// Builds a file of an older binary format.
class OlderBytes {
public:
    OlderBytes& text(std::string_view value, std::size_t size) { // padded with spaces
        bytes_ += value;
        bytes_.append(size - value.size(), ' ');
        return *this;
    }
    OlderBytes& int16(int value) { return little(static_cast<std::uint16_t>(value), 2); }
    OlderBytes& float32(float value) { return little(std::bit_cast<std::uint32_t>(value), 4); }
    OlderBytes& floats(std::initializer_list<float> values) {
        for (const float value : values) float32(value);
        return *this;
    }
    const std::string& bytes() const { return bytes_; }

private:
    OlderBytes& little(std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i) bytes_ += static_cast<char>(value >> 8 * i);
        return *this;
    }
    std::string bytes_;
};

} // namespace dorvan::test
