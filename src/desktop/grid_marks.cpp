#include "desktop/grid_marks.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace dorvan {

namespace {

constexpr int SmallestCellInside = 10; // pixels at a ratio of 1
constexpr int DarkestGround = 110;     // a grey that white and black both stand out from
constexpr double MarkShare = 0.4;

// Within `outer`, `width` wide.
void PaintRing(QPainter& painter, const QRect& outer, int width, const QColor& colour) {
    painter.fillRect(outer.left(), outer.top(), outer.width(), width, colour);
    painter.fillRect(outer.left(), outer.bottom() + 1 - width, outer.width(), width, colour);
    painter.fillRect(outer.left(), outer.top(), width, outer.height(), colour);
    painter.fillRect(outer.right() + 1 - width, outer.top(), width, outer.height(), colour);
}

// Dark enough beside white, whatever the theme calls a highlight.
QColor Dark(QColor colour) {
    while (qGray(colour.rgb()) > DarkestGround) colour = colour.darker(115);
    return colour;
}

} // namespace

QColor Blend(const QColor& one, const QColor& other, double share) {
    return QColor::fromRgbF(float(one.redF() * (1 - share) + other.redF() * share),
                            float(one.greenF() * (1 - share) + other.greenF() * share),
                            float(one.blueF() * (1 - share) + other.blueF() * share));
}

QColor MarkedHead(const QColor& ground, const QPalette& palette) {
    return Blend(ground, palette.color(QPalette::Active, QPalette::Highlight), MarkShare);
}

void PaintCurrentFrame(QPainter& painter, const QRect& cell, double ratio, const QPalette& palette,
                       bool focused) {
    const int dark = std::max(1, int(std::lround((focused ? 2 : 1) * ratio)));
    const int light = std::max(1, int(std::lround(ratio)));
    const bool inside = std::min(cell.width(), cell.height()) >= SmallestCellInside * ratio;
    const int around = inside ? 0 : dark + light;
    const QRect outer = cell.adjusted(-around, -around, around, around);
    const auto group = focused ? QPalette::Active : QPalette::Inactive;
    PaintRing(painter, outer, dark, Dark(palette.color(group, QPalette::Highlight)));
    PaintRing(painter, outer.adjusted(dark, dark, -dark, -dark), light, Qt::white);
}

} // namespace dorvan
