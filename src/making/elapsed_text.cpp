#include "making/elapsed_text.h"

#include "numbers/number_text.h"

namespace dorvan {

std::string ElapsedText(float seconds, char decimalSeparator) {
    return FormatPattern(double(seconds), "###0.0", decimalSeparator) + " second";
}

} // namespace dorvan
