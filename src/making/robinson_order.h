#pragma once

#include "making/attractions.h"

#include <optional>

namespace dorvan {

// True if in each row the distances nowhere fall as the places move away from the diagonal: the order has no
// anti-Robinson event. O(n^2).
bool IsRobinson(const FloatTable& distances, const Records& order);

// An order without anti-Robinson events of a symmetric table, or nothing where there is none. Where it
// exists, no order has a smaller 2-SUM (Laurent and Seminaroti, The quadratic assignment problem is easy for
// Robinsonian matrices with Toeplitz structure, 2015). The order of the table itself comes first.
//
// By sweeps of the similarity-first search: if one exists, so many as there are records find it, mostly the
// first few (Laurent and Seminaroti, Similarity-First Search, 2017). A sweep takes O(n^2 log n) at most.
// Tables without one are mostly recognised from some four of their records at once.
std::optional<Records> RobinsonOrder(const FloatTable& distances);

} // namespace dorvan
