#pragma once

#include "desktop/grid_companion.h"

class QInputMethodEvent;
class QInputMethodQueryEvent;

namespace dorvan {

// What a grid's keyboard does beside its plain keys: characters that dead keys or an input method compose go
// where a typed one would, and the menu key opens the grid's menu below the current cell.
class GridTyping : public GridCompanion {
public:
    GridTyping(GridWidget& grid, EventDispatch& dispatch);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Answer(QInputMethodQueryEvent& query) const;
    void TakeComposed(const QInputMethodEvent& event);
    bool OpenMenu();

    GridWidget& grid_;
    EventDispatch& dispatch_;
};

} // namespace dorvan
