#pragma once

#include "making/ordering_options.h"
#include "numbers/random_source.h"

#include <cstdint>
#include <span>

// The moves of the Ravelin ordering. An order P of n records, n at least 2; places count from 1.
namespace dorvan {

using OrderRow = std::span<std::int16_t>;

// Takes the element at place a out and puts it back at place b; the elements between close up.
void MoveElement(OrderRow order, std::int32_t a, std::int32_t b);

// 1 to 8, by the weights: r up to UmWeightTotal, and what lies above the first seven weights goes to operator
// 8. One draw. Fails with Overflow for an r above 32767.
int ChooseOperator(RandomSource& random, const OrderingOptions& options);

// 1 sequence change, 2 fragment transfer, 3 some single transfers, 4 single transfer, 5 some remote
// conversions, 6 remote conversion, 7 some neighbour conversions, 8 neighbour conversion.
void ApplyOperator(int which, RandomSource& random, OrderRow order);

// 500 bursts of 1 to 20 moves of single elements.
void Shake(RandomSource& random, OrderRow order);

} // namespace dorvan
