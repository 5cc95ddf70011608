#pragma once

#include "session/session.h"

namespace dorvan {

// Turns the active data sheet into the working arrays `RecordNames`, `VariableNames`, `DataValues`,
// `RecordHasNA`, `DataHasNA`. A cell "N/A" becomes NaValue, an empty cell 0 (and "0.00" in the sheet), other
// text its leading number, with a comma read as a point. False, after a message, when the pending-error
// indicator is set. Fails with Overflow for a number outside the range of a 32-bit float.
bool LoadWorkingData(Session& session);

} // namespace dorvan
