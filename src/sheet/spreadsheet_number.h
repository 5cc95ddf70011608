#pragma once

#include <optional>
#include <string_view>

namespace dorvan {

// The number that a spreadsheet's text shows: with a decimal point or comma, groups of three digits between
// blanks, apostrophes, points or commas, an exponent, either minus sign. Nothing for any other text. Of
// "1,234" the comma is the decimal one, as everywhere in a sheet.
std::optional<double> SpreadsheetNumber(std::string_view text);

// "N/A" in capitals or not, and what spreadsheets and statistics programs write for it.
bool IsMissingMark(std::string_view text);

} // namespace dorvan
