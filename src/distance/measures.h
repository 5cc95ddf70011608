#pragma once

#include "session/documents.h"
#include "session/session.h"

#include <cstdint>

namespace dorvan {

// The ten measures by their code numbers, as documents file them.
namespace DistanceType {
inline constexpr std::int16_t Henzel = 1;
inline constexpr std::int16_t Czekanowski = 2;
inline constexpr std::int16_t Euclidean = 3;
inline constexpr std::int16_t Manhattan = 4;
inline constexpr std::int16_t Chebychev = 5;
inline constexpr std::int16_t Customized = 6;
inline constexpr std::int16_t DfDD = 7;
inline constexpr std::int16_t LanceAndWilliams = 8;
inline constexpr std::int16_t Jaccard = 9;
inline constexpr std::int16_t YulesQ = 10;
} // namespace DistanceType

struct Measure {
    std::int16_t Type = 0; // another number than 1 to 10 gives distance 0
    std::int16_t Par_P = 0;
    std::int16_t Par_R = 0;
};

// The measure that the session has in force.
Measure CurrentMeasure(const Session& session);

// The distance between two records of m values each. Every sum is rounded to 32 bits after each addition.
// Fails with DivisionByZero for 0 / 0 in the measures 8 and 9, with Overflow where a 32-bit float or the
// 16-bit arithmetic of measure 10 runs over.
float DistanceBetween(const float* x, const float* y, std::int32_t m, const Measure& measure);

// The n by n matrix of distances between the rows of `values` (n by m): exactly symmetric, zero diagonal,
// each pair computed once with the lower-numbered record first. Equal to DistanceBetween to the bit, but many
// pairs side by side. Fails as DistanceBetween does.
FloatTable DistancesBetweenRows(const FloatTable& values, std::int32_t n, std::int32_t m,
                                const Measure& measure);

// Replaces `DistanceValues` by the distances of `DataValues`, under the wait cursor. Always true.
bool ComputeDistanceMatrix(Session& session, std::int32_t n, std::int32_t m);

} // namespace dorvan
