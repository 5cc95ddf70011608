#pragma once

#include "session/session.h"

namespace dorvan {

// The command Make Matrix: asks for the measure and turns the active data sheet (2 to 150 records) into a
// matrix in a window of its own.
void MakeMatrix(Session& session);

} // namespace dorvan
