#include "numbers/slow_format_pattern.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace dorvan::test {

namespace {

using Digits = std::vector<int>; // of a decimal integer, the lowest first

void Multiply(Digits& digits, int factor) {
    int carry = 0;
    for (int& digit : digits) {
        carry += digit * factor;
        digit = carry % 10;
        carry /= 10;
    }
    for (; carry > 0; carry /= 10) digits.push_back(carry % 10);
}

Digits DigitsOf(std::uint64_t value) {
    Digits digits;
    for (; value > 0; value /= 10) digits.push_back(static_cast<int>(value % 10));
    return digits;
}

} // namespace

std::string SlowFormat(double value, std::size_t decimals) {
    int exponent = 0;
    const double fraction = std::frexp(std::fabs(value), &exponent);
    Digits digits = DigitsOf(static_cast<std::uint64_t>(std::ldexp(fraction, 53)));
    exponent -= 53; // |value| = digits * 2^exponent
    std::size_t expansion = 0;
    for (; exponent > 0; --exponent) Multiply(digits, 2);
    for (; exponent < 0; ++exponent, ++expansion) Multiply(digits, 5); // 2^-1 = 5 * 10^-1
    for (; expansion < decimals; ++expansion) digits.insert(digits.begin(), 0);
    digits.resize(std::max(digits.size(), expansion + 1), 0);

    const std::size_t dropped = expansion - decimals;
    const bool up = dropped > 0 && digits[dropped - 1] >= 5;
    digits.erase(digits.begin(), digits.begin() + static_cast<std::ptrdiff_t>(dropped));
    for (std::size_t place = 0; up && ++digits[place] == 10; ++place) {
        digits[place] = 0;
        if (place + 1 == digits.size()) digits.push_back(0);
    }

    const bool isZero = std::all_of(digits.begin(), digits.end(), [](int digit) { return digit == 0; });
    std::string text = value < 0 && !isZero ? "-" : "";
    for (std::size_t place = digits.size(); place > 0; --place) {
        if (place == decimals) text += '.';
        text += static_cast<char>('0' + digits[place - 1]);
    }
    return text;
}

} // namespace dorvan::test
