#include "desktop/grid_zoom.h"

#include "desktop/grid_widget.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <cstdlib>

namespace dorvan {

namespace {

constexpr int Notch = 120; // of a wheel, in eighths of a degree; finer wheels turn by parts of it

} // namespace

GridZoom::GridZoom(GridWidget& grid, EventDispatch& dispatch, ZoomEvents events)
    : GridCompanion(grid), grid_(grid), dispatch_(dispatch), events_(std::move(events)) {
    grid.installEventFilter(this);
    grid.viewport()->installEventFilter(this);
}

bool GridZoom::eventFilter(QObject* watched, QEvent* event) {
    if (!grid_.Shown()) return false;
    if (event->type() == QEvent::Resize && watched == &grid_) dispatch_.Later(&grid_, [this] { TellRoom(); });
    if (event->type() == QEvent::Wheel) {
        const auto& wheel = static_cast<QWheelEvent&>(*event);
        if (!(wheel.modifiers() & Qt::ControlModifier)) return false;
        Wheel(wheel);
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && watched == &grid_) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        const bool plus = key.key() == Qt::Key_Equal || key.key() == Qt::Key_Plus; // without or with Shift
        if (!plus || !(key.modifiers() & Qt::ControlModifier)) return false;
        dispatch_.Run(events_.in);
        return true;
    }
    return false;
}

void GridZoom::Wheel(const QWheelEvent& event) {
    turned_ += event.angleDelta().y();
    grid_.zoomAnchor = event.position().toPoint();
    for (; std::abs(turned_) >= Notch; turned_ -= turned_ > 0 ? Notch : -Notch)
        dispatch_.Run(turned_ > 0 ? events_.in : events_.out);
    grid_.zoomAnchor.reset();
}

void GridZoom::TellRoom() {
    if (grid_.Shown()) events_.room(grid_.RoomBehindLabels(), grid_.devicePixelRatioF());
}

} // namespace dorvan
