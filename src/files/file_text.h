#pragma once

#include "numbers/code_page.h"
#include "session/session.h"

namespace dorvan {

// How this run writes text files and reads them.
struct FileText {
    CodePage Codes;
    char DecimalSeparator = '.'; // the one that is written; both are read
    Version Build;               // major and minor stand in the first line
};

FileText FileTextOf(const Session& session);

} // namespace dorvan
