#pragma once

#include "session/documents.h"

#include <vector>

namespace dorvan {

// The four automatic section limits of an n by n matrix of distances: its 20, 40, 60 and 80 percent points,
// without interpolation. Fails with SubscriptOutOfRange for n = 2.
Array1<float> ComputeAutomaticLimits(const FloatTable& distances);

// Ascending, in place, over all elements but the last, which stays: a radix sort of the floats' bits, 11 at a
// time. O(n).
void SortAllButLast(std::vector<float>& values);

} // namespace dorvan
