#include "making/section_limits.h"

#include "numbers/rounding.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace dorvan {

namespace {

// Floats as integers of the same order; -0 comes before 0, so equal keys are equal bits.
std::int32_t OrderKey(float value) {
    const auto bits = std::bit_cast<std::int32_t>(value);
    return bits < 0 ? bits ^ 0x7FFFFFFF : bits;
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

// Any ascending sort gives what the halved gaps give: equal distances cannot be told apart.
void SortAllButLast(std::vector<float>& values) {
    if (values.size() > 2) std::ranges::sort(values.begin(), values.end() - 1, {}, OrderKey);
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
