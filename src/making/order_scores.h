#pragma once

#include "making/ordering_method.h"
#include "session/documents.h"

#include <cstdint>

// The scores that the genetic orderings give to an order of n records. The smaller, the better: a pair far
// apart on the diagonal costs much if its distance is small.
namespace dorvan {

using ByteTable = Array2<std::uint8_t>;

// What OrderScorer needs for the score F: d + 1, rounded to a 32-bit float.
FloatTable ScoreDenominators(const FloatTable& distances);

// The distances, those above 255 as 255, times the coefficient, rounded to bytes (ties to even); all 0 for a
// coefficient of exactly 0. Fails with Overflow for a product outside the range of a byte.
ByteTable MakeByteMatrix(const FloatTable& distances, float coefficient);

// What OrderScorer needs for the UM coefficient: byte + 1.
FloatTable UmDenominators(const ByteTable& bytes);

// The sum over the places i < j of (P(j) - P(i))^2 / (byte(P(i), P(j)) + 1), divided by n^2 / 2, all in
// 64-bit floats. The differences are those of the record numbers: but for rounding every order has the UM
// coefficient of 1, 2, ..., n.
double BaseOfGeneration(const ByteTable& bytes, const Order& order);

} // namespace dorvan
