#include "sheet/spreadsheet_number.h"

#include "numbers/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace dorvan {

namespace {

constexpr std::size_t GroupLength = 3;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// Blanks that do not break a line stand between groups in some languages, and a sign of its own for minus.
std::string Plain(std::string_view text) {
    std::string plain = ReplaceAll(text, "\u00a0", " ");
    plain = ReplaceAll(plain, "\u202f", " ");
    plain = ReplaceAll(plain, "\u2212", "-");
    plain = ReplaceAll(plain, "\u2019", "'");
    return std::string(TrimSpaces(plain));
}

// Where the decimal separator stands; npos without one. The last of points and commas, unless it is one of
// several of its kind.
std::size_t DecimalPlace(std::string_view mantissa) {
    const std::size_t last = mantissa.find_last_of(".,");
    if (last == std::string_view::npos || std::ranges::count(mantissa, mantissa[last]) > 1)
        return std::string_view::npos;
    return last;
}

// The digits of a whole number without the marks between its groups; false when these are none.
bool TakeWhole(std::string_view whole, std::string& digits) {
    char mark = 0;
    std::size_t length = 0; // of the present group
    for (const char character : whole) {
        if (IsDigit(character)) {
            digits += character;
            ++length;
            continue;
        }
        if (std::string_view(" '.,").find(character) == std::string_view::npos) return false;
        if (mark == 0 ? length < 1 || length > GroupLength : length != GroupLength || character != mark)
            return false;
        mark = character;
        length = 0;
    }
    return mark == 0 || length == GroupLength;
}

} // namespace

std::optional<double> SpreadsheetNumber(std::string_view text) {
    const std::string plain = Plain(text);
    std::string_view rest = plain;
    std::string number;
    if (!rest.empty() && (rest.front() == '-' || rest.front() == '+')) {
        if (rest.front() == '-') number = "-";
        rest.remove_prefix(1);
    }
    const std::size_t exponent = std::min(rest.find_first_of("eE"), rest.size());
    const std::string_view mantissa = rest.substr(0, exponent);
    const std::size_t decimal = std::min(DecimalPlace(mantissa), mantissa.size());
    std::string digits;
    if (!TakeWhole(mantissa.substr(0, decimal), digits)) return std::nullopt;
    const std::string_view fraction = mantissa.substr(std::min(decimal + 1, mantissa.size()));
    if (digits.empty() && fraction.empty()) return std::nullopt;
    if (!std::ranges::all_of(fraction, IsDigit)) return std::nullopt;
    number += (digits.empty() ? "0" : digits) + "." + std::string(fraction.empty() ? "0" : fraction);
    std::string_view power = rest.substr(exponent);
    if (power.size() > 2 && power[1] == '+' && IsDigit(power[2])) { // which no parser below takes
        number += 'e';
        power.remove_prefix(2);
    }
    number += power;
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc() || end != number.data() + number.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

bool IsMissingMark(std::string_view text) {
    const std::string mark = LowerCase(TrimSpaces(text));
    return mark == "n/a" || mark == "na" || mark == "#n/a" || mark == "nan";
}

} // namespace dorvan
