#include "platform/grid.h"

#include "numbers/runtime_failure.h"
#include "platform/keys.h"

#include <algorithm>

namespace dorvan {

namespace {

const std::string NoText;

constexpr std::size_t LabelColumns = 2; // the number and the name; a diagram has no other texts

std::vector<std::uint8_t> Resized(const std::vector<std::uint8_t>& cells, int oldColumns, int rows,
                                  int columns) {
    std::vector<std::uint8_t> result(std::size_t(rows) * std::size_t(columns));
    const int oldRows = oldColumns == 0 ? 0 : static_cast<int>(cells.size()) / oldColumns;
    for (int row = 0; row < std::min(rows, oldRows); ++row)
        std::copy_n(cells.begin() + std::ptrdiff_t(row) * oldColumns, std::min(columns, oldColumns),
                    result.begin() + std::ptrdiff_t(row) * columns);
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
    texts_.resize(std::size_t(rows));
    for (auto& texts : texts_) texts.resize(std::min(texts.size(), std::size_t(columns)));
    pictures_ = Resized(pictures_, columns_, rows, columns);
    widths_.resize(std::size_t(columns), DefaultColumnWidth);
    heights_.resize(std::size_t(rows), DefaultRowHeight);
    alignments_.resize(std::size_t(columns), Alignment::Left);
    headerAlignments_.resize(std::size_t(columns), Alignment::Left);
    rows_ = rows;
    columns_ = columns;
    row_ = std::clamp(row_, 0, std::max(0, rows - 1));
    column_ = std::clamp(column_, 0, std::max(0, columns - 1));
    marked_.reset();
    ++revision_;
}

void Grid::Clear() {
    for (auto& texts : texts_) texts = {};
    std::fill(pictures_.begin(), pictures_.end(), std::uint8_t(0));
    ++revision_;
}

void Grid::SetCurrent(int row, int column) {
    row_ = static_cast<int>(RowPlace(row));
    column_ = static_cast<int>(ColumnPlace(column));
    passed_ = false;
    marked_.reset();
    ++revision_;
}

void Grid::PassTo(int row, int column) {
    SetCurrent(row, column);
    passed_ = true;
}

CellRange Grid::Marked() const { return marked_.value_or(CellRange{row_, column_, row_, column_}); }

void Grid::Mark(const CellRange& range) {
    marked_ = CellRange{static_cast<int>(RowPlace(range.Top)), static_cast<int>(ColumnPlace(range.Left)),
                        static_cast<int>(RowPlace(range.Bottom)), static_cast<int>(ColumnPlace(range.Right))};
    ++revision_;
}

const std::string& Grid::Text(int row, int column) const {
    const auto& texts = texts_[RowPlace(row)];
    const std::size_t place = ColumnPlace(column);
    return place < texts.size() ? texts[place] : NoText;
}

void Grid::SetText(int row, int column, std::string text) {
    auto& texts = texts_[RowPlace(row)];
    const std::size_t place = ColumnPlace(column);
    if (place >= texts.size()) {
        // Rows fill up from the left: room for all of a row as soon as its first value comes.
        if (place >= texts.capacity() && place >= LabelColumns) texts.reserve(std::size_t(columns_));
        texts.resize(place + 1);
    }
    texts[place] = std::move(text);
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
    texts_.erase(texts_.begin() + place);
    pictures_.erase(pictures_.begin() + first, pictures_.begin() + first + columns_);
    heights_.erase(heights_.begin() + place);
    --rows_;
    row_ = std::clamp(row_, 0, std::max(0, rows_ - 1));
    marked_.reset();
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
