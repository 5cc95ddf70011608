#include "desktop/grid_text.h"

#include <QFontMetrics>

#include <algorithm>

namespace dorvan {

namespace {

constexpr int NarrowestCutCell = 26; // pixels; in narrower ones three dots would take all the room
constexpr int LeastStretch = 60;     // percent of the font's own width
constexpr int LeastStretchUncut = 50;
constexpr int StretchStep = 5; // each step is a font of its own in the toolkit's memory

int WidthOf(const QFont& font, const QString& text) { return QFontMetrics(font).horizontalAdvance(text); }

} // namespace

FittedText FitText(const QString& text, const QFont& font, int room) {
    FittedText fitted{text, font};
    int width = WidthOf(font, text);
    if (width <= room) return fitted;
    const bool cuts = room >= NarrowestCutCell;
    const int least = cuts ? LeastStretch : LeastStretchUncut;
    int stretch = 100 * room / std::max(1, width) / StretchStep * StretchStep;
    for (; width > room && stretch >= least; stretch -= StretchStep) {
        fitted.Font.setStretch(stretch);
        width = WidthOf(fitted.Font, text);
    }
    if (width <= room) return fitted;
    fitted.Font.setStretch(least);
    width = WidthOf(fitted.Font, text);
    if (width <= room || !cuts) return fitted;
    fitted.Shown = QFontMetrics(fitted.Font).elidedText(text, Qt::ElideRight, room);
    fitted.Cut = true;
    return fitted;
}

int LabelStep(int head, int label) {
    if (head <= 0) return 1;
    for (int tens = 1;; tens *= 10)
        for (const int step : {tens, 2 * tens, 5 * tens})
            if (step * head >= label) return step;
}

} // namespace dorvan
