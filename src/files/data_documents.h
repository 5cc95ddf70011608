#pragma once

#include "session/session.h"

#include <string>

// Data sheets from files and into them.
namespace dorvan {

// The command Open for data: asks for the path, reads it, and puts it on the list of recent files whatever
// came of the reading. Beeps while a diagram is being made.
void OpenDataFile(Session& session);

// Reads either format and opens a data window, clean. A fault gives one message and no window.
void ReadDataFile(Session& session, const std::string& path);
void ReadOldDataFile(Session& session, const std::string& path);

// Writes the active data window and clears its `Dirty`, both without a word when the writing fails; the
// result tells whether the file was written.
bool WriteDataFile(Session& session, const std::string& path);

// The commands Save and Save As of a data window. Save goes to the file in the caption, or asks for one when
// there is none, and puts it into the caption; Save As leaves the caption as it is.
void SaveData(Session& session);
void SaveDataAs(Session& session);

} // namespace dorvan
