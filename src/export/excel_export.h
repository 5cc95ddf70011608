#pragma once

#include "session/session.h"

namespace dorvan {

// The command Export Excel of a data sheet: asks for the file and writes the active sheet's grid, headers,
// names and values; a cell that is no number stays empty. Nothing is said when the file cannot be written:
// `SilentFailure` then tells why. It does not ask whether a diagram is being made.
void ExportDataToExcel(Session& session);

} // namespace dorvan
