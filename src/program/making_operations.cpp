#include "making/best_order_run.h"
#include "making/making_diagram.h"
#include "making/ordering_runs.h"
#include "program/registering.h"

namespace dorvan {

void RegisterMakingOperations(Session& session) {
    Register(session, "MakeDiagram", MakeDiagram);
    Register(session, "frmDiagram.BestOrder", PutInBestOrder);
    AddGeneticOrderings(session);
}

} // namespace dorvan
