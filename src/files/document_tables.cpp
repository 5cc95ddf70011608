#include "files/document_tables.h"

#include <utility>

namespace dorvan {

TablesOfSession::TablesOfSession(Session& session) : session_(session) { Exchange(); }

TablesOfSession::~TablesOfSession() { Exchange(); }

void TablesOfSession::Exchange() {
    std::swap(Tables.RecordNames, session_.RecordNames);
    std::swap(Tables.VariableNames, session_.VariableNames);
    std::swap(Tables.DataValues, session_.DataValues);
    std::swap(Tables.DistanceValues, session_.DistanceValues);
    std::swap(Tables.RecordHasNA, session_.RecordHasNA);
    std::swap(Tables.DataHasNA, session_.DataHasNA);
}

} // namespace dorvan
