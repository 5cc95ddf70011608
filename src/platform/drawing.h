#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <utility>
#include <variant>
#include <vector>

// Pictures as values. Lengths are twips, 1440 to the inch and 15 to the pixel of a screen, from the upper
// left corner down and to the right; they need not be whole.
namespace dorvan {

using Colour = std::uint32_t; // 0xRRGGBB
inline constexpr Colour Black = 0x000000;
inline constexpr Colour White = 0xFFFFFF;
constexpr Colour GreyOf(int level) { return Colour(level) << 16 | Colour(level) << 8 | Colour(level); }

namespace drawing {

inline constexpr double TwipsPerPoint = 20; // of a font's size

struct Point {
    double X = 0;
    double Y = 0;
    bool operator==(const Point&) const = default;
};

struct Pen {
    Colour Ink = Black;
    double Width = 15; // twips: one pixel of a screen
    bool operator==(const Pen&) const = default;
};

struct Font {
    std::string Name; // empty: the player's own
    double Size = 8;  // points
    bool Bold = false;
    bool operator==(const Font&) const = default;
};

struct Line {
    Point From;
    Point To;
    Pen With;
    bool operator==(const Line&) const = default;
};

// The outline of a rectangle between two opposite corners, in any order.
struct Box {
    Point From;
    Point To;
    Pen With;
    bool operator==(const Box&) const = default;
};

struct FilledBox {
    Point From;
    Point To;
    Colour Fill = Black;
    bool operator==(const FilledBox&) const = default;
};

struct Disc {
    Point Centre;
    double Radius = 0;
    Colour Fill = Black;
    bool operator==(const Disc&) const = default;
};

// One line of UTF-8 text; At is the upper left corner of its first character's cell.
struct Text {
    Point At;
    std::string Content;
    Font With;
    Colour Ink = Black;
    bool operator==(const Text&) const = default;
};

// What follows stands on another sheet of the same size. One at the end, with nothing after it, leaves an
// empty sheet, which players do not send to a device.
struct NewPage {
    bool operator==(const NewPage&) const = default;
};

using Operation = std::variant<Line, Box, FilledBox, Disc, Text, NewPage>;

// "Line (0, 10)-(300, 10) pen #000000 15": one line for a log or a failed test.
std::ostream& operator<<(std::ostream& out, const Point& point);
std::ostream& operator<<(std::ostream& out, const Pen& pen);
std::ostream& operator<<(std::ostream& out, const Font& font);
std::ostream& operator<<(std::ostream& out, const Line& line);
std::ostream& operator<<(std::ostream& out, const Box& box);
std::ostream& operator<<(std::ostream& out, const FilledBox& box);
std::ostream& operator<<(std::ostream& out, const Disc& disc);
std::ostream& operator<<(std::ostream& out, const Text& text);
std::ostream& operator<<(std::ostream& out, const NewPage& page);
std::string Described(const Operation& operation);

} // namespace drawing

// A white sheet, or several, and what is drawn on it, later operations over earlier ones. Each operation says
// by itself how it looks, so two drawings are equal where their operations are.
struct Drawing {
    double Width = 0; // of a sheet
    double Height = 0;
    std::vector<drawing::Operation> Operations;

    bool operator==(const Drawing&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Drawing& drawing); // an operation a line

// The sheets of a drawing as drawings of their own, without empty ones at the end; at least one.
std::vector<Drawing> PagesOf(const Drawing& drawing);

// Makes a drawing the way a picture area or a printer is drawn on: what is set holds for the operations that
// follow.
class Canvas {
public:
    Canvas(double width, double height);

    drawing::Pen Pen;   // of lines and outlines; its colour is that of discs and texts too
    drawing::Font Font; // of texts

    void DrawLine(drawing::Point from, drawing::Point to);
    void DrawBox(drawing::Point from, drawing::Point to);
    void FillBox(drawing::Point from, drawing::Point to); // in the pen's colour, without an outline
    void FillBox(drawing::Point from, drawing::Point to, Colour fill);
    void FillDisc(drawing::Point centre, double radius);
    void Write(drawing::Point at, std::string text); // an empty text draws nothing
    void StartPage();

    double Width() const { return drawing_.Width; }
    double Height() const { return drawing_.Height; }

    Drawing Take() { return std::move(drawing_); } // leaves nothing

private:
    Drawing drawing_;
};

} // namespace dorvan
