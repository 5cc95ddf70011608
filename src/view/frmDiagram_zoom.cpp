#include "session/document_grid.h"
#include "session/status_bar.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

// How large the diagram is shown, which changes nothing of it.
namespace dorvan {

DiagramBoxes frmDiagram::Boxes() const {
    if (Siatka.Rows() < 2) return {};
    return {.Count = DocumentGrid::RecordCount(Siatka),
            .Side = Siatka.RowHeight(DocumentGrid::HeaderRow + 1)};
}

void frmDiagram::TellZoom() { StatusText(session_) = fmt::format("Zoom {:.0f}%", Zoom.Percent()); }

void frmDiagram::ZoomIn() {
    Zoom.In();
    TellZoom();
}

void frmDiagram::ZoomOut() {
    Zoom.Out();
    TellZoom();
}

void frmDiagram::ZoomActual() {
    Zoom.Actual();
    TellZoom();
}

void frmDiagram::ZoomFit() {
    Zoom.Fit(Boxes());
    TellZoom();
}

void frmDiagram::TakeRoom(const DiagramRoom& room) { Zoom.SetRoom(room, Boxes()); }

} // namespace dorvan
