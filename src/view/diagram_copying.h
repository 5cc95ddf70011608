#pragma once

#include "session/session.h"

namespace dorvan {

// Puts the marked cells of the active diagram on the clipboard: its numbers and names as they stand, of the
// symbols the classes, 5 the nearest and 1 the farthest.
void CopyDiagramCells(Session& session);

} // namespace dorvan
