#pragma once

#include "session/session.h"

namespace dorvan {

// Take back the last step of the active document, or make the one taken back last again, and tell it in the
// status line. The document then counts as changed unless its own file holds it as it stands. Both beep where
// there is no such step, and while a diagram is being made.
void Undo(Session& session);
void Redo(Session& session);

} // namespace dorvan
