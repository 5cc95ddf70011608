#pragma once

#include "desktop/grid_companion.h"

class QInputMethodEvent;
class QInputMethodQueryEvent;
class QLabel;

namespace dorvan {

// What a grid's keyboard does beside its plain keys: characters that dead keys or an input method compose go
// where a typed one would, what is not finished stands over the current cell, and the menu key opens the
// grid's menu below the current cell.
class GridTyping : public GridCompanion {
public:
    GridTyping(GridWidget& grid, EventDispatch& dispatch);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Answer(QInputMethodQueryEvent& query) const;
    void TakeComposed(const QInputMethodEvent& event);
    void ShowUnfinished(const QString& text);
    bool OpenMenu();

    GridWidget& grid_;
    EventDispatch& dispatch_;
    QLabel* unfinished_ = nullptr; // once there was something to show
};

} // namespace dorvan
