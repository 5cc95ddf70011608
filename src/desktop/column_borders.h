#pragma once

#include "desktop/grid_companion.h"
#include "platform/grid.h"

namespace dorvan {

// The border at the right of a column's head, dragged, gives the column another width; double-clicked, that
// of its widest text. Columns of symbols keep theirs.
class ColumnBorders : public GridCompanion {
public:
    ColumnBorders(GridWidget& grid, Grid& sized, EventDispatch& dispatch);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int BorderAt(QPoint place) const; // the column at its left; -1 where there is none
    bool HasSymbols(int column) const;
    void SetWidth(int column, int pixels);
    int WidestText(int column) const; // pixels
    bool Move(QPoint place);

    GridWidget& grid_;
    Grid& sized_;
    EventDispatch& dispatch_;
    int dragged_ = -1; // the column
    bool pointing_ = false;
};

} // namespace dorvan
