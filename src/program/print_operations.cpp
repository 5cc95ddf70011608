#include "distance/frmMacierz.h"
#include "program/registering.h"
#include "view/frmDiagram.h"

namespace dorvan {

void RegisterPrintOperations(Session& session) {
    Register(session, "frmMacierz.PrintMatrix", MatrixWindow, &frmMacierz::PrintMatrix);
    Register(session, "frmDiagram.PrintDiagram", DiagramWindow, &frmDiagram::PrintDiagram);
}

} // namespace dorvan
