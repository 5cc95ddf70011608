#include "sheet/pasted_block.h"

#include "numbers/number_text.h"
#include "numbers/text.h"
#include "session/document_grid.h"
#include "session/documents.h"
#include "sheet/spreadsheet_number.h"

#include <algorithm>
#include <cmath>

namespace dorvan {

using namespace DocumentGrid;

namespace {

constexpr double LimitOfValues = 10000000.0; // as of a cell that is typed

bool IsEmpty(const std::string& text) { return TrimSpaces(text).empty(); }

// A value as any cell may hold it.
bool IsValue(const std::string& text) {
    return IsEmpty(text) || IsMissingMark(text) || SpreadsheetNumber(text).has_value();
}

// A field that can only be a name.
bool IsName(const std::string& text) { return !IsValue(text); }

// Some are names, and none is a value of its own.
template <class Fields> bool AreNames(const Fields& fields) {
    return std::ranges::any_of(fields, IsName) &&
           std::ranges::all_of(fields, [](const std::string& text) { return IsEmpty(text) || IsName(text); });
}

std::vector<std::string> ColumnOf(const CellTexts& block, std::size_t column, std::size_t from) {
    std::vector<std::string> fields;
    for (std::size_t row = from; row < block.size(); ++row) fields.push_back(block[row][column]);
    return fields;
}

// The names of variables over values: a first line of names with another line below.
bool HasHeadLine(const CellTexts& block, std::size_t firstValue) {
    if (block.size() < 2 || firstValue >= block.front().size()) return false;
    const std::vector<std::string> heads(block.front().begin() + std::ptrdiff_t(firstValue),
                                         block.front().end());
    return AreNames(heads) &&
           !AreNames(std::vector<std::string>(block[1].begin() + std::ptrdiff_t(firstValue), block[1].end()));
}

// The names of records before values.
bool HasNameColumn(const CellTexts& block, bool withHeads) {
    if (block.front().size() < 2) return false;
    const std::size_t from = withHeads ? 1 : 0;
    return AreNames(ColumnOf(block, 0, from)) && !AreNames(ColumnOf(block, 1, from));
}

std::string NameText(const std::string& text) {
    return std::string(TrimSpaces(ReplaceAll(ReplaceAll(text, "\r", ""), "\n", " ")));
}

// A number of three decimals is the nearest one to a whole number of thousandths.
bool IsRounded(double value) { return std::round(value * 1000) / 1000 != value; }

void PlaceValue(PastedBlock& placed, PlacedText cell, char decimalSeparator) {
    const auto number = SpreadsheetNumber(cell.Text);
    const bool missing = IsMissingMark(cell.Text) || number == double(NaValue);
    const std::string text = std::exchange(cell.Text, std::string(NaText));
    if (IsEmpty(text)) {
        ++placed.EmptyValues;
    } else if (!missing && number && *number < LimitOfValues) {
        cell.Text = FormatPattern(*number, "###0.000", decimalSeparator);
        placed.Rounded += IsRounded(*number) ? 1 : 0;
    } else if (!missing) {
        placed.NoNumbers.push_back({cell.Row, cell.Column, text});
    }
    placed.Cells.push_back(std::move(cell));
}

} // namespace

PastedBlock PlaceBlock(const CellTexts& block, int row, int column, char decimalSeparator) {
    PastedBlock placed;
    if (block.empty() || block.front().empty()) return placed;
    const bool headsAbove = row == 1 && HasHeadLine(block, column == NameColumn ? 1 : 0);
    if (column == FirstValueColumn && HasNameColumn(block, row == HeaderRow || headsAbove))
        column = NameColumn;
    if (headsAbove) row = HeaderRow;
    placed.Range = {row, column, row + int(block.size()) - 1, column + int(block.front().size()) - 1};
    placed.Rows = placed.Range.Bottom + 1;
    placed.Columns = placed.Range.Right + 1;
    for (int line = 0; line < placed.Range.Rows(); ++line)
        for (int field = 0; field < placed.Range.Columns(); ++field) {
            PlacedText cell{row + line, column + field, block[std::size_t(line)][std::size_t(field)]};
            const bool name = cell.Row == HeaderRow || cell.Column == NameColumn;
            if (cell.Row == HeaderRow && cell.Column == NameColumn) continue; // its own caption
            if (!name) {
                PlaceValue(placed, std::move(cell), decimalSeparator);
                continue;
            }
            cell.Text = NameText(cell.Text);
            placed.Cells.push_back(std::move(cell));
        }
    return placed;
}

} // namespace dorvan
