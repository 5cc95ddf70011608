#include "painting/svg_player.h"

#include "painting/fonts.h"

#include <QFontMetricsF>

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>

namespace dorvan::painting {

namespace {

constexpr double TwipsPerMillimetre = 1440 / 25.4;
// As on a screen, a point names the middle of a pixel: without this the lines along the edges would be
// halved.
constexpr double HalfPixel = 7.5;

// A length to a hundredth of a twip, without zeros at the end.
std::string Length(double twips) {
    std::string text = fmt::format("{:.2f}", twips);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char character : text) switch (character) {
        case '&': escaped += "&amp;"; break;
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '"': escaped += "&quot;"; break;
        default:
            if (static_cast<unsigned char>(character) >= ' ')
                escaped += character; // no other can stand there
        }
    return escaped;
}

class SvgPlayer {
public:
    void Play(const drawing::Line& line) {
        Stroke(line.With);
        Add("<path d=\"M{} {}L{} {}\"/>\n", Length(line.From.X), Length(line.From.Y), Length(line.To.X),
            Length(line.To.Y));
    }

    void Play(const drawing::Box& box) {
        Stroke(box.With);
        AddRectangle(box.From, box.To);
    }

    void Play(const drawing::FilledBox& box) {
        Fill(box.Fill);
        AddRectangle(box.From, box.To);
    }

    void Play(const drawing::Disc& disc) {
        if (disc.Radius <= 0) return;
        Fill(disc.Fill);
        Add("<circle cx=\"{}\" cy=\"{}\" r=\"{}\"/>\n", Length(disc.Centre.X), Length(disc.Centre.Y),
            Length(disc.Radius));
    }

    void Play(const drawing::Text& text) {
        const QFont font = FontInTwips(text.With);
        Enter(fmt::format("fill=\"#{:06x}\" font-family=\"{}\" font-size=\"{}\" font-weight=\"{}\" "
                          "xml:space=\"preserve\"",
                          text.Ink, Escaped(font.family().toStdString()), font.pixelSize(),
                          text.With.Bold ? 700 : 400));
        Add("<text x=\"{}\" y=\"{}\">{}</text>\n", Length(text.At.X),
            Length(text.At.Y + QFontMetricsF(font).ascent()), Escaped(text.Content));
    }

    void Play(const drawing::NewPage&) {}

    std::string Take() {
        Enter({});
        return std::move(svg_);
    }

private:
    template <class... Values> void Add(fmt::format_string<Values...> format, Values&&... values) {
        fmt::format_to(std::back_inserter(svg_), format, std::forward<Values>(values)...);
    }

    void AddRectangle(drawing::Point from, drawing::Point to) {
        Add("<rect x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\"/>\n", Length(std::min(from.X, to.X)),
            Length(std::min(from.Y, to.Y)), Length(std::fabs(to.X - from.X)),
            Length(std::fabs(to.Y - from.Y)));
    }

    void Stroke(const drawing::Pen& pen) {
        Enter(fmt::format("fill=\"none\" stroke=\"#{:06x}\" stroke-width=\"{}\" stroke-linecap=\"square\" "
                          "stroke-linejoin=\"miter\"",
                          pen.Ink, Length(pen.Width)));
    }

    void Fill(Colour colour) { Enter(fmt::format("fill=\"#{:06x}\"", colour)); }

    // What follows has these attributes; empty: none.
    void Enter(const std::string& attributes) {
        if (attributes == attributes_) return;
        if (!attributes_.empty()) svg_ += "</g>\n";
        attributes_ = attributes;
        if (!attributes_.empty()) Add("<g {}>\n", attributes_);
    }

    std::string svg_;
    std::string attributes_;
};

} // namespace

std::string SvgOf(const Drawing& drawing, double scale) {
    SvgPlayer player;
    for (const auto& operation : PagesOf(drawing).front().Operations)
        std::visit([&](const auto& drawn) { player.Play(drawn); }, operation);
    const double width = drawing.Width * scale;
    const double height = drawing.Height * scale;
    return fmt::format("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n"
                       "<svg width=\"{:.6g}mm\" height=\"{:.6g}mm\" viewBox=\"0 0 {} {}\" version=\"1.1\" "
                       "xmlns=\"http://www.w3.org/2000/svg\">\n"
                       "<rect width=\"{}\" height=\"{}\" fill=\"#ffffff\"/>\n"
                       "<g transform=\"scale({}) translate({},{})\">\n",
                       std::ceil(width) / TwipsPerMillimetre, std::ceil(height) / TwipsPerMillimetre,
                       Length(width), Length(height), Length(width), Length(height), scale, HalfPixel,
                       HalfPixel) +
           player.Take() + "</g>\n</svg>\n";
}

} // namespace dorvan::painting
