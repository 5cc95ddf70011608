#pragma once

#include "session/session.h"
#include "sheet/frmNotePad.h"
#include "sheet/pasted_block.h"

namespace dorvan {

// Puts the marked cells of the active sheet on the clipboard.
void CopySheetCells(Session& session);

// Puts the clipboard's cells into the active sheet, from the upper left one of the marked cells on, as one
// step of its history. Asks before the sheet grows; a block too large for any sheet is refused. What became
// "N/A" without being marked so is told.
void PasteCells(Session& session);

// Writes a placed block into a sheet, which grows to hold it.
void WriteBlock(frmNotePad& sheet, const PastedBlock& block);

} // namespace dorvan
