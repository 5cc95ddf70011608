#pragma once

namespace dorvan {

// What the data sheets keep in the session.
struct SheetValues {
    bool PendingError = false;   // the pending-error indicator: the next cell that is loaded is refused
    bool SuppressCommit = false; // set by the deletion of a record: the next commit of a cell is dropped
};

} // namespace dorvan
