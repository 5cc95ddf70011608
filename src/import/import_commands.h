#pragma once

#include "session/session.h"

// The three imports, as commands. Each beeps while a diagram is being made, asks by its dialog, and opens an
// untitled, changed document. A fault of the file gives one message, and nothing has changed then.
namespace dorvan {

// Delimited text as a data sheet of at most 250 records and 100 variables.
void ImportTextFile(Session& session);

// A square of delimited text as a matrix of at most `MaxDiagramRecords` records.
void ImportMatrixFile(Session& session);

// The numeric fields of a dBase III table as a data sheet; the dialog reads the table.
void ImportDBaseFile(Session& session);

} // namespace dorvan
