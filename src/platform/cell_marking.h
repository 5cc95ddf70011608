#pragma once

#include "platform/grid.h"

namespace dorvan {

// How a user marks a block of a grid's cells, by mouse and by keys. The current cell stays where it is, at
// one corner; the opposite one, the end, moves. The heads in row 0 can be marked with their columns, the
// numbers in the fixed columns can not.
class CellMarking {
public:
    explicit CellMarking(Grid& grid) : grid_(grid) {}

    // The mouse has gone down on that cell (-1: behind the last one), then moves to another one. Along the
    // heads it marks whole columns, along the numbers whole rows.
    void Press(int row, int column);
    void DragTo(int row, int column);

    // From the current cell, or from where the marking began, to that one.
    void ExtendTo(int row, int column);

    // By the arrows, Home, End, PageUp and PageDown; with `control` to the edges. False for any other key.
    bool ExtendByKey(int keyCode, bool control, int pageRows);

    void MarkAll();

    int EndRow() const { return end_.row; }
    int EndColumn() const { return end_.column; }

private:
    struct Cell {
        int row = -1;
        int column = -1;
    };

    bool HasCells() const { return grid_.Rows() > 0 && grid_.Columns() > grid_.FixedColumns; }
    void TakeUp();
    void MarkFrom(Cell anchor, Cell end);

    Grid& grid_;
    Cell pressed_;
    Cell anchor_;
    Cell end_;
    CellRange marked_; // as it was last marked here
};

} // namespace dorvan
