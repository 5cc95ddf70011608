#include "program/registering.h"
#include "program/undoing.h"

namespace dorvan {

void RegisterSessionOperations(Session& session) {
    Register(session, "Undo", Undo);
    Register(session, "Redo", Redo);
}

} // namespace dorvan
