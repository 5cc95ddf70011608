#pragma once

#include "session/session.h"

#include <cstdint>

namespace dorvan {

// A click on an item of the recent files, from 0: opens the path that it shows, by the last three characters
// of its name. The order of the list stays as it is.
void OpenRecentFile(Session& session, std::int16_t index);

} // namespace dorvan
