#include "desktop/grid_hover.h"

#include "desktop/grid_widget.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace dorvan {

GridHover::GridHover(GridWidget& grid, Words words, Pointed pointed)
    : GridCompanion(grid), grid_(grid), words_(std::move(words)), pointed_(std::move(pointed)) {
    grid.viewport()->setMouseTracking(true);
    grid.viewport()->installEventFilter(this);
}

void GridHover::Point(QPoint cell) {
    if (cell.x() < 0 || cell.y() < 0) cell = {-1, -1};
    if (cell == cell_) return;
    cell_ = cell;
    pointed_(cell.y(), cell.x());
}

bool GridHover::eventFilter(QObject*, QEvent* event) {
    if (!grid_.Shown()) return false;
    switch (event->type()) {
    case QEvent::MouseMove: Point(grid_.CellAt(static_cast<QMouseEvent*>(event)->pos())); return false;
    case QEvent::Leave: Point({-1, -1}); return false;
    case QEvent::ToolTip: {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QPoint cell = grid_.CellAt(help->pos());
        QToolTip::showText(help->globalPos(), words_(cell.y(), cell.x()), grid_.viewport(),
                           grid_.CellRect(cell.y(), cell.x()));
        return true;
    }
    default: return false;
    }
}

} // namespace dorvan
