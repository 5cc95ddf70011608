#pragma once

#include "session/session.h"

namespace dorvan {

// The current printer has a name; a message tells of a system without any.
bool PrinterInstalled(Session& session);

// The setup dialog of the current printer: another device, copies, orientation, paper and the like. Cancel
// leaves all as it was; a value that the driver refuses keeps what it was.
void ShowPrinterDialog(Session& session);

} // namespace dorvan
