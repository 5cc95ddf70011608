#include "making/making_diagram.h"
#include "making/ordering_runs.h"
#include "program/registering.h"

namespace dorvan {

void RegisterMakingOperations(Session& session) {
    Register(session, "MakeDiagram", MakeDiagram);
    AddGeneticOrderings(session);
}

} // namespace dorvan
