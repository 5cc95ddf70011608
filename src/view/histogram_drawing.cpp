#include "view/histogram_drawing.h"

#include "numbers/rounding.h"

#include <string>
#include <utility>

namespace dorvan {

namespace {

constexpr double BaseLine = 2160;
constexpr double FullHeight = 2040; // of 100 percent
constexpr double BarWidth = 375;
constexpr std::array<double, 5> BarLefts{720, 1320, 1920, 2520, 3120};
constexpr double BarLabelTop = 2280;
constexpr Colour FourthBorder = GreyOf(192);
constexpr double DotRadius = 60;
constexpr Colour Red = 0xFF0000;

void DrawBars(Canvas& canvas, const std::array<std::int16_t, 5>& heights) {
    static constexpr std::array<Colour, 4> fills{GreyOf(64), GreyOf(128), GreyOf(192), GreyOf(224)};
    for (std::size_t bar = 0; bar < heights.size(); ++bar) {
        const drawing::Point corner{BarLefts[bar], BaseLine - heights[bar]};
        const drawing::Point opposite{BarLefts[bar] + BarWidth, BaseLine};
        if (heights[bar] == 0) continue;
        if (bar < fills.size()) canvas.FillBox(corner, opposite, fills[bar]);
        if (bar < 3) continue; // no border
        canvas.Pen.Ink = bar == 3 ? FourthBorder : Black;
        canvas.DrawBox(corner, opposite);
    }
    canvas.Pen.Ink = Black;
}

void DrawAxes(Canvas& canvas) {
    const drawing::Point top{480, 120};
    const drawing::Point right{3840, BaseLine};
    canvas.DrawLine(top, {480, BaseLine});
    canvas.DrawLine(top, {360, 240});
    canvas.DrawLine(top, {600, 240});
    canvas.DrawLine({480, BaseLine}, right);
    canvas.DrawLine(right, {3720, 2040});
    canvas.DrawLine(right, {3720, 2280});
    for (const double y : {630, 1140, 1650}) canvas.DrawLine({360, y}, {600, y});
}

void WriteLabels(Canvas& canvas, TextMeasure& measure) {
    canvas.Write({120, 120}, "%");
    canvas.Write({120, 480}, "75");
    canvas.Write({120, 980}, "50");
    canvas.Write({120, 1480}, "25");
    canvas.Write({210, 2000}, "0");
    static constexpr std::array names{"I", "II", "III", "IV", "V"};
    for (std::size_t bar = 0; bar < names.size(); ++bar) {
        const double room = BarWidth - measure.extentOf(names[bar], canvas.Font).Width;
        canvas.Write({BarLefts[bar] + room / 2, BarLabelTop}, names[bar]);
    }
}

// A rising line at 20, 40, ... 100 percent, whatever the counts.
void DrawDots(Canvas& canvas) {
    static constexpr std::array<drawing::Point, 5> corners{
        {{840, 1692}, {1440, 1284}, {2040, 876}, {2640, 468}, {3240, 60}}};
    canvas.Pen.Ink = Red;
    for (const auto& corner : corners)
        canvas.FillDisc({corner.X + DotRadius, corner.Y + DotRadius}, DotRadius);
    canvas.Pen.Ink = Black;
}

} // namespace

std::array<std::int16_t, 5> BarHeights(const SectionCounts& counts) {
    if (counts.PairCount == 0) throw RuntimeFailure(Failure::Overflow, "a histogram without pairs");
    std::array<std::int16_t, 5> heights{};
    for (std::size_t bar = 0; bar < heights.size(); ++bar)
        heights[bar] = RoundToInt16(double(counts.SectionCount[bar]) / double(counts.PairCount) * FullHeight);
    return heights;
}

Drawing HistogramDrawing(const std::array<std::int16_t, 5>& heights, bool cumulative, TextMeasure& measure) {
    Canvas canvas(HistogramWidth, HistogramHeight);
    DrawBars(canvas, heights);
    DrawAxes(canvas);
    WriteLabels(canvas, measure);
    if (cumulative) DrawDots(canvas);
    return canvas.Take();
}

} // namespace dorvan
