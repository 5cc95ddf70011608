#include "painting/page_player.h"

#include "painting/fonts.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

namespace dorvan::painting {

namespace {

constexpr double TwipsPerInch = 1440;

QPointF At(drawing::Point point) { return {point.X, point.Y}; }
QRectF Between(drawing::Point from, drawing::Point to) { return QRectF(At(from), At(to)).normalized(); }

class SheetPlayer {
public:
    explicit SheetPlayer(QPainter& painter) : painter_(painter) {}

    void Play(const drawing::Line& line) {
        Stroke(line.With);
        painter_.drawLine(At(line.From), At(line.To));
    }

    void Play(const drawing::Box& box) {
        Stroke(box.With);
        painter_.drawRect(Between(box.From, box.To));
    }

    void Play(const drawing::FilledBox& box) {
        Fill(box.Fill);
        painter_.drawRect(Between(box.From, box.To));
    }

    void Play(const drawing::Disc& disc) {
        if (disc.Radius <= 0) return;
        Fill(disc.Fill);
        painter_.drawEllipse(At(disc.Centre), disc.Radius, disc.Radius);
    }

    void Play(const drawing::Text& text) {
        painter_.setPen(QColor::fromRgb(text.Ink));
        const QFont font = FontInTwips(text.With);
        if (painter_.font() != font) painter_.setFont(font);
        painter_.drawText(QPointF(text.At.X, text.At.Y + QFontMetricsF(font).ascent()), ToQt(text.Content));
    }

    void Play(const drawing::NewPage&) {}

private:
    void Stroke(const drawing::Pen& pen) {
        painter_.setPen(
            QPen(QColor::fromRgb(pen.Ink), pen.Width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter_.setBrush(Qt::NoBrush);
    }

    void Fill(Colour colour) {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(QColor::fromRgb(colour));
    }

    QPainter& painter_;
};

} // namespace

void PlaySheet(const Drawing& sheet, QPainter& painter) {
    SheetPlayer player(painter);
    for (const auto& operation : sheet.Operations)
        std::visit([&](const auto& drawn) { player.Play(drawn); }, operation);
}

bool PlayPages(const Drawing& pages, QPagedPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) return false;
    painter.scale(device.logicalDpiX() / TwipsPerInch, device.logicalDpiY() / TwipsPerInch);
    bool first = true;
    for (const auto& sheet : PagesOf(pages)) {
        if (!first && !device.newPage()) return false;
        first = false;
        PlaySheet(sheet, painter);
    }
    return painter.end();
}

} // namespace dorvan::painting
