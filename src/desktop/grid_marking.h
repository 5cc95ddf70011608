#pragma once

#include "desktop/grid_companion.h"
#include "platform/cell_marking.h"

#include <QPoint>
#include <QTimer>

class QKeyEvent;
class QMouseEvent;

namespace dorvan {

// Marks cells of a grid by dragging, by Shift and a click, by Shift and the keys that move, and by Ctrl+A.
class GridMarking : public GridCompanion {
public:
    GridMarking(GridWidget& grid, Grid& marked, EventDispatch& dispatch);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Press(const QMouseEvent& event);
    void DragTo(QPoint place);
    void ScrollOn();
    bool Key(const QKeyEvent& event);
    void Run(const std::function<void()>& mark);

    GridWidget& grid_;
    EventDispatch& dispatch_;
    CellMarking marking_;
    QTimer scrolling_; // while the mouse is dragged outside
    QPoint dragged_;   // where to, in the viewport
    bool dragging_ = false;
};

} // namespace dorvan
