#include "session/cell_copying.h"

#include "platform/cell_texts.h"
#include "session/busy.h"
#include "session/grid_window.h"
#include "session/status_bar.h"

#include <fmt/format.h>

namespace dorvan {

void CopyMarkedCells(Session& session, const Grid& grid,
                     const std::function<std::string(int row, int column)>& textOf) {
    if (RefusedWhileBusy(session)) return;
    CellClipboard* clipboard = session.Of<CellPorts>().clipboard;
    const CellRange marked = grid.Marked();
    if (!clipboard || marked.Bottom >= grid.Rows() || marked.Right >= grid.Columns()) return;
    CellTexts table;
    for (int row = marked.Top; row <= marked.Bottom; ++row) {
        auto& texts = table.emplace_back();
        for (int column = marked.Left; column <= marked.Right; ++column)
            texts.push_back(textOf ? textOf(row, column) : grid.Text(row, column));
    }
    clipboard->put(TabbedText(table), HtmlTable(table));
    StatusText(session) = marked.IsOneCell()
                              ? "Copied one cell"
                              : fmt::format("Copied {} x {} cells", marked.Rows(), marked.Columns());
}

void CopyMatrixCells(Session& session) {
    if (auto* window = dynamic_cast<GridWindow*>(session.ActiveWindow))
        CopyMarkedCells(session, window->Siatka);
}

} // namespace dorvan
