#include "painting/raster_player.h"

#include "painting/fonts.h"
#include "painting/rasterizer.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <map>
#include <new>
#include <tuple>

namespace dorvan::painting {

namespace {

constexpr double TwipsPerPixel = 15;
constexpr int DotsPerMetre = 3780; // 96 to the inch

// Plays operations onto an image that is white at first. Level shapes are written straight into the pixels;
// equal discs are drawn once and copied.
class RasterPlayer {
public:
    RasterPlayer(QImage& image, double scale)
        : image_(image), unit_(scale / TwipsPerPixel), scale_(scale), painter_(&image) {
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setRenderHint(QPainter::TextAntialiasing);
    }

    void Play(const drawing::Line& line) {
        if (line.From.X != line.To.X && line.From.Y != line.To.Y)
            Slanting(line);
        else
            Level(line.From, line.To, line.With);
    }

    void Play(const drawing::Box& box) {
        const auto& [from, to, pen] = box;
        Level(from, {to.X, from.Y}, pen);
        Level({from.X, to.Y}, to, pen);
        Level(from, {from.X, to.Y}, pen);
        Level({to.X, from.Y}, to, pen);
    }

    void Play(const drawing::FilledBox& box) {
        const auto [left, right] = std::minmax(box.From.X, box.To.X);
        const auto [top, bottom] = std::minmax(box.From.Y, box.To.Y);
        Fill(Snapped(left), Snapped(top), Snapped(right + TwipsPerPixel), Snapped(bottom + TwipsPerPixel),
             box.Fill);
    }

    void Play(const drawing::Disc& disc) {
        const double x = Centre(disc.Centre.X);
        const double y = Centre(disc.Centre.Y);
        const double radius = disc.Radius * unit_;
        if (radius <= 0) return;
        const int left = int(std::floor(x - radius));
        const int top = int(std::floor(y - radius));
        painter_.drawImage(left, top, DiscImage(x - left, y - top, radius, disc.Fill));
    }

    void Play(const drawing::Text& text) {
        painter_.setFont(FontInPixels(text.With, scale_));
        painter_.setPen(QColor::fromRgb(text.Ink));
        const double ascent = QFontMetricsF(painter_.font(), &image_).ascent();
        painter_.drawText(QPointF(Snapped(text.At.X), std::round(text.At.Y * unit_ + ascent)),
                          ToQt(text.Content));
    }

    void Play(const drawing::NewPage&) {}

private:
    int Snapped(double twips) const { return int(std::floor(twips * unit_ + 0.5)); }
    double Centre(double twips) const { return (twips + TwipsPerPixel / 2) * unit_; }

    // A line along a row or column, its ends as wide as the line itself.
    void Level(drawing::Point from, drawing::Point to, const drawing::Pen& pen) {
        const double before = (TwipsPerPixel - pen.Width) / 2;
        const int width = std::max(1, Snapped(pen.Width));
        const auto [left, right] = std::minmax(from.X, to.X);
        const auto [top, bottom] = std::minmax(from.Y, to.Y);
        Fill(Snapped(left + before), Snapped(top + before), Snapped(right + before) + width,
             Snapped(bottom + before) + width, pen.Ink);
    }

    void Slanting(const drawing::Line& line) {
        painter_.setPen(QPen(QColor::fromRgb(line.With.Ink), std::max(1.0, line.With.Width * unit_),
                             Qt::SolidLine, Qt::RoundCap));
        painter_.drawLine(QPointF(Centre(line.From.X), Centre(line.From.Y)),
                          QPointF(Centre(line.To.X), Centre(line.To.Y)));
    }

    // Right and bottom are the first pixels that are left out.
    void Fill(int left, int top, int right, int bottom, Colour colour) {
        left = std::max(left, 0);
        right = std::min(right, image_.width());
        top = std::max(top, 0);
        bottom = std::min(bottom, image_.height());
        if (left >= right) return;
        for (int row = top; row < bottom; ++row) {
            auto* pixels = reinterpret_cast<QRgb*>(bits_ + row * stride_);
            std::fill(pixels + left, pixels + right, 0xFF000000U | colour);
        }
    }

    const QImage& DiscImage(double x, double y, double radius, Colour colour) {
        // Phases that differ by less than a 64th of a pixel look the same.
        const auto phase = [](double place) { return int(std::lround(place * 64)); };
        QImage& disc = discs_[{phase(x), phase(y), phase(radius), colour}];
        if (!disc.isNull()) return disc;
        const int side = int(std::ceil(2 * radius)) + 2;
        disc = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
        disc.fill(Qt::transparent);
        QPainter painter(&disc);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgb(colour));
        painter.drawEllipse(QPointF(x, y), radius, radius);
        return disc;
    }

    QImage& image_;
    uchar* bits_ = image_.bits();
    qsizetype stride_ = image_.bytesPerLine();
    double unit_; // pixels of a twip
    double scale_;
    QPainter painter_;
    std::map<std::tuple<int, int, int, Colour>, QImage> discs_;
};

int PixelsFor(double twips, double scale) {
    const double pixels = std::ceil(twips * scale / TwipsPerPixel - 1e-9);
    return std::max(1, int(std::min(pixels, 1e6)));
}

} // namespace

QImage ImageOf(const Drawing& drawing, double scale) {
    QImage image(PixelsFor(drawing.Width, scale), PixelsFor(drawing.Height, scale), QImage::Format_RGB32);
    if (image.isNull()) throw std::bad_alloc();
    image.setDotsPerMeterX(DotsPerMetre);
    image.setDotsPerMeterY(DotsPerMetre);
    image.fill(Qt::white);
    RasterPlayer player(image, scale);
    for (const auto& operation : drawing.Operations) {
        if (std::holds_alternative<drawing::NewPage>(operation)) break;
        std::visit([&](const auto& drawn) { player.Play(drawn); }, operation);
    }
    return image;
}

PixelImage QtRasterizer::pixelsOf(const Drawing& drawing) {
    const QImage image = ImageOf(drawing);
    PixelImage pixels{image.width(), image.height(), {}};
    pixels.Pixels.reserve(std::size_t(image.width()) * std::size_t(image.height()));
    for (int row = 0; row < image.height(); ++row) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        std::transform(line, line + image.width(), std::back_inserter(pixels.Pixels),
                       [](QRgb pixel) { return pixel & 0xFFFFFFU; });
    }
    return pixels;
}

} // namespace dorvan::painting
