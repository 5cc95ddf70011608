#pragma once

#include "session/session.h"

#include <cstdint>

// The active diagram, its histogram or its linear graph as a picture. Both commands ask what in a dialog, and
// tell what cannot be drawn or written in a message.
namespace dorvan {

// Asks for a path and writes the file, in the format of its extension.
void SavePicture(Session& session, std::int16_t slot);

// Puts it on the clipboard.
void CopyPicture(Session& session, std::int16_t slot);

} // namespace dorvan
