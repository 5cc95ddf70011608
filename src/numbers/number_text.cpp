#include "numbers/number_text.h"

#include "numbers/runtime_failure.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <optional>

namespace dorvan {

namespace {

__extension__ using Wide = unsigned __int128;

struct DigitPattern {
    std::size_t leastWhole = 0; // digits before the separator
    std::size_t leastDecimals = 0;
    std::size_t mostDecimals = 0;
    bool hasSeparator = false;
};

// "0" and "#" as told in the header; a "#" behind a "0" (before it, in the decimals) is always shown too.
DigitPattern ReadPattern(std::string_view pattern) {
    DigitPattern read;
    for (const char sign : pattern) {
        if (sign == '.' && !read.hasSeparator) {
            read.hasSeparator = true;
        } else if (sign != '0' && sign != '#') {
            throw RuntimeFailure(Failure::InvalidProcedureCall, pattern);
        } else if (read.hasSeparator) {
            ++read.mostDecimals;
            if (sign == '0') read.leastDecimals = read.mostDecimals;
        } else if (sign == '0' || read.leastWhole > 0) {
            ++read.leastWhole;
        }
    }
    return read;
}

// `digits`: those of the rounded value times 10^mostDecimals, with no leading zero, empty for 0.
std::string WriteDigits(bool negative, std::string_view digits, const DigitPattern& pattern,
                        char decimalSeparator) {
    const std::size_t wholeLength =
        digits.size() > pattern.mostDecimals ? digits.size() - pattern.mostDecimals : 0;
    const std::string_view decimals = digits.substr(wholeLength);
    const std::size_t zeros = pattern.mostDecimals - decimals.size(); // between separator and `decimals`
    std::size_t shown = pattern.mostDecimals;
    while (shown > pattern.leastDecimals && (shown <= zeros || decimals[shown - zeros - 1] == '0')) --shown;

    std::string text;
    if (negative && !digits.empty()) text += '-';
    if (wholeLength < pattern.leastWhole) text.append(pattern.leastWhole - wholeLength, '0');
    text.append(digits.substr(0, wholeLength));
    if (shown > 0 || pattern.hasSeparator) text += decimalSeparator;
    text.append(zeros < shown ? zeros : shown, '0');
    if (shown > zeros) text.append(decimals.substr(0, shown - zeros));
    return text;
}

enum class Ties { AwayFromZero, ToEven };

constexpr std::size_t MostScaledDecimals = 18;

constexpr std::array<std::uint64_t, MostScaledDecimals + 1> PowersOfTen = [] {
    std::array<std::uint64_t, MostScaledDecimals + 1> powers{1};
    for (std::size_t exponent = 1; exponent < powers.size(); ++exponent)
        powers[exponent] = powers[exponent - 1] * 10;
    return powers;
}();

// The exact |value| * 10^decimals rounded to an integer; nothing where that needs more than 64 bits.
// `value` is finite, `decimals` at most MostScaledDecimals.
std::optional<std::uint64_t> RoundScaled(double value, std::size_t decimals, Ties ties) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const auto biasedExponent = static_cast<int>(bits >> 52 & 0x7FF);
    std::uint64_t mantissa = bits & 0xFFFFFFFFFFFFFu;
    if (biasedExponent != 0) mantissa |= std::uint64_t(1) << 52;
    const int exponent = (biasedExponent != 0 ? biasedExponent : 1) - 1075; // |value| = mantissa * 2^exponent

