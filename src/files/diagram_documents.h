#pragma once

#include "session/session.h"

#include <string>

// Diagrams from files and into them.
namespace dorvan {

// The command Open for a diagram: asks for the path, puts it on the list of recent files, then reads it.
// Beeps while a diagram is being made.
void OpenDiagramFile(Session& session);

// Reads either format and opens a diagram window: clean from the current format, changed from the older one,
// for which the distances are computed by its own measure. A fault gives one message and no window.
void ReadDiagramFile(Session& session, const std::string& path);
void ReadOldDiagramFile(Session& session, const std::string& path);

// Writes a diagram, with the commas of the description turned into semicolons. Says nothing when that fails;
// the result tells.
bool WriteDiagramFile(Session& session, const std::string& path, const DiagramDocument& document,
                      const std::string& description);

} // namespace dorvan
