#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dorvan {

// A block of texts by rows, all of one length.
using TextTable = std::vector<std::vector<std::string>>;

// Lines of fields with tabs between, as spreadsheets exchange them: a field with a tab, a line's end or a
// quotation mark stands in quotation marks, those inside doubled.
std::string TabbedText(const TextTable& table);

// The reverse, with any kind of line's end. Short lines are filled up with empty fields.
TextTable ReadTabbedText(std::string_view text);

// The same as a table of HTML.
std::string HtmlTable(const TextTable& table);

} // namespace dorvan
