#include "sheet/sheet_history.h"

#include "numbers/text.h"
#include "session/history.h"

#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <utility>

namespace dorvan {

using namespace DocumentGrid;

namespace {

RowTexts TextsOf(const Grid& grid, int row) {
    RowTexts texts;
    for (int column = NameColumn; column < grid.Columns(); ++column) texts.push_back(grid.Text(row, column));
    while (!texts.empty() && texts.back().empty()) texts.pop_back();
    return texts;
}

void SetTexts(Grid& grid, int row, const RowTexts& texts) {
    for (int column = NameColumn; column < grid.Columns(); ++column) {
        const auto place = std::size_t(column - NameColumn);
        grid.SetText(row, column, place < texts.size() ? texts[place] : std::string());
    }
}

void SetColumn(Grid& grid, int column, const SheetState::Column& as) {
    grid.SetColumnWidth(column, as.Width);
    grid.SetColumnAlignment(column, as.Cells);
    grid.SetHeaderAlignment(column, as.Header);
}

// What differs between two states of a sheet: some rows in the place of some others, and columns. The rows
// above and below them are the same ones.
class SheetChange : public DocumentChange {
public:
    struct Side {
        std::vector<RowTexts> Rows;
        int RowCount = 0; // of the whole grid
        int ColumnCount = 0;
        std::vector<std::pair<int, SheetState::Column>> Columns;
        int Row = 0; // the current cell
        int Column = 0;
    };

    SheetChange(std::size_t first, Side before, Side after)
        : first_(first), before_(std::move(before)), after_(std::move(after)) {}

    void Undo(ChildWindow& window) const override { Replace(window, after_, before_); }
    void Redo(ChildWindow& window) const override { Replace(window, before_, after_); }

private:
    void Replace(ChildWindow& window, const Side& from, const Side& to) const;

    std::size_t first_; // row of the grid
    Side before_;
    Side after_;
};

void SheetChange::Replace(ChildWindow& window, const Side& from, const Side& to) const {
    Grid& grid = dynamic_cast<frmNotePad&>(window).Grid1;
    std::vector<RowTexts> rows = to.Rows;
    if (from.RowCount != to.RowCount) // those below move
        for (int row = int(first_ + from.Rows.size()); row < grid.Rows(); ++row)
            rows.push_back(TextsOf(grid, row));
    grid.SetSize(to.RowCount, to.ColumnCount);
    for (int row = int(first_); const auto& texts : rows)
        if (row < grid.Rows()) SetTexts(grid, row++, texts);
    for (int record = 1; record < grid.Rows(); ++record)
        if (grid.Text(record, NumberColumn).empty()) grid.SetText(record, NumberColumn, SignedText(record));
    for (const auto& [column, as] : to.Columns) SetColumn(grid, column, as);
    grid.SetCurrent(std::min(to.Row, grid.Rows() - 1), std::min(to.Column, grid.Columns() - 1));
}

SheetChange::Side SideOf(const SheetState& state, const SheetState& other, std::size_t first,
                         std::size_t below) {
    SheetChange::Side side;
    side.Rows.assign(state.Rows.begin() + std::ptrdiff_t(first), state.Rows.end() - std::ptrdiff_t(below));
    side.RowCount = int(state.Rows.size());
    side.ColumnCount = int(state.Columns.size());
    for (std::size_t column = 0; column < state.Columns.size(); ++column)
        if (column >= other.Columns.size() || state.Columns[column] != other.Columns[column])
            side.Columns.emplace_back(int(column), state.Columns[column]);
    side.Row = state.Row;
    side.Column = state.CurrentColumn;
    return side;
}

void RecordChange(Session& session, const frmNotePad& sheet, std::string name, const SheetState& before,
                  const SheetState& after) {
    const auto& old = before.Rows;
    const auto& now = after.Rows;
    if (old == now && before.Columns == after.Columns) return;
    const std::size_t most = std::min(old.size(), now.size());
    std::size_t first = 0;
    while (first < most && old[first] == now[first]) ++first;
    std::size_t below = 0;
    while (below < most - first && old[old.size() - 1 - below] == now[now.size() - 1 - below]) ++below;
    RecordStep(session, sheet, std::move(name),
               std::make_unique<SheetChange>(first, SideOf(before, after, first, below),
                                             SideOf(after, before, first, below)));
}

} // namespace

std::string RecordCalled(std::string_view name, int row) {
    const std::string_view trimmed = TrimSpaces(name);
    return trimmed.empty() ? fmt::format("Record {}", row) : std::string(trimmed);
}

SheetState StateOf(const Grid& grid) {
    SheetState state;
    for (int row = 0; row < grid.Rows(); ++row) state.Rows.push_back(TextsOf(grid, row));
    for (int column = 0; column < grid.Columns(); ++column)
        state.Columns.push_back(
            {grid.ColumnWidth(column), grid.ColumnAlignment(column), grid.HeaderAlignment(column)});
    state.Row = grid.Row();
    state.CurrentColumn = grid.Column();
    return state;
}

SheetStep::SheetStep(Session& session, frmNotePad& sheet, std::string name)
    : session_(session), sheet_(sheet), name_(std::move(name)), before_(StateOf(sheet.Grid1)),
      failures_(std::uncaught_exceptions()) {}

SheetStep::~SheetStep() noexcept(false) {
    sheet_.ForgetEdit();
    if (std::uncaught_exceptions() == failures_)
        RecordChange(session_, sheet_, std::move(name_), before_, StateOf(sheet_.Grid1));
}

void RecordCellEdit(Session& session, const frmNotePad& sheet, int row, int column, std::string before) {
    const Grid& grid = sheet.Grid1;
    if (row >= grid.Rows() || column >= grid.Columns() || grid.Text(row, column) == before) return;
    SheetChange::Side now;
    now.Rows = {TextsOf(grid, row)};
    now.RowCount = grid.Rows();
    now.ColumnCount = grid.Columns();
    now.Row = row;
    now.Column = column;
    SheetChange::Side old = now;
    old.Rows[0].resize(std::size_t(grid.Columns() - NameColumn));
    old.Rows[0][std::size_t(column - NameColumn)] = std::move(before);
    std::string name = "Edit " + RecordCalled(old.Rows[0][0], row);
    if (column > NameColumn) name += ", " + std::string(TrimSpaces(grid.Text(HeaderRow, column)));
    RecordStep(session, sheet, std::move(name),
               std::make_unique<SheetChange>(std::size_t(row), std::move(old), std::move(now)));
}

} // namespace dorvan
