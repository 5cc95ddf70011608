#pragma once

#include "session/documents.h"

#include <functional>

// The two standardizations of a table (record, variable), in place, variable by variable.
namespace dorvan {

// (x - mean) / deviation, by the deviation of a sample (divisor n - 1, so n has to be above 1). The mean
// comes from a 32-bit running sum, all else is 64-bit. Fails with DivisionByZero for a deviation of 0, with
// Overflow for a sum outside the range of a 32-bit float.
void StandardizeByDeviation(FloatTable& values);

// (x - min) / (max - min) * 100, so that a variable runs from 0 to 100. One whose values are all the same
// keeps them, and `tellConstant` is called once for each of its records.
void StandardizeToRange(FloatTable& values, const std::function<void()>& tellConstant);

} // namespace dorvan
