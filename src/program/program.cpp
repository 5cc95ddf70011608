#include "program/program.h"

#include "program/registering.h"

namespace dorvan {

void Compose(Session& session) {
    RegisterSessionOperations(session);
    RegisterSheetOperations(session);
    RegisterDistanceOperations(session);
    RegisterViewOperations(session);
    RegisterMakingOperations(session);
    RegisterFilesOperations(session);
    RegisterImportOperations(session);
    RegisterExportOperations(session);
    RegisterPrintOperations(session);
}

} // namespace dorvan
