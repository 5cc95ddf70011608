#pragma once

#include <cstdint>
#include <string>

namespace dorvan {

// What the data sheets keep in the session.
struct SheetValues {
    bool PendingError = false;   // the pending-error indicator: the next cell that is loaded is refused
    bool SuppressCommit = false; // set by the deletion of a record: the next commit of a cell is dropped
};

// The message at a cell that is refused: the numbers of a record and of a variable, not of a column of the
// grid.
std::string DataErrorText(std::int32_t record, std::int32_t variable);

} // namespace dorvan
