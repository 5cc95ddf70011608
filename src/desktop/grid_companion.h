#pragma once

#include "desktop/grid_widget.h"

namespace dorvan {

// What watches a grid's events. It ends before the grid does, which still gets events as it goes.
class GridCompanion : public QObject {
protected:
    explicit GridCompanion(GridWidget& grid) : QObject(&grid) {}
};

} // namespace dorvan
