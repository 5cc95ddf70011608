#pragma once

#include "session/session.h"

#include <string>

// Matrices from files and into them.
namespace dorvan {

// The command Open for a matrix: asks for the path, puts it on the list of recent files, then reads it.
// Beeps while a diagram is being made.
void OpenMatrixFile(Session& session);

// Reads either format and opens a matrix window: clean from the current format, changed from the older one.
// A fault gives one message and no window; one behind the header of the current format leaves the slot that
// was taken in use for the rest of the run.
void ReadMatrixFile(Session& session, const std::string& path);
void ReadOldMatrixFile(Session& session, const std::string& path);

// Writes a matrix. Fails with a RuntimeFailure (DiskFull, PermissionDenied, PathNotFound, ...); the file that
// was there is whole then.
void WriteMatrixFile(Session& session, const std::string& path, const DistanceMatrix& document,
                     const std::string& description);

} // namespace dorvan
