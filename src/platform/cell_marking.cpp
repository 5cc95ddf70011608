#include "platform/cell_marking.h"

#include "platform/keys.h"

#include <algorithm>

namespace dorvan {

// Whatever has moved the current cell since the last time has ended the marking of then.
void CellMarking::TakeUp() {
    if (anchor_.row >= 0 && grid_.Marked() == marked_) return;
    anchor_ = end_ = {grid_.Row(), grid_.Column()};
}

void CellMarking::MarkFrom(Cell anchor, Cell end) {
    if (!HasCells()) return;
    const auto inside = [this](Cell cell) {
        return Cell{std::clamp(cell.row, 0, grid_.Rows() - 1),
                    std::clamp(cell.column, grid_.FixedColumns, grid_.Columns() - 1)};
    };
    anchor_ = inside(anchor);
    end_ = inside(end);
    marked_ = {std::min(anchor_.row, end_.row), std::min(anchor_.column, end_.column),
               std::max(anchor_.row, end_.row), std::max(anchor_.column, end_.column)};
    grid_.Mark(marked_);
}

void CellMarking::Press(int row, int column) { pressed_ = {row, column}; }

void CellMarking::DragTo(int row, int column) {
    if (pressed_.row < 0 || pressed_.column < 0 || row < 0 || column < 0) return;
    const bool stays = row == pressed_.row && column == pressed_.column;
    if (stays && grid_.Marked().IsOneCell()) return;
    Cell from = pressed_;
    Cell to{row, column};
    if (from.row < grid_.FixedRows && to.row < grid_.FixedRows) to.row = grid_.Rows() - 1;
    if (from.column < grid_.FixedColumns && to.column < grid_.FixedColumns) to.column = grid_.Columns() - 1;
    MarkFrom(from, to);
}

void CellMarking::ExtendTo(int row, int column) {
    if (row < 0 || column < 0) return;
    TakeUp();
    MarkFrom(anchor_, {row, column});
}

bool CellMarking::ExtendByKey(int keyCode, bool control, int pageRows) {
    const int lastRow = grid_.Rows() - 1;
    const int lastColumn = grid_.Columns() - 1;
    const int firstRow = std::min(grid_.FixedRows, lastRow);
    TakeUp();
    Cell end = end_;
    switch (keyCode) {
    case key::Left: end.column = control ? grid_.FixedColumns : end.column - 1; break;
    case key::Right: end.column = control ? lastColumn : end.column + 1; break;
    case key::Up: end.row = control ? firstRow : end.row - 1; break;
    case key::Down: end.row = control ? lastRow : end.row + 1; break;
    case key::PageUp: end.row = std::max(firstRow, end.row - pageRows); break;
    case key::PageDown: end.row += pageRows; break;
    case key::Home: end = {control ? firstRow : end.row, grid_.FixedColumns}; break;
    case key::End: end = {control ? lastRow : end.row, lastColumn}; break;
    default: return false;
    }
    MarkFrom(anchor_, end);
    return true;
}

void CellMarking::MarkAll() { MarkFrom({0, grid_.FixedColumns}, {grid_.Rows() - 1, grid_.Columns() - 1}); }

} // namespace dorvan
