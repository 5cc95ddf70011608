#pragma once

#include "numbers/arrays.h"

#include <array>
#include <string>

namespace dorvan {

// The legend of a bitmap or a metafile from the shortest distances to the longest, for limits 1 to 4:
// "0 - 1.50", "1.50 - 2.25", ..., ">= 4.00".
std::array<std::string, 5> LegendTexts(const Array1<float>& limits, char decimalSeparator);

} // namespace dorvan
