#pragma once

#include "distance/measures.h"

#include <cstdint>

// Distances of many pairs at once, one pair in each SIMD lane. A sum is sequential within its pair, so speed
// comes from independent pairs side by side.
namespace dorvan {

// Fills the cells above the diagonal of the n by n table `distances` with the distances of the first n rows
// of `values`, m variables wide, as far as lanes can decide them: every cell that it writes holds the bits of
// DistanceBetween or is no finite number. Pairs that fail are among the latter.
void ComputePairsSideBySide(FloatTable& distances, const FloatTable& values, std::int32_t m,
                            const Measure& measure);

// A zero diagonal, and below it what stands above it.
void MirrorUpperTriangle(FloatTable& distances);

// The kernels, for the table of measures. Each fills the cells of the pairs for values that are all finite
// and not more variables than 16 bits count.
namespace SideBySide {
using Kernel = void(FloatTable& distances, const FloatTable& values, std::int32_t m, const Measure& measure);
Kernel Henzel, Czekanowski, Euclidean, Manhattan, Chebychev, Customized;
Kernel DfDD, LanceAndWilliams, Jaccard, YulesQ;
} // namespace SideBySide

bool AllFinite(const float* values, std::int64_t count);

} // namespace dorvan
