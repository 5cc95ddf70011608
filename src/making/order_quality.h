#pragma once

#include "session/documents.h"

#include <cstdint>

// How good an order is: the records 1..n as they stand in a table of distances (1..n, 1..n). The smaller each
// of these, the better; an order of fewer than 2 records has 0.
namespace dorvan {

// The sum of the distances of following records.
double PathLength(const FloatTable& distances);

// The score F of the simple genetic ordering. Fails with DivisionByZero for a distance of -1.
float ScoreOfOrder(const FloatTable& distances);

// The UM coefficient of the Ravelin ordering, with distances made to bytes by the coefficient 1. Fails with
// Overflow for a distance below the range of a byte; those above it count as 255.
float UmOfOrder(const FloatTable& distances);

// How often a row's distances do not grow with the places' distance from the diagonal: the pairs j < k < i
// with d(i, j) < d(i, k), and i < j < k with d(i, j) > d(i, k), for all i. 0 in a Robinson matrix (Robinson,
// A method for chronologically ordering archaeological deposits, 1951).
std::int64_t AntiRobinsonEvents(const FloatTable& distances);

} // namespace dorvan
