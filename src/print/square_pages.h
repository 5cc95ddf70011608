#pragma once

#include "platform/drawing.h"

#include <functional>
#include <string>
#include <vector>

// How a square of n by n boxes, with the records' numbers and names at its left and numbers above it, goes
// onto pages: what the prints of matrices and diagrams share. Lengths in twips.
namespace dorvan {

struct SquareOnPages {
    int Count = 0; // n
    int Cell = 0;  // side of a box
    int PerPageCols = 0;
    int PerPageRows = 0;

    // One page where the columns fit, with no look at the height. None where a page has no room for a box.
    int PagesAcross() const;
    int PagesDown() const;

private:
    bool FitsOnePage() const { return Count <= PerPageCols; }
    bool HasNoRoom() const { return PerPageCols < 1 || PerPageRows < 1; }
};

// One page, counted from 1 down and across. The first page column has the columns of numbers and names, the
// first page row the row of numbers.
struct SquarePage {
    int Down = 1;
    int Across = 1;
    int Columns = 0; // of boxes on this page
    int Rows = 0;
    int ColumnsBefore = 0; // on the pages to the left
    int RowsBefore = 0;
    int X0 = 0; // the upper left corner of the first box
    int Y0 = 0;
    bool LastAcross = false;
    bool LastDown = false;

    bool HasNames() const { return Across == 1; }
    bool HasHeader() const { return Down == 1; }
    bool HasEnding() const { return LastDown && Across == 1; } // the description, and what else ends a print
};

// Rows of pages first.
std::vector<SquarePage> PagesOfSquare(const SquareOnPages& square);

// Where the labels stand in their boxes.
struct LabelOffsets {
    double X = 0;          // of numbers
    double NameX = 0;      // of names
    double Y = 0;          // below the top of the box
    double LaterNameY = 0; // of names below the first page row
};

// The columns of numbers and names and the row of numbers, as far as the page has them.
void DrawLabels(Canvas& canvas, const SquareOnPages& square, const SquarePage& page,
                const LabelOffsets& offsets, const std::function<std::string(int)>& nameOf);

// The corners of the box in a column and row of the page, from 1.
drawing::Point BoxCorner(const SquareOnPages& square, const SquarePage& page, int column, int row);
drawing::Point OppositeCorner(const SquareOnPages& square, drawing::Point corner);

// A text that may go on over several lines, each below the other. Its place is the first one's.
void WriteLines(Canvas& canvas, drawing::Point at, const std::string& text, double lineHeight);

} // namespace dorvan
