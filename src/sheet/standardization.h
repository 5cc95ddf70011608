#pragma once

#include "session/session.h"

namespace dorvan {

// The command Standardization: a new sheet, untitled and changed, in which every variable of the active one
// is standardized. The active sheet keeps its values; its empty cells become "0.0". Beeps while a diagram is
// being made. Fails with DivisionByZero for a constant variable by the deviation, with Overflow for a number
// outside the range of a 32-bit float.
void Standardization(Session& session);

} // namespace dorvan
