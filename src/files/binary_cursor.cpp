#include "files/binary_cursor.h"

#include "files/file_fault.h"

#include <fmt/format.h>

#include <bit>
#include <cmath>

namespace dorvan {

void BinaryCursor::MoveTo(std::int64_t position) {
    if (position > LastPosition)
        throw FileFault::AtByte(position, fmt::format("positions past {} are out of range", LastPosition));
    position_ = position;
}

void BinaryCursor::ExpectRoomFor(std::int64_t position, std::int64_t size) const {
    BinaryCursor(*this).MoveTo(position);
    const auto end = static_cast<std::int64_t>(bytes_.size());
    if (position + size - 1 > end)
        throw FileFault::AtByte(
            end + 1, fmt::format("the file ends, its counts ask for {} bytes", position + size - 1));
}

std::string_view BinaryCursor::Take(std::size_t size) {
    const auto offset = static_cast<std::size_t>(position_ - 1);
    if (offset > bytes_.size() || size > bytes_.size() - offset)
        throw FileFault::AtByte(
            static_cast<std::int64_t>(bytes_.size()) + 1,
            fmt::format("the file ends where {} bytes at {} are needed", size, position_));
    position_ += static_cast<std::int64_t>(size);
    return bytes_.substr(offset, size);
}

std::string BinaryCursor::Text(std::size_t size) { return codes_.ToUtf8(Take(size)); }

std::int16_t BinaryCursor::Int16() {
    const std::string_view two = Take(2);
    const auto low = static_cast<unsigned char>(two[0]);
    const auto high = static_cast<unsigned char>(two[1]);
    return static_cast<std::int16_t>(low | high << 8);
}

std::int16_t BinaryCursor::Count() {
    const std::int64_t start = position_;
    const std::int16_t count = Int16();
    if (count < 1) throw FileFault::AtByte(start, fmt::format("the count {} is below 1", count));
    return count;
}

float BinaryCursor::Float() {
    const std::int64_t start = position_;
    const std::string_view four = Take(4);
    std::uint32_t bits = 0;
    for (std::size_t i = 4; i-- > 0;) bits = bits << 8 | static_cast<unsigned char>(four[i]);
    const float value = std::bit_cast<float>(bits);
    if (!std::isfinite(value)) throw FileFault::AtByte(start, "the value is not a finite number");
    return value;
}

} // namespace dorvan
