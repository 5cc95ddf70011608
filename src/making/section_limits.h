#pragma once

#include "session/documents.h"

#include <vector>

namespace dorvan {

// The four automatic section limits of an n by n matrix of distances: its 20, 40, 60 and 80 percent points,
// without interpolation. Fails with SubscriptOutOfRange for n = 2.
Array1<float> ComputeAutomaticLimits(const FloatTable& distances);

// Shell's sort as the limits use it: ascending, in place, over all elements but the last, which stays.
// (D. L. Shell, A high-speed sorting procedure, 1959, with halved gaps.)
void SortAllButLast(std::vector<float>& values);

} // namespace dorvan
