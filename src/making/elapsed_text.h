#pragma once

#include <string>

namespace dorvan {

// "12.3 second": at least one digit before the separator, one after it, the same word for any count.
std::string ElapsedText(float seconds, char decimalSeparator);

} // namespace dorvan
