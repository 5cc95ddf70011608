#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dorvan {

// A block of texts by rows, all of one length.
using CellTexts = std::vector<std::vector<std::string>>;

// Lines of fields with tabs between, as spreadsheets exchange them: a field with a tab, a line's end or a
// quotation mark stands in quotation marks, those inside doubled.
std::string TabbedText(const CellTexts& table);

// The reverse, with any kind of line's end. Short lines are filled up with empty fields.
CellTexts ReadTabbedText(std::string_view text);

// The same as a table of HTML.
std::string HtmlTable(const CellTexts& table);

} // namespace dorvan
