#pragma once

#include "session/session.h"

#include <string>
#include <string_view>
#include <vector>

namespace dorvan {

// The DocumentKind that a path's extension stands for, in capitals or not; empty for any other.
std::string_view KindOfFile(std::string_view path);

// Opens a file that the program was started with, by its extension in capitals or not: a sheet, matrix or
// diagram. Any other gets the message that a recent file of another kind gets. While a diagram is being made
// it only beeps.
void OpenDocument(Session& session, const std::string& path);

// The same for several, such as files dropped on the window. One message names those that are of another
// kind.
void OpenDocuments(Session& session, const std::vector<std::string>& paths);

// The reader of the extension alone: no message for another one, no entry among the recent files.
void ReadDocument(Session& session, const std::string& path);

} // namespace dorvan
