#include "files/file_text.h"

#include "session/session.h"

namespace dorvan {

FileText FileTextOf(const Session& session) {
    return {session.codePage, session.DecimalSeparator, session.version};
}

} // namespace dorvan
