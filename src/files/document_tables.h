#pragma once

#include "session/documents.h"
#include "session/session.h"

namespace dorvan {

// The tables in which a document travels, all from 1. A reader fills them part by part; on failure they hold
// what was read so far, the parts that it did not reach as they were.
struct DocumentTables {
    Names RecordNames;
    Names VariableNames;
    FloatTable DataValues;     // (record, variable)
    FloatTable DistanceValues; // (record, record)
    Flags RecordHasNA;
    bool DataHasNA = false;
};

// Takes the working arrays out of the session and puts them back at the end of its life.
class TablesOfSession {
public:
    explicit TablesOfSession(Session& session);
    ~TablesOfSession();
    TablesOfSession(const TablesOfSession&) = delete;
    TablesOfSession& operator=(const TablesOfSession&) = delete;

    DocumentTables Tables;

private:
    void Exchange();
    Session& session_;
};

} // namespace dorvan
