#pragma once

#include <QColor>

class QPainter;
class QPalette;
class QRect;

// What shows where the user is in a grid.
namespace dorvan {

QColor Blend(const QColor& one, const QColor& other, double share);

// The ground of the heads of the current row and column, from that of the others.
QColor MarkedHead(const QColor& ground, const QPalette& palette);

// The frame of the current cell, in device pixels: dark outside and white inside, so that it is seen on every
// picture. Around a cell too small to hold it, else within the cell.
void PaintCurrentFrame(QPainter& painter, const QRect& cell, double ratio, const QPalette& palette,
                       bool focused);

} // namespace dorvan
