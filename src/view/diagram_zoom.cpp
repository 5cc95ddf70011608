#include "view/diagram_zoom.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace dorvan {

namespace {

// Boxes of 1, 2, 3, 4, 6, 9, 12, 17, 26, 34, 51 and 68 pixels on a screen of 15 twips to the pixel.
constexpr double Steps[] = {DiagramZoom::Least, 12, 18, 25, 35, 50, 70, 100, 150, 200, 300,
                            DiagramZoom::Most};

constexpr double Near = 1e-6; // a percentage that is a step but for its last digits

} // namespace

double FittingPercent(const DiagramBoxes& boxes, const DiagramRoom& room) {
    if (boxes.Count <= 0 || boxes.Side <= 0 || room.Pixel <= 0) return 100;
    const double side = std::min(room.Width, room.Height) / room.Pixel;
    const double pixels = std::max(1.0, std::floor(side / boxes.Count + Near));
    return std::min(100.0, pixels * room.Pixel / boxes.Side * 100);
}

void DiagramZoom::Take(double percent) {
    percent_ = percent;
    fits_ = false;
}

void DiagramZoom::In() {
    const auto* next = std::ranges::find_if(Steps, [this](double step) { return step > percent_ + Near; });
    Take(next == std::end(Steps) ? Most : *next);
}

void DiagramZoom::Out() {
    double next = Least;
    for (const double step : Steps)
        if (step < percent_ - Near) next = step;
    Take(std::min(next, percent_));
}

void DiagramZoom::Actual() { Take(100); }

void DiagramZoom::Fit(const DiagramBoxes& boxes) {
    percent_ = FittingPercent(boxes, room_);
    fits_ = true;
}

void DiagramZoom::SetRoom(const DiagramRoom& room, const DiagramBoxes& boxes) {
    room_ = room;
    if (fits_) Fit(boxes);
}

} // namespace dorvan
