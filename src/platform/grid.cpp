#include "platform/grid.h"

#include "numbers/runtime_failure.h"
#include "platform/keys.h"

#include <algorithm>

namespace dorvan {

namespace {

template <class T>
std::vector<T> Resized(const std::vector<T>& cells, int oldColumns, int rows, int columns) {
    std::vector<T> result(std::size_t(rows) * std::size_t(columns));
    const int oldRows = oldColumns == 0 ? 0 : static_cast<int>(cells.size()) / oldColumns;
    for (int row = 0; row < std::min(rows, oldRows); ++row)
        for (int column = 0; column < std::min(columns, oldColumns); ++column)
            result[std::size_t(row * columns + column)] = cells[std::size_t(row * oldColumns + column)];
    return result;
}

} // namespace

std::size_t Grid::RowPlace(int row) const {
    if (row < 0 || row >= rows_) throw RuntimeFailure(Failure::SubscriptOutOfRange);
    return std::size_t(row);
}

std::size_t Grid::ColumnPlace(int column) const {
    if (column < 0 || column >= columns_) throw RuntimeFailure(Failure::SubscriptOutOfRange);
    return std::size_t(column);
}

void Grid::SetSize(int rows, int columns) {
    if (rows < 0 || columns < 0) throw RuntimeFailure(Failure::InvalidProcedureCall);
    texts_ = Resized(texts_, columns_, rows, columns);
    pictures_ = Resized(pictures_, columns_, rows, columns);
    widths_.resize(std::size_t(columns), DefaultColumnWidth);
    heights_.resize(std::size_t(rows), DefaultRowHeight);
    alignments_.resize(std::size_t(columns), Alignment::Left);
    headerAlignments_.resize(std::size_t(columns), Alignment::Left);
    rows_ = rows;
    columns_ = columns;
    row_ = std::clamp(row_, 0, std::max(0, rows - 1));
    column_ = std::clamp(column_, 0, std::max(0, columns - 1));
    ++revision_;
}

void Grid::Clear() {
    std::fill(texts_.begin(), texts_.end(), std::string());
    std::fill(pictures_.begin(), pictures_.end(), std::uint8_t(0));
    ++revision_;
}

void Grid::SetCurrent(int row, int column) {
    row_ = static_cast<int>(RowPlace(row));
    column_ = static_cast<int>(ColumnPlace(column));
    ++revision_;
}

void Grid::SetText(int row, int column, std::string text) {
    texts_[Place(row, column)] = std::move(text);
    ++revision_;
}

void Grid::SetPicture(int row, int column, std::uint8_t picture) {
    pictures_[Place(row, column)] = picture;
    ++revision_;
}

void Grid::SetColumnWidth(int column, int width) {
    widths_[ColumnPlace(column)] = width;
    ++revision_;
}

void Grid::SetRowHeight(int row, int height) {
    heights_[RowPlace(row)] = height;
    ++revision_;
}

void Grid::SetColumnAlignment(int column, Alignment alignment) {
    alignments_[ColumnPlace(column)] = alignment;
    ++revision_;
}

void Grid::SetHeaderAlignment(int column, Alignment alignment) {
    headerAlignments_[ColumnPlace(column)] = alignment;
    ++revision_;
}

void Grid::RemoveRow(int row) {
    const auto place = static_cast<std::ptrdiff_t>(RowPlace(row));
    const auto first = place * columns_;
    texts_.erase(texts_.begin() + first, texts_.begin() + first + columns_);
    pictures_.erase(pictures_.begin() + first, pictures_.begin() + first + columns_);
    heights_.erase(heights_.begin() + place);
    --rows_;
    row_ = std::clamp(row_, 0, std::max(0, rows_ - 1));
    ++revision_;
}

void Grid::ArrowKey(int keyCode) {
    const bool upright = keyCode == key::Up || keyCode == key::Down;
    const int step = keyCode == key::Right || keyCode == key::Down ? 1 : -1;
    if (!upright && keyCode != key::Left && keyCode != key::Right) return;
    const int place = (upright ? row_ : column_) + step;
    if (place < (upright ? FixedRows : FixedColumns) || place >= (upright ? rows_ : columns_)) return;
    SetCurrent(upright ? place : row_, upright ? column_ : place);
}

bool Grid::MoveByKey(int keyCode, bool control, int pageRows) {
    const int firstRow = std::min(FixedRows, std::max(0, rows_ - 1));
    const int firstColumn = std::min(FixedColumns, std::max(0, columns_ - 1));
    const auto moveTo = [this](int row, int column) {
        if (rows_ > 0 && columns_ > 0) SetCurrent(row, column);
        return true;
    };
    switch (keyCode) {
    case key::Left:
    case key::Up:
    case key::Right:
    case key::Down: ArrowKey(keyCode); return true;
    case key::PageUp: return moveTo(std::max(row_ - pageRows, firstRow), column_);
    case key::PageDown: return moveTo(std::min(row_ + pageRows, rows_ - 1), column_);
    case key::Home: return moveTo(control ? firstRow : row_, firstColumn);
    case key::End: return moveTo(control ? rows_ - 1 : row_, columns_ - 1);
    default: return false;
    }
}

void Grid::Press(int row, int column) {
    pressedRow_ = row;
    if (row < 0 || column < 0 || row >= rows_ || column >= columns_) return;
    SetCurrent(row < FixedRows ? row_ : row, column < FixedColumns ? column_ : column);
}

} // namespace dorvan
