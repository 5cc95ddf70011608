#include "desktop/grid_marking.h"

#include "desktop/bindings.h"
#include "desktop/grid_widget.h"
#include "platform/keys.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace dorvan {

namespace {

constexpr int ScrollInterval = 60; // milliseconds

// How far a place lies outside of 0 to room - 1: -1, 0 or 1.
int Outside(int place, int room) { return place < 0 ? -1 : place >= room ? 1 : 0; }

} // namespace

GridMarking::GridMarking(GridWidget& grid, Grid& marked, EventDispatch& dispatch)
    : GridCompanion(grid), grid_(grid), dispatch_(dispatch), marking_(marked) {
    grid.installEventFilter(this);
    grid.viewport()->installEventFilter(this);
    scrolling_.setInterval(ScrollInterval);
    connect(&scrolling_, &QTimer::timeout, this, [this] { ScrollOn(); });
}

void GridMarking::Run(const std::function<void()>& mark) {
    dispatch_.Run([&] {
        if (grid_.Shown()) mark();
    });
}

// A click with Shift marks as far as that cell. Any other one moves the current cell and may begin a drag;
// the right button on marked cells leaves them marked, for its menu.
bool GridMarking::Press(const QMouseEvent& event) {
    const Grid* grid = grid_.Shown();
    if (!grid) return false;
    const QPoint place = event.position().toPoint();
    const QPoint cell = grid_.CellAt(place);
    dragging_ = event.button() == Qt::LeftButton && cell.x() >= 0 && cell.y() >= 0;
    dragged_ = place;
    if (event.button() == Qt::LeftButton && !(event.modifiers() & Qt::ShiftModifier)) {
        marking_.Press(cell.y(), cell.x());
        return false;
    }
    if (event.button() == Qt::LeftButton) {
        grid_.setFocus(Qt::MouseFocusReason); // a field that loses it takes its text first
        Run([&] {
            marking_.ExtendTo(cell.y(), cell.x());
            marking_.Press(grid->Row(), grid->Column());
        });
        return true;
    }
    const CellRange marked = grid->Marked();
    if (event.button() != Qt::RightButton || marked.IsOneCell() || !marked.Has(cell.y(), cell.x()))
        return false;
    grid_.setFocus(Qt::MouseFocusReason);
    Run([&] {
        if (grid_.events.rightButton) grid_.events.rightButton(event.globalPosition().toPoint());
    });
    return true;
}

void GridMarking::DragTo(QPoint place) {
    const QRect room = grid_.viewport()->rect();
    dragged_ = place;
    const QPoint cell = grid_.CellAt(
        {std::clamp(place.x(), 0, room.width() - 1), std::clamp(place.y(), 0, room.height() - 1)});
    Run([&] {
        const Grid& grid = *grid_.Shown(); // behind the last cell, the last one counts
        marking_.DragTo(cell.y() < 0 ? grid.Rows() - 1 : cell.y(),
                        cell.x() < 0 ? grid.Columns() - 1 : cell.x());
    });
    if (room.contains(place))
        scrolling_.stop();
    else if (!scrolling_.isActive())
        scrolling_.start();
}

void GridMarking::ScrollOn() {
    const QRect room = grid_.viewport()->rect();
    auto* across = grid_.horizontalScrollBar();
    auto* down = grid_.verticalScrollBar();
    across->setValue(across->value() + Outside(dragged_.x(), room.width()));
    down->setValue(down->value() + Outside(dragged_.y(), room.height()));
    DragTo(dragged_);
}

bool GridMarking::Key(const QKeyEvent& event) {
    if (!grid_.Shown()) return false;
    if (event.matches(QKeySequence::SelectAll)) {
        Run([this] { marking_.MarkAll(); });
        return true;
    }
    int keyCode = KeyCodeOf(event);
    const bool shift = event.modifiers() & Qt::ShiftModifier;
    if (!shift || keyCode < key::PageUp || keyCode > key::Down) return false;
    Run([&] {
        if (grid_.events.keyDown) grid_.events.keyDown(keyCode); // where its owner takes no keys now
        if (!marking_.ExtendByKey(keyCode, event.modifiers() & Qt::ControlModifier, grid_.PageRows())) return;
        grid_.ScrollTo(marking_.EndRow(), marking_.EndColumn());
    });
    return true;
}

bool GridMarking::eventFilter(QObject* watched, QEvent* event) {
    const bool inViewport = watched == grid_.viewport();
    switch (event->type()) {
    case QEvent::KeyPress: return !inViewport && Key(static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress: return inViewport && Press(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove: {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        if (!inViewport || !dragging_ || !(mouse.buttons() & Qt::LeftButton)) return false;
        DragTo(mouse.position().toPoint());
        return true;
    }
    case QEvent::MouseButtonRelease:
        dragging_ = false;
        scrolling_.stop();
        return false;
    default: return false;
    }
}

} // namespace dorvan
