#pragma once

#include "platform/controls.h"
#include "session/session.h"

// What the commands and dialogs that change the shape of a sheet share. They work on the names of the
// variables in the session's `VariableNames`.
namespace dorvan {

class frmNotePad;

// Takes the names out of the header of the active sheet, without the spaces at both ends.
void TakeVariableNames(Session& session);

// The list shows the names, the one at `selected` selected, from 0.
void ShowVariableNames(const Session& session, ListBox& list, int selected);

// Writes the names into the header, without the spaces at both ends.
void WriteVariableNames(Session& session);

// New records at the end, numbered and otherwise empty. New variables, named by their numbers, as wide as the
// one before.
void AppendRecords(frmNotePad& sheet, int count);
void AppendVariables(frmNotePad& sheet, int count);

// The document of the active sheet has changed.
void MarkSheetChanged(Session& session);

} // namespace dorvan
