#include "numbers/runtime_failure.h"
#include "support/expect_failure.h"
#include "view/tile_shapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace dorvan::test {
namespace {

constexpr int Fineness = 8; // points a pixel, along each side

std::uint32_t ColourAt(const TileShapes& symbol, double x, double y) {
    std::uint32_t colour = symbol.Ground;
    for (const auto& shape : symbol.Shapes) {
        const double middleX = (shape.Left + shape.Right) / 2;
        const double middleY = (shape.Top + shape.Bottom) / 2;
        const bool inside = shape.Is == TileShape::Kind::Disc
                                ? std::hypot(x - middleX, y - middleY) < (shape.Right - shape.Left) / 2
                                : x > shape.Left && x < shape.Right && y > shape.Top && y < shape.Bottom;
        if (inside) colour = shape.Fill;
    }
    return colour;
}

double Blackness(std::uint32_t colour) { return colour == 0x7F7F7F ? 0.5 : colour == 0 ? 1 : 0; }

template <class At> double Ink(const At& at) {
    double ink = 0;
    for (int y = 0; y < TileSide * Fineness; ++y)
        for (int x = 0; x < TileSide * Fineness; ++x)
            ink += Blackness(at((x + 0.5) / Fineness, (y + 0.5) / Fineness));
    return ink / (Fineness * Fineness);
}

bool IsDisc(Tile tile) { return TileName(tile).find("Circle") != std::string_view::npos; }

} // namespace

TEST(TileShapes, OfFlatAndClassicTilesCoverTheirPixels) {
    for (int number = 1; number < TileCount; ++number) {
        const auto tile = static_cast<Tile>(number);
        if (IsDisc(tile)) continue;
        const TileShapes symbol = ShapesOf(tile);
        for (int row = 0; row < TileSide; ++row)
            for (int column = 0; column < TileSide; ++column)
                ASSERT_EQ(ColourAt(symbol, column + 0.5, row + 0.5), ImageOf(tile).At(column, row))
                    << TileName(tile) << " " << column << "," << row;
    }
}

TEST(TileShapes, OfDiscsCoverAsMuchAsTheirPixelsOnTheSameGround) {
    int discs = 0;
    for (int number = 1; number < TileCount; ++number) {
        const auto tile = static_cast<Tile>(number);
        if (!IsDisc(tile)) continue;
        ++discs;
        const TileShapes symbol = ShapesOf(tile);
        const TileImage& image = ImageOf(tile);
        const double pixels = Ink([&](double x, double y) { return image.At(int(x), int(y)); });
        const double shapes = Ink([&](double x, double y) { return ColourAt(symbol, x, y); });
        EXPECT_NEAR(shapes, pixels, 0.09 * pixels) << TileName(tile);
        EXPECT_EQ(symbol.Ground, image.At(0, 0)) << TileName(tile);
        EXPECT_EQ(ColourAt(symbol, 8, 8), image.At(8, 8)) << TileName(tile) << ": a hole is white";
    }
    EXPECT_EQ(discs, 20);
}

TEST(TileShapes, NoneHasNoShapes) { EXPECT_FAILURE(Failure::InvalidProcedureCall, ShapesOf(Tile::None)); }

} // namespace dorvan::test
