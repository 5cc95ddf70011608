#include "view/diagram_copying.h"

#include "session/cell_copying.h"
#include "session/document_grid.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

namespace dorvan {

using namespace DocumentGrid;

void CopyDiagramCells(Session& session) {
    auto* window = dynamic_cast<frmDiagram*>(session.ActiveWindow);
    if (!window) return;
    CopyMarkedCells(session, window->Siatka, [window](int row, int column) {
        if (row == HeaderRow || column < FirstValueColumn) return window->Siatka.Text(row, column);
        return fmt::format("{}", window->Document().Classes(row, column - FirstValueColumn + 1));
    });
}

} // namespace dorvan
