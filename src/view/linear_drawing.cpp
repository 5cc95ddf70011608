#include "view/linear_drawing.h"

#include "numbers/number_text.h"

#include <fmt/format.h>

#include <string>
#include <vector>

namespace dorvan {

namespace {

// The frame that the two axes give to the plot.
constexpr double Left = 240;
constexpr double Right = 4800;
constexpr double Top = 360;
constexpr double Bottom = 2640;
constexpr double RightMargin = 100;

constexpr double AxisY = 2625; // of the horizontal axis
constexpr double DotRadius = 30;
constexpr double MarkRadius = 60;
constexpr double NumberTop = 2760;
constexpr Colour DarkGrey = GreyOf(128);
constexpr drawing::Pen ThinPen{Black, 15};
constexpr drawing::Pen ThickPen{Black, 30};

// Between place k and the next one, for k from 1. The first is read before any count is looked at.
struct Neighbours {
    std::vector<double> Distances;
    double Largest;
};

Neighbours NeighboursOf(const DiagramDocument& document) {
    Neighbours neighbours{{}, document.Matrix(1, 2)};
    for (std::int32_t k = 1; k < document.RecCount; ++k) {
        const double distance = document.Matrix(k, k + 1);
        neighbours.Distances.push_back(distance);
        if (distance > neighbours.Largest) neighbours.Largest = distance;
    }
    return neighbours;
}

std::vector<drawing::Point> PointsOf(const Neighbours& neighbours) {
    if (neighbours.Largest == 0)
        throw RuntimeFailure(Failure::DivisionByZero, "following records without distance");
    const double step = (Right - Left - RightMargin) / double(neighbours.Distances.size());
    std::vector<drawing::Point> points;
    for (const double distance : neighbours.Distances)
        points.push_back(
            {Left + step * double(points.size()), Bottom - (Bottom - Top) * distance / neighbours.Largest});
    return points;
}

void DrawFrame(Canvas& canvas) {
    canvas.DrawLine({Left, Top}, {Left, Bottom});
    canvas.DrawLine({Left, AxisY}, {Right, AxisY});
    for (const auto& corner : {drawing::Point{195, 350}, {200, 2570}, {4680, 2560}})
        canvas.FillDisc({corner.X + MarkRadius, corner.Y + MarkRadius}, MarkRadius);
    canvas.Write({80, 2400}, "0");
    canvas.Write({240, 2760}, "1");
    canvas.Write({4680, 2760}, "N");
}

void DrawPlot(Canvas& canvas, const std::vector<drawing::Point>& points) {
    canvas.Pen = {DarkGrey, ThinPen.Width};
    for (std::size_t k = 0; k < points.size(); ++k) {
        if (k > 0) canvas.DrawLine(points[k - 1], points[k]);
        canvas.FillDisc(points[k], DotRadius);
    }
    canvas.Pen = ThinPen;
}

void DrawTicks(Canvas& canvas, const std::vector<drawing::Point>& points, TextMeasure& measure) {
    for (std::size_t k = 10; k <= points.size(); k += 10) {
        const double x = points[k - 1].X;
        canvas.Pen = ThickPen;
        canvas.DrawLine({x, Bottom - 25}, {x, Bottom + 25});
        const std::string number = fmt::format("{}", k);
        canvas.Write({x - measure.extentOf(number, canvas.Font).Width / 2, NumberTop}, number);
        canvas.Pen = ThinPen;
    }
}

} // namespace

Drawing LinearGraphDrawing(const DiagramDocument& document, TextMeasure& measure, char decimalSeparator) {
    const Neighbours neighbours = NeighboursOf(document);
    const std::vector<drawing::Point> points = PointsOf(neighbours);
    Canvas canvas(LinearGraphWidth, LinearGraphHeight);
    DrawFrame(canvas);
    DrawPlot(canvas, points);
    canvas.Font = {"", 6, false};
    DrawTicks(canvas, points, measure);
    canvas.Write({25, 25}, FormatPattern(neighbours.Largest, "####0.00", decimalSeparator));
    return canvas.Take();
}

} // namespace dorvan