    const Wide scaled = Wide(mantissa) * PowersOfTen[decimals]; // below 2^113
    if (exponent > 11) return std::nullopt;                     // |value| is 2^64 at least
    Wide rounded = 0;
    if (exponent >= 0) {
        rounded = scaled << exponent;
    } else if (exponent >= -114) { // below that it is less than a half
        const Wide half = Wide(1) << (-exponent - 1);
        rounded = (scaled + half) >> -exponent;
        const bool isTie = (scaled & (2 * half - 1)) == half;
        if (isTie && ties == Ties::ToEven) rounded &= ~Wide(1);
    }
    if (rounded >> 64 != 0) return std::nullopt;
    return static_cast<std::uint64_t>(rounded);
}

// Adds 1 to a number of decimal digits that has a leading zero or another digit below 9.
void Increment(std::string& digits) {
    std::size_t place = digits.size() - 1;
    for (; digits[place] == '9'; --place) digits[place] = '0';
    ++digits[place];
}

// As RoundScaled with ties away from zero, for any finite value and any number of decimals: from the whole
// decimal expansion, which ends after 1074 decimals at most. Digits without leading zeros, empty for 0.
std::string RoundScaledLong(double value, std::size_t decimals) {
    constexpr std::size_t AllDecimals = 1074;
    std::array<char, 1400> expansion; // 309 digits, the point and the decimals
    const auto end = std::to_chars(expansion.data(), expansion.data() + expansion.size(), std::fabs(value),
                                   std::chars_format::fixed, AllDecimals);
    const std::string_view exact(expansion.data(), static_cast<std::size_t>(end.ptr - expansion.data()));
    const std::size_t point = exact.size() - AllDecimals - 1;

    std::string digits = "0";
    digits += exact.substr(0, point);
    digits += exact.substr(point + 1, decimals);
    if (decimals > AllDecimals)
        digits.append(decimals - AllDecimals, '0');
    else if (decimals < AllDecimals && exact[point + 1 + decimals] >= '5')
        Increment(digits);
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

std::string_view WriteInteger(std::uint64_t value, std::array<char, 20>& digits) {
    if (value == 0) return {};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), static_cast<std::size_t>(end.ptr - digits.data())};
}

// The text of %.7G, whose exponent has two digits at least.
std::string PlainTextWithExponent(float value, char decimalSeparator) {
    std::array<char, 24> characters;
    const auto end = std::to_chars(characters.data(), characters.data() + characters.size(), value,
                                   std::chars_format::general, 7);
    std::string text(characters.data(), end.ptr);
    for (char& character : text) {
        if (character == '.') character = decimalSeparator;
        if (character == 'e') character = 'E';
    }
    return text;
}

} // namespace

std::string FormatPattern(double value, std::string_view pattern, char decimalSeparator) {
    if (!std::isfinite(value)) throw RuntimeFailure(Failure::Overflow);
    const DigitPattern read = ReadPattern(pattern);
    const bool negative = value < 0;
    if (read.mostDecimals <= MostScaledDecimals) {
        if (const auto scaled = RoundScaled(value, read.mostDecimals, Ties::AwayFromZero)) {
            std::array<char, 20> digits;
            return WriteDigits(negative, WriteInteger(*scaled, digits), read, decimalSeparator);
        }
    }
    return WriteDigits(negative, RoundScaledLong(value, read.mostDecimals), read, decimalSeparator);
}

std::string PlainText(float value, char decimalSeparator) {
    if (!std::isfinite(value)) throw RuntimeFailure(Failure::Overflow);
    const double magnitude = std::fabs(value);
    if (magnitude == 0) return "0";
    if (magnitude < 1e-4 || magnitude >= 1e7) return PlainTextWithExponent(value, decimalSeparator);

    // Between these limits no exponent: 7 digits, the first of them at 10^6 for 0 decimals, at 10^-4 for 10.
    DigitPattern pattern{1, 0, 0, false};
    for (double limit = 1e6; pattern.mostDecimals < 10 && magnitude < limit; limit /= 10)
        ++pattern.mostDecimals;
    const std::uint64_t scaled = RoundScaled(magnitude, pattern.mostDecimals, Ties::ToEven).value();
    std::array<char, 20> digits;
    return WriteDigits(value < 0, WriteInteger(scaled, digits), pattern, decimalSeparator);
}

char DecimalSeparatorIn(std::string_view formattedNumber) {
    if (formattedNumber.find('.') != std::string_view::npos) return '.';
    return formattedNumber.find(',') != std::string_view::npos ? ',' : '.';
}

char FindDecimalSeparator() {
    std::array<char, 32> text; // 1.234, whatever bytes the locale's separator has
    std::snprintf(text.data(), text.size(), "%.3f", 1.234);
    return DecimalSeparatorIn(text.data());
}

} // namespace dorvan
