#pragma once

#include "desktop/grid_companion.h"

#include <QFrame>
#include <QTimer>

#include <functional>

namespace dorvan {

// A row that is dragged by its number or name to another one. A line shows where it would land; Esc lets it
// go.
class RowDragging : public GridCompanion {
public:
    using Drop = std::function<void(int from, int to)>;

    RowDragging(GridWidget& grid, EventDispatch& dispatch, Drop drop);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void DragTo(QPoint place);
    void ShowLine();
    void End();

    GridWidget& grid_;
    EventDispatch& dispatch_;
    Drop drop_;
    QFrame* line_;     // a child of the viewport
    QTimer scrolling_; // while the mouse is above or below
    QPoint place_;
    int from_ = -1; // the row that was pressed
    int to_ = -1;
    bool dragging_ = false;
};

} // namespace dorvan
