#include "session/busy.h"
#include "session/dialog.h"
#include "view/diagram_history.h"
#include "view/frmDiagram.h"
#include "view/frmDiagramType.h"
#include "view/frmHistogram.h"
#include "view/frmLiniowy.h"

// What a diagram shows of itself in dialogs: histogram, linear graph, type.
namespace dorvan {

void frmDiagram::RepaintInPlace() {
    StartOrder();
    ApplyRowOrder();
}

void frmDiagram::RefreshActiveWindow() {
    if (session_.ActiveWindow) session_.platform.children.update(*session_.ActiveWindow);
}

void frmDiagram::Histogram() {
    if (RefusedWhileBusy(session_)) return;
    session_.NewWindowIndex = Index;
    const DiagramLook before = LookOf(Document());
    const bool accepted = Accepted<frmHistogram>(session_);
    session_.forms.Unload<frmHistogram>();
    if (!accepted) return;
    RefreshActiveWindow();
    const WaitCursor waiting(session_.platform);
    RepaintInPlace(); // a selected row loses its cross and stays selected
    RecordLook(session_, *this, "Section Limits", before);
}

void frmDiagram::Linear() {
    if (RefusedWhileBusy(session_)) return;
    auto& graph = session_.forms.Load<frmLiniowy>(session_);
    graph.LinearGraphIndex = Index;
    graph.GraphPending = frmLiniowy::DrawAtNextResize;
    session_.platform.forms.showModal(graph);
    session_.forms.Unload<frmLiniowy>();
    RefreshActiveWindow();
}

// Not refused while a diagram is being made.
void frmDiagram::DiagramType() {
    session_.NewWindowIndex = Index;
    const DiagramLook before = LookOf(Document());
    ShowModally<frmDiagramType>(session_);
    session_.forms.Unload<frmDiagramType>();
    if (Document().DiagType == before.Type) return;
    const WaitCursor waiting(session_.platform);
    RepaintInPlace();
    if (session_.mainWindow.ButtonEnabled("toolDiagram", "Home")) SelectRow(SelectedRow); // a row is selected
    RecordLook(session_, *this, "Diagram Type", before);
}

} // namespace dorvan
