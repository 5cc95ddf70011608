#pragma once

#include <cstddef>
#include <string>

namespace dorvan::test {

// The plain twin of FormatPattern for the patterns "0" or "0.00...0": `decimals` decimals and a point where
// there are any. Works on the whole decimal expansion of the value, digit by digit.
std::string SlowFormat(double value, std::size_t decimals);

} // namespace dorvan::test
