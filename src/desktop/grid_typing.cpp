#include "desktop/grid_typing.h"

#include "desktop/grid_widget.h"
#include "desktop/qt_text.h"
#include "platform/keys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QLabel>

namespace dorvan {

GridTyping::GridTyping(GridWidget& grid, EventDispatch& dispatch)
    : GridCompanion(grid), grid_(grid), dispatch_(dispatch) {
    grid.installEventFilter(this);
}

// Only a grid that can be typed into composes anything.
void GridTyping::Answer(QInputMethodQueryEvent& query) const {
    const Grid* grid = grid_.Shown();
    const bool types = grid && grid_.events.keyPress;
    if (query.queries() & Qt::ImEnabled) query.setValue(Qt::ImEnabled, types);
    if (!types) return;
    if (query.queries() & Qt::ImCursorRectangle)
        query.setValue(Qt::ImCursorRectangle, grid_.CellRect(grid->Row(), grid->Column()));
    if (query.queries() & Qt::ImFont) query.setValue(Qt::ImFont, grid_.font());
}

// The first character opens the edit, which takes the focus: the others follow it there.
void GridTyping::TakeComposed(const QInputMethodEvent& event) {
    if (!grid_.events.keyPress) return;
    const auto characters = event.commitString().toUcs4();
    for (int place = 0; place < int(characters.size()) && grid_.Shown(); ++place) {
        QWidget* focus = QApplication::focusWidget();
        if (focus && focus != &grid_) {
            QInputMethodEvent rest;
            rest.setCommitString(event.commitString().mid(UnitsBefore(event.commitString(), place)));
            QCoreApplication::sendEvent(focus, &rest);
            return;
        }
        int character = int(characters[place]);
        dispatch_.Run([&] { grid_.events.keyPress(character); });
    }
}

void GridTyping::ShowUnfinished(const QString& text) {
    const Grid* grid = grid_.Shown();
    if (text.isEmpty() || !grid || !grid_.events.keyPress) {
        if (unfinished_) unfinished_->hide();
        return;
    }
    if (!unfinished_) {
        unfinished_ = new QLabel(grid_.viewport());
        unfinished_->setObjectName("Unfinished");
        unfinished_->setTextFormat(Qt::PlainText);
        unfinished_->setAutoFillBackground(true);
        unfinished_->setBackgroundRole(QPalette::ToolTipBase);
        unfinished_->setForegroundRole(QPalette::ToolTipText);
        QFont underlined = grid_.font();
        underlined.setUnderline(true); // as in a field
        unfinished_->setFont(underlined);
    }
    const QRect cell = grid_.CellRect(grid->Row(), grid->Column());
    unfinished_->setText(text);
    unfinished_->resize(unfinished_->sizeHint().expandedTo(cell.size()));
    unfinished_->move(cell.topLeft());
    unfinished_->show();
}

bool GridTyping::OpenMenu() {
    const Grid* grid = grid_.Shown();
    if (!grid || !grid_.events.rightButton) return false;
    const QRect cell = grid_.CellRect(grid->Row(), grid->Column());
    const QPoint place = cell.isEmpty() ? grid_.viewport()->rect().center() : cell.bottomLeft();
    dispatch_.Run([&] { grid_.events.rightButton(grid_.viewport()->mapToGlobal(place)); });
    return true;
}

bool GridTyping::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::InputMethodQuery: Answer(static_cast<QInputMethodQueryEvent&>(*event)); return true;
    case QEvent::InputMethod: {
        const auto& composed = static_cast<QInputMethodEvent&>(*event);
        ShowUnfinished(composed.preeditString());
        TakeComposed(composed);
        event->accept();
        return true;
    }
    case QEvent::FocusOut: ShowUnfinished({}); return false;
    case QEvent::ContextMenu:
        return static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard && OpenMenu();
    default: return false;
    }
}

} // namespace dorvan
