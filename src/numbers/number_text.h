#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers to text and back. A decimal separator is one ASCII character, '.' or ','.
namespace dorvan {

// A pattern such as "###0.000" or "#0.0": "0" is a digit that is always shown, "#" one shown only when it is
// needed, "." the place of the decimal separator. The exact binary value is rounded, halves away from zero;
// a value that rounds to zero carries no minus sign. No grouping, any number of digits before the separator.
// Fails with Overflow for infinities and NaN, with InvalidProcedureCall for any other sign in the pattern.
std::string FormatPattern(double value, std::string_view pattern, char decimalSeparator);

// The plain text of a 32-bit float: at most 7 significant digits, no trailing zeros; the form with
// an exponent ("1E+07", "1.234568E-05") when the decimal exponent of the rounded value is below -4 or
// above 6. The exact binary value is rounded, ties to even. Zero has no sign. Fails with Overflow for
// infinities and NaN.
std::string PlainText(float value, char decimalSeparator);

// The longest leading part that forms a number: blanks, a sign, digits with at most one ".", an exponent
// (e or E with at least one digit behind it). The rest is ignored; no such part reads as 0.
// Fails with Overflow outside the range of a 64-bit float.
double LeadingNumber(std::string_view text);

// Strict, locale-aware conversions: blanks around are allowed, then the whole text has to be one number with
// `decimalSeparator`, optionally with an exponent; no grouping. Fail with TypeMismatch on any other text
// (the empty one included) and with Overflow outside the range of the target.
double StrictDouble(std::string_view text, char decimalSeparator);
float StrictFloat(std::string_view text, char decimalSeparator);
std::int16_t StrictInt16(std::string_view text, char decimalSeparator); // rounds, ties to even

// The number parser of all files of data. A text without `decimalSeparator` has the other separator (comma or
// point) replaced by it, all occurrences; then StrictFloat. So a file written under one locale reads under
// the other.
float ParseSheetNumber(std::string_view text, char decimalSeparator);

// '.' if the text has one, else ',' if it has one, else '.'.
char DecimalSeparatorIn(std::string_view formattedNumber);

// The separator that the process's locale-aware number formatting writes for 1.234: '.' or ','; '.' if
// neither.
char FindDecimalSeparator();

} // namespace dorvan
