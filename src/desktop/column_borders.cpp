#include "desktop/column_borders.h"

#include "desktop/event_dispatch.h"
#include "desktop/grid_widget.h"
#include "desktop/qt_text.h"

#include <QFontMetrics>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace dorvan {

namespace {

constexpr int Reach = 4;           // pixels on both sides of a border
constexpr int LeastWidth = 12;     // pixels
constexpr int RoomAroundText = 10; // pixels

} // namespace

ColumnBorders::ColumnBorders(GridWidget& grid, Grid& sized, EventDispatch& dispatch)
    : GridCompanion(grid), grid_(grid), sized_(sized), dispatch_(dispatch) {
    grid.viewport()->installEventFilter(this);
    grid.viewport()->setMouseTracking(true);
}

bool ColumnBorders::HasSymbols(int column) const {
    return sized_.Rows() > sized_.FixedRows && sized_.Picture(sized_.FixedRows, column) != 0;
}

int ColumnBorders::BorderAt(QPoint place) const {
    if (!grid_.Shown() || grid_.CellAt(place).y() != 0) return -1;
    for (const int x : {place.x(), place.x() - Reach}) {
        const int column = grid_.CellAt({x, place.y()}).x();
        if (column < 0 || HasSymbols(column)) continue;
        const QRect head = grid_.CellRect(0, column);
        if (std::abs(head.right() + 1 - place.x()) <= Reach) return column;
    }
    return -1;
}

void ColumnBorders::SetWidth(int column, int pixels) {
    const int width = std::max(pixels, LeastWidth);
    dispatch_.Run([&] {
        if (grid_.Shown() && column < sized_.Columns())
            sized_.SetColumnWidth(column, int(std::lround(width * grid_.TwipsOfPixel(column))));
    });
}

int ColumnBorders::WidestText(int column) const {
    QFont font = grid_.TextFont(); // in device pixels
    const QFontMetrics metrics(font);
    int widest = 0;
    for (int row = 0; row < sized_.Rows(); ++row)
        widest = std::max(widest, metrics.horizontalAdvance(ToQt(sized_.Text(row, column))));
    return int(std::ceil(widest / grid_.devicePixelRatioF())) + RoomAroundText;
}

bool ColumnBorders::Move(QPoint place) {
    if (dragged_ >= 0) {
        SetWidth(dragged_, place.x() - grid_.CellRect(0, dragged_).left());
        return true;
    }
    const bool points = BorderAt(place) >= 0;
    if (points != pointing_) {
        pointing_ = points;
        if (points)
            grid_.viewport()->setCursor(Qt::SplitHCursor);
        else
            grid_.viewport()->unsetCursor();
    }
    return false;
}

bool ColumnBorders::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        if (mouse.button() != Qt::LeftButton || mouse.modifiers() != Qt::NoModifier) return false;
        dragged_ = BorderAt(mouse.position().toPoint());
        return dragged_ >= 0;
    }
    case QEvent::MouseButtonDblClick: {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        const int column = mouse.button() == Qt::LeftButton ? BorderAt(mouse.position().toPoint()) : -1;
        if (column < 0) return false;
        SetWidth(column, WidestText(column));
        return true;
    }
    case QEvent::MouseMove: return Move(static_cast<QMouseEvent&>(*event).position().toPoint());
    case QEvent::MouseButtonRelease: return std::exchange(dragged_, -1) >= 0;
    default: return false;
    }
}

} // namespace dorvan
