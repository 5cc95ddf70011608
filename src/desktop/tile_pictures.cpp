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

QString ReadingOfTile(std::uint8_t picture) { return ToQt(DescribeTile(static_cast<Tile>(picture))); }

} // namespace

GridPictures TilePictures() { return {ImageOfTile, ReadingOfTile}; }

} // namespace dorvan
