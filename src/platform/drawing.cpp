#include "platform/drawing.h"

#include <fmt/format.h>

#include <ostream>
#include <sstream>
#include <utility>

namespace dorvan {

namespace {

std::string HexOf(Colour colour) { return fmt::format("#{:06x}", colour); }

} // namespace

namespace drawing {

std::ostream& operator<<(std::ostream& out, const Point& point) {
    return out << fmt::format("({}, {})", point.X, point.Y);
}

std::ostream& operator<<(std::ostream& out, const Pen& pen) {
    return out << fmt::format("pen {} {}", HexOf(pen.Ink), pen.Width);
}

std::ostream& operator<<(std::ostream& out, const Font& font) {
    return out << fmt::format("font {} {}{}", font.Name.empty() ? "-" : font.Name, font.Size,
                              font.Bold ? " bold" : "");
}

std::ostream& operator<<(std::ostream& out, const Line& line) {
    return out << "Line " << line.From << '-' << line.To << ' ' << line.With;
}

std::ostream& operator<<(std::ostream& out, const Box& box) {
    return out << "Box " << box.From << '-' << box.To << ' ' << box.With;
}

std::ostream& operator<<(std::ostream& out, const FilledBox& box) {
    return out << "FilledBox " << box.From << '-' << box.To << " fill " << HexOf(box.Fill);
}

std::ostream& operator<<(std::ostream& out, const Disc& disc) {
    return out << "Disc " << disc.Centre << " radius " << disc.Radius << " fill " << HexOf(disc.Fill);
}

std::ostream& operator<<(std::ostream& out, const Text& text) {
    return out << "Text " << text.At << " \"" << text.Content << "\" " << text.With << ' ' << HexOf(text.Ink);
}

std::ostream& operator<<(std::ostream& out, const NewPage&) { return out << "NewPage"; }

std::string Described(const Operation& operation) {
    std::ostringstream out;
    std::visit([&](const auto& drawn) { out << drawn; }, operation);
    return out.str();
}

} // namespace drawing

std::ostream& operator<<(std::ostream& out, const Drawing& drawing) {
    out << fmt::format("Drawing {} x {}\n", drawing.Width, drawing.Height);
    for (const auto& operation : drawing.Operations) out << drawing::Described(operation) << '\n';
    return out;
}

std::vector<Drawing> PagesOf(const Drawing& drawing) {
    std::vector<Drawing> pages(1, Drawing{drawing.Width, drawing.Height, {}});
    for (const auto& operation : drawing.Operations)
        if (std::holds_alternative<drawing::NewPage>(operation))
            pages.push_back(Drawing{drawing.Width, drawing.Height, {}});
        else
            pages.back().Operations.push_back(operation);
    while (pages.size() > 1 && pages.back().Operations.empty()) pages.pop_back();
    return pages;
}

Canvas::Canvas(double width, double height) : drawing_{width, height, {}} {}

void Canvas::DrawLine(drawing::Point from, drawing::Point to) {
    drawing_.Operations.push_back(drawing::Line{from, to, Pen});
}

void Canvas::DrawBox(drawing::Point from, drawing::Point to) {
    drawing_.Operations.push_back(drawing::Box{from, to, Pen});
}

void Canvas::FillBox(drawing::Point from, drawing::Point to) { FillBox(from, to, Pen.Ink); }

void Canvas::FillBox(drawing::Point from, drawing::Point to, Colour fill) {
    drawing_.Operations.push_back(drawing::FilledBox{from, to, fill});
}

void Canvas::FillDisc(drawing::Point centre, double radius) {
    drawing_.Operations.push_back(drawing::Disc{centre, radius, Pen.Ink});
}

void Canvas::Write(drawing::Point at, std::string text) {
    if (!text.empty()) drawing_.Operations.push_back(drawing::Text{at, std::move(text), Font, Pen.Ink});
}

void Canvas::StartPage() { drawing_.Operations.push_back(drawing::NewPage{}); }

} // namespace dorvan
