#include "import/import_commands.h"
#include "program/registering.h"

namespace dorvan {

void RegisterImportOperations(Session& session) {
    Register(session, "ImportText", ImportTextFile);
    Register(session, "ImportMatrix", ImportMatrixFile);
    Register(session, "ImportDBase", ImportDBaseFile);
}

} // namespace dorvan
