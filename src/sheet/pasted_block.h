#pragma once

#include "platform/cell_texts.h"
#include "platform/grid.h"

#include <string>
#include <vector>

namespace dorvan {

struct PlacedText {
    int Row = 0;
    int Column = 0;
    std::string Text;
    bool operator==(const PlacedText&) const = default;
};

// What a block from a spreadsheet becomes in the grid of a sheet.
struct PastedBlock {
    int Rows = 0; // of the grid that it needs
    int Columns = 0;
    CellRange Range; // that it fills
    std::vector<PlacedText> Cells;
    std::vector<PlacedText> NoNumbers; // values that became "N/A", with the texts that they were
    int EmptyValues = 0;               // that became "N/A" too
    int Rounded = 0;                   // values of more than three decimals
};

// Places the block with its upper left field on the cell (row, column) of a sheet's grid. Where it covers the
// names of variables in row 0 or of records in column 1, its fields are names. A block laid on the first
// record whose first line holds no number has the names of the variables there; one laid on the first
// variable whose first column holds none has those of the records: then it covers them too. Of the values,
// numbers are written with three decimals; all else is "N/A".
PastedBlock PlaceBlock(const CellTexts& block, int row, int column, char decimalSeparator);

} // namespace dorvan
