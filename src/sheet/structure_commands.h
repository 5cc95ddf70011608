#pragma once

#include "session/session.h"

// The commands that change the shape of the active data sheet. Each beeps while a diagram is being made, and
// marks the sheet as changed when it has changed it. Their limits do not agree with one another: kept so.
namespace dorvan {

// New records at the end, numbered and otherwise empty. Refused for a sheet of exactly 150 records.
void AddRecord(Session& session);

// New variables at the end, with a name and empty cells. Refused for a sheet of exactly 100 variables.
void AddVariable(Session& session);

// Asks, and removes the record of the current row; the only record of a sheet is emptied. An edit that the
// question has left open is dropped, not committed.
void DeleteRecord(Session& session);

// Show the dialogs that rename and delete variables.
void EditVariables(Session& session);
void DeleteVariable(Session& session);

} // namespace dorvan
