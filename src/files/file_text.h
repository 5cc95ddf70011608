#pragma once

#include "numbers/code_page.h"
#include "session/version.h"

namespace dorvan {

struct Session;

// How this run writes text files and reads them.
struct FileText {
    CodePage Codes;
    char DecimalSeparator = '.'; // the one that is written; both are read
    Version Build;               // major and minor stand in the first line
};

// As the session writes and reads.
FileText FileTextOf(const Session& session);

} // namespace dorvan
