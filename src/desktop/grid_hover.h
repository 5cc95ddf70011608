#pragma once

#include "desktop/grid_companion.h"

#include <QPoint>

#include <functional>

namespace dorvan {

// Tells of the cell under the pointer, and shows a tool tip for it.
class GridHover : public GridCompanion {
public:
    using Words = std::function<QString(int row, int column)>;
    using Pointed = std::function<void(int row, int column)>; // -1 and -1: none

    GridHover(GridWidget& grid, Words words, Pointed pointed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Point(QPoint cell);

    GridWidget& grid_;
    Words words_;
    Pointed pointed_;
    QPoint cell_{-1, -1}; // x column, y row
};

} // namespace dorvan
