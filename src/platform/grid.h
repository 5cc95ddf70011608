#pragma once

#include "platform/controls.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dorvan {

// A block of cells, its edges included.
struct CellRange {
    int Top = 0;
    int Left = 0;
    int Bottom = 0;
    int Right = 0;

    int Rows() const { return Bottom - Top + 1; }
    int Columns() const { return Right - Left + 1; }
    bool IsOneCell() const { return Top == Bottom && Left == Right; }
    bool Has(int row, int column) const {
        return row >= Top && row <= Bottom && column >= Left && column <= Right;
    }
    bool operator==(const CellRange&) const = default;
};

// A grid of cells with text or a picture, some fixed rows and columns, and a current cell. Rows and columns
// count from 0; an index outside fails with SubscriptOutOfRange. Lengths in twips.
class Grid : public Control {
public:
    static constexpr int DefaultColumnWidth = 960;
    static constexpr int DefaultRowHeight = 255;

    explicit Grid(std::string name) : Control(std::move(name)) {}

    // Cells that stay inside keep their contents; new ones are empty. Widths, heights and alignments
    // likewise. The current cell is moved inside.
    void SetSize(int rows, int columns);
    void Clear(); // empties texts and pictures
    int Rows() const { return rows_; }
    int Columns() const { return columns_; }

    int FixedRows = 1;
    int FixedColumns = 1;
    bool GridLines = true;
    int FontSize = 8; // points

    int Row() const { return row_; }
    int Column() const { return column_; }
    void SetCurrent(int row, int column);

    // The same for a rule that only passes by, reading or filling the cells: a face does not scroll there,
    // and the user's next key starts from what is in sight.
    void PassTo(int row, int column);
    bool Passed() const { return passed_; }

    // What the user has marked, the fixed cells perhaps among it; the current cell alone when nothing is. It
    // goes with any change of the current cell, and of the number of rows and columns.
    CellRange Marked() const;
    void Mark(const CellRange& range);

    const std::string& Text(int row, int column) const;
    void SetText(int row, int column, std::string text);

    // A picture is a small number that the grid's owner gives a meaning to; 0 is none.
    std::uint8_t Picture(int row, int column) const { return pictures_[Place(row, column)]; }
    void SetPicture(int row, int column, std::uint8_t picture);

    int ColumnWidth(int column) const { return widths_[ColumnPlace(column)]; }
    void SetColumnWidth(int column, int width);
    int RowHeight(int row) const { return heights_[RowPlace(row)]; }
    void SetRowHeight(int row, int height);
    Alignment ColumnAlignment(int column) const { return alignments_[ColumnPlace(column)]; }
    void SetColumnAlignment(int column, Alignment alignment);
    Alignment HeaderAlignment(int column) const {
        return headerAlignments_[ColumnPlace(column)];
    } // fixed rows
    void SetHeaderAlignment(int column, Alignment alignment);

    void RemoveRow(int row);

    // One step of the current cell by an arrow key code, not into the fixed cells and not over the edge. A
    // current cell that a rule has put into a fixed row or column moves along it, and out of it.
    void ArrowKey(int keyCode);

    // Moves the current cell by a key: the arrows, PageUp and PageDown by `pageRows`, Home and End along the
    // row, with `control` to the first and the last of all cells. Not into the fixed cells. False for any
    // other key.
    bool MoveByKey(int keyCode, bool control, int pageRows);

    // The mouse is pressed on a cell; -1 is behind the last row or column, where nothing moves. On a fixed
    // cell the current cell moves along the other axis alone.
    void Press(int row, int column);

    // Whether the last press was on a fixed row.
    bool FixedRowPressed() const { return pressedRow_ >= 0 && pressedRow_ < FixedRows; }

    // Grows with every change: a face that has painted a revision need not paint it again.
    std::uint64_t Revision() const { return revision_; }

private:
    std::size_t Place(int row, int column) const {
        return RowPlace(row) * std::size_t(columns_) + ColumnPlace(column);
    }
    std::size_t RowPlace(int row) const;
    std::size_t ColumnPlace(int column) const;

    int rows_ = 0;
    int columns_ = 0;
    int row_ = 0;
    int column_ = 0;
    int pressedRow_ = -1;
    bool passed_ = false;
    std::optional<CellRange> marked_;
    std::uint64_t revision_ = 0;
    std::vector<std::vector<std::string>> texts_; // by rows, each up to its last text
    std::vector<std::uint8_t> pictures_;
    std::vector<int> widths_;
    std::vector<int> heights_;
    std::vector<Alignment> alignments_;
    std::vector<Alignment> headerAlignments_;
};

} // namespace dorvan
