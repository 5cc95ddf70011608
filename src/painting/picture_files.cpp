#include "painting/picture_files.h"

#include "numbers/text.h"
#include "painting/page_player.h"
#include "painting/raster_player.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

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

std::string PictureBytes(const Drawing& drawing, const std::string& path, double scale) {
    const std::string extension = LowerCase(RightCharacters(path, 4));
    if (extension == ".svg") return SvgOf(drawing, scale);
    if (extension == ".pdf") return PdfOf(drawing, scale);
    return PngOf(drawing, scale);
}

} // namespace dorvan::painting
