#pragma once

#include <cstdint>

// Conversions between widths. Each fails with Overflow where the value does not fit (or is not a number).
namespace dorvan {

// Nearest integer, ties to even.
std::int16_t RoundToInt16(double value);
std::int32_t RoundToInt32(double value);
std::uint8_t RoundToByte(double value);

// Nearest 32-bit float. Infinities and NaN, and finite values that round beyond the range, fail.
float RoundToFloat(double value);

// 16-bit signed arithmetic.
std::int16_t AddInt16(std::int16_t left, std::int16_t right);
std::int16_t SubtractInt16(std::int16_t left, std::int16_t right);
std::int16_t MultiplyInt16(std::int16_t left, std::int16_t right);

// A wider integer narrowed to 16 bits.
std::int16_t NarrowToInt16(std::int64_t value);

} // namespace dorvan
