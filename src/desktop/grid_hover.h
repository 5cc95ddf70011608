#pragma once

#include <QObject>
#include <QPoint>

#include <functional>

namespace dorvan {

class GridWidget;

// Tells of the cell under the pointer, and shows a tool tip for it.
class GridHover : public QObject {
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
