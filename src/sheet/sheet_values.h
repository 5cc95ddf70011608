#pragma once

namespace dorvan {

// What the data sheets keep in the session.
struct SheetValues {
    bool SuppressCommit = false; // set by the deletion of a record: the next commit of a cell is dropped
};

} // namespace dorvan
