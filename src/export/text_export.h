#pragma once

#include "session/session.h"

namespace dorvan {

// The command Export text of a data sheet: asks for the options and the file, and writes the active sheet's
// grid. An error is passed over until the end, and its text shown then; a file that stood there is whole in
// that case. Beeps while a diagram is being made.
void ExportData(Session& session);

} // namespace dorvan
