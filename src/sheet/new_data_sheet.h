#pragma once

#include "session/session.h"

namespace dorvan {

// The command New: asks for a size and opens an untitled sheet of zeros, with default names. Beeps while a
// diagram is being made.
void NewDataSheet(Session& session);

} // namespace dorvan
