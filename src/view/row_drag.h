#pragma once

#include "view/frmDiagram.h"

namespace dorvan {

// A row dragged from one place to another moves as the command Insert moves it, ends selected as after it,
// and marks the document as changed. A beep while a diagram is being made; nothing for a place outside 1 to
// n, or for its own.
void DragRow(Session& session, frmDiagram& window, int from, int to);

} // namespace dorvan
