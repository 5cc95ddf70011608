#include "making/best_order_run.h"
#include "making/making_diagram.h"
#include "making/ordering_runs.h"
#include "program/registering.h"

namespace dorvan {

void RegisterMakingOperations(Session& session) {
    Register(session, "MakeDiagram", MakeDiagram);
    AddGeneticOrderings(session);
    session.commands.Set("PutInBestOrder",
                         [&session](const CommandCall& call) { PutInBestOrder(session, call.Index); });
}

} // namespace dorvan
