#include "program/registering.h"
#include "view/frmDiagram.h"

namespace dorvan {

void RegisterViewOperations(Session& session) {
    Register(session, "frmDiagram.SelectThisRow", DiagramWindow, &frmDiagram::SelectThisRow);
    Register(session, "frmDiagram.Home", DiagramWindow, &frmDiagram::Home);
    Register(session, "frmDiagram.Up", DiagramWindow, &frmDiagram::Up);
    Register(session, "frmDiagram.Down", DiagramWindow, &frmDiagram::Down);
    Register(session, "frmDiagram.EndRow", DiagramWindow, &frmDiagram::EndRow);
    Register(session, "frmDiagram.Insert", DiagramWindow, &frmDiagram::Insert);
}

} // namespace dorvan
