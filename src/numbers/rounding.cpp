#include "numbers/rounding.h"

#include "numbers/runtime_failure.h"

#include <cmath>
#include <limits>

namespace dorvan {

namespace {

// The nearest integer, ties to even, if `Integer` holds it; NaN fails every comparison and so fails here.
template <class Integer> Integer RoundTo(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        throw RuntimeFailure(Failure::Overflow);
    return static_cast<Integer>(rounded);
}

} // namespace

std::int16_t RoundToInt16(double value) { return RoundTo<std::int16_t>(value); }
std::int32_t RoundToInt32(double value) { return RoundTo<std::int32_t>(value); }
std::uint8_t RoundToByte(double value) { return RoundTo<std::uint8_t>(value); }

float RoundToFloat(double value) {
    // Half way between the greatest float and 2^128; the tie goes to the even one, which is no float.
    constexpr double FirstTooLarge = 0x1.ffffffp+127;
    if (!(std::fabs(value) < FirstTooLarge)) throw RuntimeFailure(Failure::Overflow);
    return static_cast<float>(value);
}

std::int16_t AddInt16(std::int16_t left, std::int16_t right) {
    return NarrowToInt16(std::int32_t(left) + std::int32_t(right));
}

std::int16_t SubtractInt16(std::int16_t left, std::int16_t right) {
    return NarrowToInt16(std::int32_t(left) - std::int32_t(right));
}

std::int16_t MultiplyInt16(std::int16_t left, std::int16_t right) {
    return NarrowToInt16(std::int64_t(left) * std::int64_t(right));
}

std::int16_t NarrowToInt16(std::int64_t value) {
    if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max())
        throw RuntimeFailure(Failure::Overflow);
    return static_cast<std::int16_t>(value);
}

} // namespace dorvan
