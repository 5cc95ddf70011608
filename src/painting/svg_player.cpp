#include "painting/svg_player.h"

#include "painting/fonts.h"

#include <QFontMetricsF>

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

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

// How an operation looks, as a style sheet says it. Each says all, so that none inherits from another.
std::string StyleOf(const drawing::Pen& pen) {
    return fmt::format("fill:none;stroke:#{:06x};stroke-width:{};stroke-linecap:square;stroke-linejoin:miter",
                       pen.Ink, Length(pen.Width));
}
std::string StyleOf(Colour fill) { return fmt::format("fill:#{:06x};stroke:none", fill); }
std::string StyleOf(const drawing::Line& line) { return StyleOf(line.With); }
std::string StyleOf(const drawing::Box& box) { return StyleOf(box.With); }
std::string StyleOf(const drawing::FilledBox& box) { return StyleOf(box.Fill); }
std::string StyleOf(const drawing::Disc& disc) { return StyleOf(disc.Fill); }
std::string StyleOf(const drawing::Text& text) {
    const QFont font = FontInTwips(text.With);
    return fmt::format("{};font-family:'{}';font-size:{}px;font-weight:{}", StyleOf(text.Ink),
                       font.family().toStdString(), font.pixelSize(), text.With.Bold ? 700 : 400);
}
std::string StyleOf(const drawing::NewPage&) { return {}; }

// The styles of a sheet. The most frequent one is that of the whole picture: its operations need not name it.
class Styles {
public:
    explicit Styles(const Drawing& sheet) {
        std::map<std::string, std::size_t> counts;
        for (const auto& operation : sheet.Operations) ++counts[Of(operation)];
        for (const auto& [style, count] : counts) {
            if (whole_.empty() || count > counts.at(whole_)) whole_ = style;
            names_.emplace(style, fmt::format("s{}", names_.size()));
        }
    }

    static std::string Of(const drawing::Operation& operation) {
        return std::visit([](const auto& drawn) { return StyleOf(drawn); }, operation);
    }

    // What an operation of that style says: " class=\"s1\"", or nothing.
    std::string Attribute(const std::string& style) const {
        return style == whole_ ? std::string() : fmt::format(" class=\"{}\"", names_.at(style));
    }
    std::string Whole() const { return whole_.empty() ? "s0" : names_.at(whole_); }
    std::string Sheet() const {
        std::string sheet;
        for (const auto& [style, name] : names_) sheet += fmt::format(".{}{{{}}}\n", name, style);
        return sheet;
    }

private:
    std::map<std::string, std::string> names_; // by style
    std::string whole_;
};

class SvgPlayer {
public:
    explicit SvgPlayer(const Styles& styles) : styles_(styles) {}

    void Play(const drawing::Operation& operation) {
        attribute_ = styles_.Attribute(Styles::Of(operation));
        std::visit([this](const auto& drawn) { Draw(drawn); }, operation);
    }
    std::string Take() { return std::move(svg_); }

private:
    void Draw(const drawing::Line& line) {
        Add("<path{} d=\"M{} {}L{} {}\"/>\n", attribute_, Length(line.From.X), Length(line.From.Y),
            Length(line.To.X), Length(line.To.Y));
    }
    void Draw(const drawing::Box& box) { AddRectangle(box.From, box.To); }
    void Draw(const drawing::FilledBox& box) { AddRectangle(box.From, box.To); }
    void Draw(const drawing::Disc& disc) {
        if (disc.Radius <= 0) return;
        Add("<circle{} cx=\"{}\" cy=\"{}\" r=\"{}\"/>\n", attribute_, Length(disc.Centre.X),
            Length(disc.Centre.Y), Length(disc.Radius));
    }
    void Draw(const drawing::Text& text) {
        Add("<text{} x=\"{}\" y=\"{}\">{}</text>\n", attribute_, Length(text.At.X),
            Length(text.At.Y + QFontMetricsF(FontInTwips(text.With)).ascent()), Escaped(text.Content));
    }
    void Draw(const drawing::NewPage&) {}

    template <class... Values> void Add(fmt::format_string<Values...> format, Values&&... values) {
        fmt::format_to(std::back_inserter(svg_), format, std::forward<Values>(values)...);
    }
    void AddRectangle(drawing::Point from, drawing::Point to) {
        Add("<rect{} x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\"/>\n", attribute_,
            Length(std::min(from.X, to.X)), Length(std::min(from.Y, to.Y)), Length(std::fabs(to.X - from.X)),
            Length(std::fabs(to.Y - from.Y)));
    }

    const Styles& styles_;
    std::string attribute_;
    std::string svg_;
};

} // namespace

std::string SvgOf(const Drawing& drawing, double scale) {
    const std::vector<Drawing> pages = PagesOf(drawing);
    const Styles styles(pages.front());
    SvgPlayer player(styles);
    for (const auto& operation : pages.front().Operations) player.Play(operation);
    const double width = drawing.Width * scale;
    const double height = drawing.Height * scale;
    return fmt::format("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n"
                       "<svg width=\"{:.6g}mm\" height=\"{:.6g}mm\" viewBox=\"0 0 {} {}\" version=\"1.1\" "
                       "xmlns=\"http://www.w3.org/2000/svg\">\n"
                       "<rect width=\"{}\" height=\"{}\" fill=\"#ffffff\"/>\n"
                       "<style type=\"text/css\">\n{}</style>\n"
                       "<g class=\"{}\" transform=\"scale({}) translate({},{})\" xml:space=\"preserve\">\n",
                       std::ceil(width) / TwipsPerMillimetre, std::ceil(height) / TwipsPerMillimetre,
                       Length(width), Length(height), Length(width), Length(height), styles.Sheet(),
                       styles.Whole(), scale, HalfPixel, HalfPixel) +
           player.Take() + "</g>\n</svg>\n";
}

} // namespace dorvan::painting
