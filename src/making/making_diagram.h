#pragma once

#include "session/session.h"

namespace dorvan {

// The command Make Diagram: asks the options, computes distances and section limits of the active sheet or
// matrix (2 to 250 records), runs the chosen ordering and opens a diagram window.
void MakeDiagram(Session& session);

} // namespace dorvan
