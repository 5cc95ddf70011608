#include "sheet/expression.h"

#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"

#include <cmath>

namespace dorvan {

namespace {

double InRange(double value) {
    if (!std::isfinite(value)) throw RuntimeFailure(Failure::Overflow);
    return value;
}

} // namespace

ExpressionValue EvaluateCellText(std::string_view text) {
    bool started = false;
    double accumulator = 0.0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const char sign = text[place];
        if (sign != '+' && sign != '-' && sign != '*' && sign != '/') continue;
        const double left = started ? accumulator : LeadingNumber(text);
        if (!started) accumulator = 0.0;
        started = true;
        const double right = LeadingNumber(text.substr(place + 1));
        if (sign == '/' && right == 0.0) return {accumulator, true};
        const bool signOfTheFirstNumber = place == 0 && (sign == '+' || sign == '-');
        if (signOfTheFirstNumber)
            accumulator = left;
        else if (sign == '+')
            accumulator = InRange(left + right);
        else if (sign == '-')
            accumulator = InRange(left - right);
        else if (sign == '*')
            accumulator = InRange(left * right);
        else
            accumulator = InRange(left / right);
    }
    return {started ? accumulator : LeadingNumber(text), false};
}

} // namespace dorvan
