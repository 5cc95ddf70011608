#include "desktop/tile_pictures.h"

#include "desktop/qt_text.h"
#include "view/tile_shapes.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace dorvan {

namespace {

QImage ImageOfTile(Tile tile) {
    const TileImage& pixels = ImageOf(tile);
    QImage image(TileSide, TileSide, QImage::Format_RGB32);
    for (int row = 0; row < TileSide; ++row)
        for (int column = 0; column < TileSide; ++column)
            image.setPixel(column, row, 0xff000000u | pixels.At(column, row));
    return image;
}

// All symbols are symmetric, and stay so where the scale is no whole number.
void MirrorFirstQuarter(QImage& image) {
    const int last = image.width() - 1;
    for (int y = 0; y <= last; ++y)
        for (int x = 0; x <= last; ++x)
            image.setPixel(x, y, image.pixel(std::min(x, last - x), std::min(y, last - y)));
}

// The edges of boxes stay sharp, discs are smooth.
QImage EnlargedTile(Tile tile, int side) {
    const TileShapes symbol = ShapesOf(tile);
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(QColor::fromRgb(symbol.Ground));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double scale = double(side) / TileSide;
    const auto whole = [scale](double edge) { return std::ceil(edge * scale - 0.5); };
    for (const auto& shape : symbol.Shapes) {
        painter.setBrush(QColor::fromRgb(shape.Fill));
        if (shape.Is == TileShape::Kind::Disc)
            painter.drawEllipse(
                QRectF(QPointF(shape.Left, shape.Top) * scale, QPointF(shape.Right, shape.Bottom) * scale));
        else
            painter.drawRect(QRectF(QPointF(whole(shape.Left), whole(shape.Top)),
                                    QPointF(whole(shape.Right), whole(shape.Bottom))));
    }
    painter.end();
    MirrorFirstQuarter(image);
    return image;
}

// A pixel has the shade of what it covers. Drawn so large at first that all edges lie on whole pixels.
QImage ReducedTile(Tile tile, int side) {
    return EnlargedTile(tile, side * TileSide)
        .scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

QImage PictureOfTile(std::uint8_t picture, int side) {
    const auto tile = static_cast<Tile>(picture);
    if (side == TileSide) return ImageOfTile(tile);
    return side > TileSide ? EnlargedTile(tile, side) : ReducedTile(tile, std::max(1, side));
}

QString ReadingOfTile(std::uint8_t picture) { return ToQt(DescribeTile(static_cast<Tile>(picture))); }

} // namespace

GridPictures TilePictures() { return {PictureOfTile, ReadingOfTile}; }

} // namespace dorvan
