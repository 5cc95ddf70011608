#include "desktop/row_dragging.h"

#include "desktop/event_dispatch.h"
#include "desktop/grid_widget.h"
#include "session/document_grid.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace dorvan {

namespace {

constexpr int ScrollInterval = 60; // milliseconds
constexpr int LineWidth = 3;       // pixels

} // namespace

RowDragging::RowDragging(GridWidget& grid, EventDispatch& dispatch, Drop drop)
    : GridCompanion(grid), grid_(grid), dispatch_(dispatch), drop_(std::move(drop)),
      line_(new QFrame(grid.viewport())) {
    grid.installEventFilter(this);
    grid.viewport()->installEventFilter(this);
    line_->setObjectName("RowTarget");
    line_->setAttribute(Qt::WA_TransparentForMouseEvents);
    line_->setAutoFillBackground(true);
    line_->setBackgroundRole(QPalette::Highlight);
    line_->hide();
    scrolling_.setInterval(ScrollInterval);
    connect(&scrolling_, &QTimer::timeout, this, [this] {
        if (!grid_.Shown()) return End();
        auto* bar = grid_.verticalScrollBar();
        bar->setValue(bar->value() + (place_.y() < 0 ? -1 : 1));
        DragTo(place_);
    });
}

// Below the row that it would follow, or above the one that it would precede.
void RowDragging::ShowLine() {
    const QRect row = grid_.CellRect(to_, DocumentGrid::NumberColumn);
    line_->setVisible(!row.isEmpty() && to_ != from_);
    const int edge = to_ > from_ ? row.bottom() + 1 : row.top();
    line_->setGeometry(0, edge - LineWidth / 2, grid_.viewport()->width(), LineWidth);
    line_->raise();
}

void RowDragging::DragTo(QPoint place) {
    place_ = place;
    const int height = grid_.viewport()->height();
    const int row = grid_.CellAt({0, std::clamp(place.y(), 0, height - 1)}).y();
    const int last = grid_.Shown()->Rows() - 1;
    to_ = row < 0 ? last : std::clamp(row, 1, last);
    if (!dragging_ && to_ == from_) return;
    if (!std::exchange(dragging_, true)) grid_.viewport()->setCursor(Qt::ClosedHandCursor);
    ShowLine();
    if (place.y() >= 0 && place.y() < height)
        scrolling_.stop();
    else if (!scrolling_.isActive())
        scrolling_.start();
}

void RowDragging::End() {
    if (std::exchange(dragging_, false)) grid_.viewport()->unsetCursor();
    from_ = -1;
    line_->hide();
    scrolling_.stop();
}

bool RowDragging::eventFilter(QObject* watched, QEvent* event) {
    if (!grid_.Shown()) {
        End(); // its owner has gone while the row was on its way
        return false;
    }
    const bool onKeys = watched == &grid_;
    switch (event->type()) {
    case QEvent::KeyPress:
        if (!onKeys || !dragging_ || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) return false;
        End();
        return true;
    case QEvent::MouseButtonPress: {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        if (onKeys) return false;
        const QPoint cell = grid_.CellAt(mouse.position().toPoint());
        const bool byLabel = cell.x() >= 0 && cell.x() < DocumentGrid::FirstValueColumn && cell.y() >= 1;
        from_ = byLabel && mouse.button() == Qt::LeftButton && mouse.modifiers() == Qt::NoModifier ? cell.y()
                                                                                                   : -1;
        return false;
    }
    case QEvent::MouseMove: {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        if (onKeys || from_ < 0 || !(mouse.buttons() & Qt::LeftButton)) return false;
        DragTo(mouse.position().toPoint());
        return true;
    }
    case QEvent::MouseButtonRelease: {
        const int from = from_;
        const bool drops = !onKeys && dragging_ && to_ != from;
        End();
        if (drops) dispatch_.Run([&] { drop_(from, to_); });
        return drops;
    }
    default: return false;
    }
}

} // namespace dorvan
