#include "numbers/number_text.h"

#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

namespace dorvan {

namespace {

constexpr std::string_view Blanks = " \t";

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

bool IsSign(char character) { return character == '+' || character == '-'; }

std::size_t SkipDigits(std::string_view text, std::size_t place) {
    while (place < text.size() && IsDigit(text[place])) ++place;
    return place;
}

// The place behind an exponent that starts at `place`; `place` itself where there is none.
std::size_t SkipExponent(std::string_view text, std::size_t place) {
    if (place >= text.size() || (text[place] != 'e' && text[place] != 'E')) return place;
    std::size_t digits = place + 1;
    if (digits < text.size() && IsSign(text[digits])) ++digits;
    const std::size_t end = SkipDigits(text, digits);
    return end == digits ? place : end;
}

// The length of the longest leading part that is a sign, digits with at most one separator, an exponent; 0
// where there is no digit.
std::size_t NumberLength(std::string_view text, char decimalSeparator) {
    const std::size_t start = !text.empty() && IsSign(text[0]) ? 1 : 0;
    std::size_t place = SkipDigits(text, start);
    std::size_t digits = place - start;
    if (place < text.size() && text[place] == decimalSeparator) {
        const std::size_t end = SkipDigits(text, place + 1);
        digits += end - place - 1;
        place = end;
    }
    return digits == 0 ? 0 : SkipExponent(text, place);
}

// Tells the two ways out of a float's range apart, for a number with a point, no sign, and not 0.
bool IsAboveOne(std::string_view number) {
    const std::size_t exponentPlace = number.find_first_of("eE");
    const std::string_view digits = number.substr(0, exponentPlace);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t first = digits.find_first_of("123456789");
    long long exponent = 0;
    if (exponentPlace != std::string_view::npos) {
        std::string_view text = number.substr(exponentPlace + 1);
        if (text[0] == '+') text.remove_prefix(1);
        const auto result = std::from_chars(text.data(), text.data() + text.size(), exponent);
        if (result.ec == std::errc::result_out_of_range) return text[0] != '-';
    }
    return exponent > static_cast<long long>(first) - static_cast<long long>(point); // no sum that overflows
}

// `number` is of the form that NumberLength accepts, with a point. Rounded once, to the nearest `Float`; 0 or
// a subnormal number where it is too small, Overflow where it is too large.
template <class Float> Float ConvertWithPoint(std::string_view number) {
    const bool negative = number[0] == '-';
    if (IsSign(number[0])) number.remove_prefix(1);
    Float value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    // Libraries differ in how they tell of too large a number: by the error or by infinity.
    const bool outOfRange = result.ec == std::errc::result_out_of_range;
    if (std::isinf(value) || (outOfRange && IsAboveOne(number))) throw RuntimeFailure(Failure::Overflow);
    if (outOfRange) value = 0;
    return negative ? -value : value;
}

template <class Float> Float Convert(std::string_view number, char decimalSeparator) {
    const std::size_t place =
        decimalSeparator == '.' ? std::string_view::npos : number.find(decimalSeparator);
    if (place == std::string_view::npos) return ConvertWithPoint<Float>(number);
    std::string withPoint(number);
    withPoint[place] = '.';
    return ConvertWithPoint<Float>(withPoint);
}

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

template <class Float> Float Strict(std::string_view text, char decimalSeparator) {
    const std::string_view number = TrimBlanks(text);
    if (number.empty() || NumberLength(number, decimalSeparator) != number.size())
        throw RuntimeFailure(Failure::TypeMismatch);
    return Convert<Float>(number, decimalSeparator);
}

} // namespace

double LeadingNumber(std::string_view text) {
    const std::string_view trimmed = TrimBlanks(text);
    const std::size_t length = NumberLength(trimmed, '.');
    return length == 0 ? 0.0 : ConvertWithPoint<double>(trimmed.substr(0, length));
}

double StrictDouble(std::string_view text, char decimalSeparator) {
    return Strict<double>(text, decimalSeparator);
}

float StrictFloat(std::string_view text, char decimalSeparator) {
    return Strict<float>(text, decimalSeparator);
}

std::int16_t StrictInt16(std::string_view text, char decimalSeparator) {
    return RoundToInt16(StrictDouble(text, decimalSeparator));
}

// A text without the separator that has every other one replaced by it reads as the text itself does with the
// other separator.
float ParseSheetNumber(std::string_view text, char decimalSeparator) {
    const char other = decimalSeparator == '.' ? ',' : '.';
    const bool hasSeparator = text.find(decimalSeparator) != std::string_view::npos;
    return StrictFloat(text, hasSeparator ? decimalSeparator : other);
}

} // namespace dorvan
