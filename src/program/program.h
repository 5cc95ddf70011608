#pragma once

#include "session/session.h"

namespace dorvan {

// The composition root: fills the command table of the session, so that the main window
// reaches every operation. The desktop, the command line and the tests share it.
void Compose(Session& session);

} // namespace dorvan
