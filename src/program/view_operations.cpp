#include "program/registering.h"
#include "view/diagram_copying.h"
#include "view/frmBMP.h"
#include "view/frmDiagram.h"

namespace dorvan {

void RegisterViewOperations(Session& session) {
    Register(session, "frmDiagram.SelectThisRow", DiagramWindow, &frmDiagram::SelectThisRow);
    Register(session, "frmDiagram.Home", DiagramWindow, &frmDiagram::Home);
    Register(session, "frmDiagram.Up", DiagramWindow, &frmDiagram::Up);
    Register(session, "frmDiagram.Down", DiagramWindow, &frmDiagram::Down);
    Register(session, "frmDiagram.EndRow", DiagramWindow, &frmDiagram::EndRow);
    Register(session, "frmDiagram.Insert", DiagramWindow, &frmDiagram::Insert);
    Register(session, "frmDiagram.Histogram", DiagramWindow, &frmDiagram::Histogram);
    Register(session, "frmDiagram.Linear", DiagramWindow, &frmDiagram::Linear);
    Register(session, "frmDiagram.DiagramType", DiagramWindow, &frmDiagram::DiagramType);
    Register(session, "frmDiagram.DataOrder", DiagramWindow, &frmDiagram::DataOrder);
    Register(session, "frmDiagram.Matrix", DiagramWindow, &frmDiagram::Matrix);
    Register(session, "frmDiagram.BITMAP", DiagramWindow, &frmDiagram::BITMAP);
    Register(session, "frmDiagram.ZoomIn", DiagramWindow, &frmDiagram::ZoomIn);
    Register(session, "frmDiagram.ZoomOut", DiagramWindow, &frmDiagram::ZoomOut);
    Register(session, "frmDiagram.ZoomActual", DiagramWindow, &frmDiagram::ZoomActual);
    Register(session, "frmDiagram.ZoomFit", DiagramWindow, &frmDiagram::ZoomFit);
    Register(session, "frmDiagram.CopyCells", CopyDiagramCells);
    Register(session, "frmBMP.BitmapClip", BitmapWindow, &frmBMP::BitmapClip);
}

} // namespace dorvan
