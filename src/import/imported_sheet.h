#pragma once

#include "import/text_table.h"
#include "session/session.h"

namespace dorvan {

// Hands a table over to the window that shows it: the working arrays and their counts.
void HandOver(Session& session, TableOfRecords table);

} // namespace dorvan
