#pragma once

#include "session/session.h"

#include <string>

namespace dorvan {

// Opens a file that the program was started with, by its extension in capitals or not: a sheet, matrix or
// diagram. Any other gets the message that a recent file of another kind gets. While a diagram is being made
// it only beeps.
void OpenDocument(Session& session, const std::string& path);

} // namespace dorvan
