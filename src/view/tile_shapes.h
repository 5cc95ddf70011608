#pragma once

#include "view/tiles.h"

#include <vector>

// The tiles as shapes, for showing them at another size than their own 16 pixels. Places count the tile's
// pixels from its upper left corner: a box from 2 to 14 covers the pixels 2 to 13.
namespace dorvan {

struct TileShape {
    enum class Kind { Box, Disc };

    Kind Is = Kind::Box;
    double Left = 0; // of a disc: the square around it
    double Top = 0;
    double Right = 0;
    double Bottom = 0;
    std::uint32_t Fill = 0; // 0xRRGGBB

    bool operator==(const TileShape&) const = default;
};

struct TileShapes {
    std::uint32_t Ground = 0;
    std::vector<TileShape> Shapes; // painted in order, on the ground
};

// A disc covers as much as its pixels do. Fails as ImageOf does.
TileShapes ShapesOf(Tile tile);

} // namespace dorvan
