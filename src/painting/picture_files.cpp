#include "painting/picture_files.h"

#include "painting/page_player.h"
#include "painting/raster_player.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>

namespace dorvan::painting {

namespace {

constexpr int TwipsPerInch = 1440;
// As on a screen, a point names the middle of a pixel: without this the lines along the edges would be
// halved.
constexpr double HalfPixel = 7.5;

void PlayPicture(const Drawing& drawing, double scale, QPainter& painter) {
    painter.scale(scale, scale);
    painter.translate(HalfPixel, HalfPixel);
    PlaySheet(PagesOf(drawing).front(), painter);
    painter.end();
}

} // namespace

std::string SvgOf(const Drawing& drawing, double scale) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(TwipsPerInch);
    const QSizeF size(drawing.Width * scale, drawing.Height * scale);
    generator.setSize(QSize(int(std::ceil(size.width())), int(std::ceil(size.height()))));
    generator.setViewBox(QRectF(QPointF(0, 0), size));
    QPainter painter(&generator);
    painter.fillRect(QRectF(QPointF(0, 0), size), Qt::white);
    PlayPicture(drawing, scale, painter);
    return bytes.toStdString();
}

std::string PdfOf(const Drawing& drawing, double scale) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("Dorvan"));
    writer.setResolution(TwipsPerInch);
    const QSizeF points(drawing.Width * scale / drawing::TwipsPerPoint,
                        drawing.Height * scale / drawing::TwipsPerPoint);
    writer.setPageLayout(QPageLayout(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch),
                                     QPageLayout::Portrait, QMarginsF()));
    QPainter painter(&writer);
    PlayPicture(drawing, scale, painter);
    return bytes.toStdString();
}

std::string PngOf(const Drawing& drawing, double scale) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ImageOf(drawing, scale).save(&buffer, "PNG");
    return bytes.toStdString();
}

} // namespace dorvan::painting
