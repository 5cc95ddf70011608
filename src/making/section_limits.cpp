#include "making/section_limits.h"

#include "numbers/rounding.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <numeric>

namespace dorvan {

namespace {

constexpr std::uint32_t SignBit = 0x80000000;
constexpr int DigitBits = 11;
constexpr std::uint32_t DigitValues = 1u << DigitBits;

// Floats as unsigned integers of the same order, and back. -0 comes before 0.
std::uint32_t KeyOf(float value) {
    const auto bits = std::bit_cast<std::uint32_t>(value);
    return bits & SignBit ? ~bits : bits | SignBit;
}

float ValueOf(std::uint32_t key) { return std::bit_cast<float>(key & SignBit ? key & ~SignBit : ~key); }

// Puts the keys in the order of DigitBits of their bits from `shift` up; equal ones keep their order.
void SortByDigit(const std::vector<std::uint32_t>& keys, int shift, std::vector<std::uint32_t>& sorted) {
    const auto digit = [shift](std::uint32_t key) { return key >> shift & (DigitValues - 1); };
    std::array<std::uint32_t, DigitValues> places{};
    for (const std::uint32_t key : keys) ++places[digit(key)];
    std::exclusive_scan(places.begin(), places.end(), places.begin(), 0u);
    for (const std::uint32_t key : keys) sorted[places[digit(key)]++] = key;
}

// The n(n-1)/2 distances of record i to the records j below it, by i and then by j.
std::vector<float> BelowTheDiagonal(const FloatTable& distances) {
    const std::int32_t n = distances.Rows();
    std::vector<float> values;
    values.reserve(std::size_t(n) * std::size_t(n) / 2);
    for (std::int32_t i = 2; i <= n; ++i) {
        const float* row = distances.Row(i);
        values.insert(values.end(), row, row + i - 1);
    }
    return values;
}

} // namespace

// Any ascending sort gives the same, since equal distances cannot be told apart. This one takes a digit of
// the bits at a time, the lowest first.
void SortAllButLast(std::vector<float>& values) {
    if (values.size() < 3) return;
    std::vector<std::uint32_t> keys(values.size() - 1);
    std::vector<std::uint32_t> sorted(keys.size());
    std::transform(values.begin(), values.end() - 1, keys.begin(), KeyOf);
    for (int shift = 0; shift < 32; shift += DigitBits) {
        SortByDigit(keys, shift, sorted);
        keys.swap(sorted);
    }
    std::ranges::transform(keys, values.begin(), ValueOf);
}

Array1<float> ComputeAutomaticLimits(const FloatTable& distances) {
    static constexpr double Factors[] = {0.2, 0.4, 0.6, 0.8};
    Array1<float> sorted;
    sorted.Cells() = BelowTheDiagonal(distances);
    SortAllButLast(sorted.Cells());
    Array1<float> limits(4);
    for (std::int32_t k = 1; k <= 4; ++k) limits(k) = sorted(RoundToInt16(sorted.Count() * Factors[k - 1]));
    return limits;
}

} // namespace dorvan
