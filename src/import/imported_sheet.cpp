#include "import/imported_sheet.h"

#include "numbers/rounding.h"

#include <utility>

namespace dorvan {

void HandOver(Session& session, TableOfRecords table) {
    session.PendingRecCount = NarrowToInt16(table.RecordNames.Count());
    session.PendingVarCount = NarrowToInt16(table.VariableNames.Count());
    session.tables.RecordNames = std::move(table.RecordNames);
    session.tables.VariableNames = std::move(table.VariableNames);
    session.tables.DataValues = std::move(table.Values);
}

} // namespace dorvan
