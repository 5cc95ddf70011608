#pragma once

#include "distance/measures.h"
#include "session/documents.h"
#include "session/session.h"

#include <cstdint>

namespace dorvan {

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
