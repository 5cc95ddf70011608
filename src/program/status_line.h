#pragma once

#include "session/session.h"
#include "view/tiles.h"

#include <string>
#include <vector>

// What is told of the window and the cell that the user looks at: in the status bar, in tool tips and to a
// screen reader.
namespace dorvan {

// A cell of a sheet, matrix or diagram in one line: its names, its value, in a diagram its class with the
// limits. Empty where there is nothing to tell.
//
//     "Georgia – Texas: 12.345, class 4 (8.00 - 15.00)"
std::string CellWords(const Session& session, const ChildWindow& window, int row, int column);

// "Euclidean, dots, UM 0.1234, selected: Georgia" of a diagram; the size of a sheet or matrix. Quick as long
// as the order does not change.
std::string WindowWords(Session& session, const ChildWindow& window);

// The symbols of a diagram's classes from the nearest on, with their distances; empty for other windows.
struct LegendEntry {
    Tile Symbol = Tile::None;
    std::string Text;
    bool operator==(const LegendEntry&) const = default;
};
std::vector<LegendEntry> LegendOf(const Session& session, const ChildWindow& window);

// The pointer is over a cell of that window, or over none.
void PointAt(Session& session, const ChildWindow& window, int row, int column);
void PointAway(Session& session);

// Brings the status bar in line with what is active.
void RefreshStatusBar(Session& session);

} // namespace dorvan
