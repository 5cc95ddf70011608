#pragma once

#include "platform/cell_clipboard.h"
#include "platform/grid.h"
#include "session/session.h"

#include <functional>
#include <string>

namespace dorvan {

// Where copied cells go. None on the command line.
struct CellPorts {
    CellClipboard* clipboard = nullptr;
};

// Puts the marked cells of a grid on the clipboard, each as it shows its text or as `textOf` says, and tells
// in the status line how many. A beep while a diagram is being made.
void CopyMarkedCells(Session& session, const Grid& grid,
                     const std::function<std::string(int row, int column)>& textOf = {});

// Those of the active matrix.
void CopyMatrixCells(Session& session);

} // namespace dorvan
