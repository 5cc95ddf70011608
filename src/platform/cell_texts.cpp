#include "platform/cell_texts.h"

#include "numbers/text.h"

#include <algorithm>

namespace dorvan {

namespace {

std::string Field(const std::string& text) {
    if (text.find_first_of("\t\r\n\"") == std::string::npos) return text;
    return '"' + ReplaceAll(text, "\"", "\"\"") + '"';
}

// Text that stands in quotation marks from `place` on; `place` moves behind them. One that has no end, or
// goes on behind it, is taken as it stands.
bool TakeQuoted(std::string_view text, std::size_t& place, std::string& field) {
    std::string taken;
    std::size_t next = place + 1;
    while (next < text.size()) {
        if (text[next] != '"') {
            taken += text[next++];
            continue;
        }
        const bool doubled = next + 1 < text.size() && text[next + 1] == '"';
        if (!doubled) break;
        taken += '"';
        next += 2;
    }
    if (next >= text.size()) return false;
    ++next;
    if (next < text.size() && std::string_view("\t\r\n").find(text[next]) == std::string_view::npos)
        return false;
    place = next;
    field = std::move(taken);
    return true;
}

std::string Escaped(const std::string& text) {
    std::string html = ReplaceAll(text, "&", "&amp;");
    html = ReplaceAll(html, "<", "&lt;");
    html = ReplaceAll(html, ">", "&gt;");
    return ReplaceAll(html, "\"", "&quot;");
}

} // namespace

std::string TabbedText(const CellTexts& table) {
    std::string text;
    for (const auto& row : table) {
        for (std::size_t column = 0; column < row.size(); ++column)
            text += (column > 0 ? "\t" : "") + Field(row[column]);
        text += '\n';
    }
    return text;
}

CellTexts ReadTabbedText(std::string_view text) {
    CellTexts table;
    std::size_t place = 0;
    std::size_t columns = 0;
    while (place < text.size()) {
        std::vector<std::string> row;
        for (bool more = true; more;) {
            std::string field;
            if (place >= text.size() || text[place] != '"' || !TakeQuoted(text, place, field)) {
                const std::size_t end = std::min(text.find_first_of("\t\r\n", place), text.size());
                field = text.substr(place, end - place);
                place = end;
            }
            row.push_back(std::move(field));
            more = place < text.size() && text[place] == '\t';
            if (more) ++place;
        }
        if (text.substr(place, 2) == "\r\n") ++place;
        ++place; // the line's end
        columns = std::max(columns, row.size());
        table.push_back(std::move(row));
    }
    for (auto& row : table) row.resize(columns);
    return table;
}

std::string HtmlTable(const CellTexts& table) {
    std::string html = "<table>\n";
    for (const auto& row : table) {
        html += "<tr>";
        for (const auto& text : row) html += "<td>" + Escaped(text) + "</td>";
        html += "</tr>\n";
    }
    return html + "</table>\n";
}

} // namespace dorvan
