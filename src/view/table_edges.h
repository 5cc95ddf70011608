#pragma once

#include "numbers/arrays.h"
#include "platform/drawing.h"

#include <string>

// What stands around the cells of a drawn table, be it on a bitmap or on a sheet of paper: the number column
// and the name column at its left, the header row above it, all in boxes as high as a cell.
namespace dorvan {

// Lengths in twips. The number column is a cell wide, the name column four.
struct TableEdges {
    double Cell = 0;
    int FirstRow = 1; // of the records shown
    int Rows = 0;
    int FirstColumn = 1;
    int Columns = 0;
    bool WithColumns = true; // number and name column: not on the sheets further right
    bool WithHeader = true;  // header row: not on the sheets further down

    // Of a text from the upper left corner of its box.
    drawing::Point NumberOffset;
    drawing::Point HeaderOffset;
    drawing::Point NameOffset;
    drawing::Point TitleOffset; // of "Name"

    // Upper left corner of the cells.
    double Left() const { return WithColumns ? 5 * Cell : 0; }
    double Top() const { return WithHeader ? Cell : 0; }
};

inline constexpr int NameCharacters = 12; // of a name that are shown

void DrawTableEdges(Canvas& canvas, const TableEdges& edges, const Array1<std::string>& names);

} // namespace dorvan
