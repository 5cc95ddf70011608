#pragma once

#include "platform/grid.h"

// What the grids of sheets, matrices and diagrams agree on: row 0 holds the headers and column 0 the numbers;
// record r stands in row r, with its name in column 1 and its values from column 2 on.
namespace dorvan::DocumentGrid {

inline constexpr int HeaderRow = 0;
inline constexpr int NumberColumn = 0;
inline constexpr int NameColumn = 1;
inline constexpr int FirstValueColumn = 2;

// The column of value number k, from 1.
inline constexpr int ValueColumn(int k) { return k + FirstValueColumn - 1; }

// For n records of m values. Cells that stay inside keep what they hold.
inline void SetSize(Grid& grid, int records, int values) {
    grid.SetSize(records + 1, values + FirstValueColumn);
}

inline int RecordCount(const Grid& grid) { return grid.Rows() - 1; }
inline int ValueCount(const Grid& grid) { return grid.Columns() - FirstValueColumn; }

} // namespace dorvan::DocumentGrid
