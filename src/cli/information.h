#pragma once

#include "session/session.h"

#include <string>

namespace dorvan::cli {

// What the active document holds, one `key: value` a line.
std::string InformationAbout(Session& session);

} // namespace dorvan::cli
