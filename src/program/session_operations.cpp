#include "program/registering.h"
#include "program/undoing.h"
#include "session/open_documents.h"

namespace dorvan {

void RegisterSessionOperations(Session& session) {
    Register(session, "Undo", Undo);
    Register(session, "Redo", Redo);
    Register(session, "ActivateDocument", ActivateDocument);
}

} // namespace dorvan
