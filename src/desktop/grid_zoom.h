#pragma once

#include "desktop/event_dispatch.h"
#include "desktop/grid_companion.h"

#include <QSize>

#include <functional>

class QWheelEvent;

namespace dorvan {

// What the owner of a grid that can be zoomed does.
struct ZoomEvents {
    std::function<void()> in;
    std::function<void()> out;
    std::function<void(QSize room, double ratio)> room; // for the cells, in device pixels
};

// Zooms a grid by the wheel with Ctrl, at the pointer, and by Ctrl with the key of "+" and "=", and tells the
// room that it has. Lives as long as the grid.
class GridZoom : public GridCompanion {
public:
    GridZoom(GridWidget& grid, EventDispatch& dispatch, ZoomEvents events);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Wheel(const QWheelEvent& event);
    void TellRoom();

    GridWidget& grid_;
    EventDispatch& dispatch_;
    ZoomEvents events_;
    int turned_ = 0; // of the wheel, since the last step
};

} // namespace dorvan
