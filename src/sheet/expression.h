#pragma once

#include <string_view>

namespace dorvan {

struct ExpressionValue {
    double Value = 0.0;
    bool DividedByZero = false; // evaluation stopped there, with what it had
};

// The arithmetic that a cell of numbers accepts: leading numbers joined by + - * /, from left to right, with
// no precedence and no brackets ("1+2*3" gives 9). The decimal separator is a point. The sign of an exponent
// is an operator as well. A text without a number gives 0. Fails with Overflow beyond 64-bit floats.
ExpressionValue EvaluateCellText(std::string_view text);

} // namespace dorvan
