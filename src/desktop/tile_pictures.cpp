#include "desktop/tile_pictures.h"

#include "desktop/qt_text.h"
#include "view/tiles.h"

namespace dorvan {

namespace {

QImage ImageOfTile(std::uint8_t picture) {
    const TileImage& tile = ImageOf(static_cast<Tile>(picture));
    QImage image(TileSide, TileSide, QImage::Format_RGB32);
    for (int row = 0; row < TileSide; ++row)
        for (int column = 0; column < TileSide; ++column)
            image.setPixel(column, row, 0xff000000u | tile.At(column, row));
    return image;
}

// From a name such as "picSelectCircle02NA".
QString ReadingOfTile(std::uint8_t picture) {
    const QString name = ToQt(TileName(static_cast<Tile>(picture)));
    const auto digits = name.indexOf('0') + 1;
    if (digits < 1) return {};
    QString reading = name[digits] == '6' ? QString("not classified") : "class " + name.mid(digits, 1);
    if (name.endsWith("NA")) reading += " with a missing value";
    if (name.startsWith("picSelect")) reading += " selected";
    return reading;
}

} // namespace

GridPictures TilePictures() { return {ImageOfTile, ReadingOfTile}; }

} // namespace dorvan
