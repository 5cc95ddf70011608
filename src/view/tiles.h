#pragma once

#include "session/documents.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// The small pictures that the cells of a diagram show.
namespace dorvan {

// A grid's picture number is the tile's. Within a family the numbers follow each other, 01 to 05 being the
// classes 1 to 5.
enum class Tile : std::uint8_t {
    None = 0,
    picColor01, // flat greys; 06 is the red of a cell without a class
    picColor02,
    picColor03,
    picColor04,
    picColor05,
    picColor06,
    picSelectColor01, // flat blues
    picSelectColor02,
    picSelectColor03,
    picSelectColor04,
    picSelectColor05,
    picClassic01, // hatched squares
    picClassic02,
    picClassic03,
    picClassic04,
    picClassic05,
    picSelectClassic01,
    picSelectClassic02,
    picSelectClassic03,
    picSelectClassic04,
    picSelectClassic05,
    picCircle01, // discs
    picCircle02,
    picCircle03,
    picCircle04,
    picCircle05,
    picCircle01NA, // discs with a hole, of records with a missing value
    picCircle02NA,
    picCircle03NA,
    picCircle04NA,
    picCircle05NA,
    picSelectCircle01,
    picSelectCircle02,
    picSelectCircle03,
    picSelectCircle04,
    picSelectCircle05,
    picSelectCircle01NA,
    picSelectCircle02NA,
    picSelectCircle03NA,
    picSelectCircle04NA,
    picSelectCircle05NA,
};

inline constexpr int TileCount = static_cast<int>(Tile::picSelectCircle05NA) + 1; // with None

inline constexpr int TileSide = 16; // pixels

// Pixels row by row from the upper left corner, 0xRRGGBB.
struct TileImage {
    std::array<std::uint32_t, TileSide * TileSide> Pixels{};

    std::uint32_t At(int column, int row) const { return Pixels[std::size_t(row * TileSide + column)]; }
    bool operator==(const TileImage&) const = default;
};

// "picCircle02NA"; empty for None. Both fail with InvalidProcedureCall for a number that is no tile, ImageOf
// for None as well. The images are drawn at the first call and stay where they are.
std::string_view TileName(Tile tile);
const TileImage& ImageOf(Tile tile);

// What a tile says, for who cannot see it: "class 5", "class 2 with a missing value selected", "not
// classified"; empty for None.
std::string DescribeTile(Tile tile);

// The tile of cell (i, j), both from 1 to RecCount: None (the cell's picture stays as it is) for a class
// outside 0 to 5. A document type outside 1 to 3 has tiles for the classes 0 and 1 only, which look the same
// in all types.
Tile CellTile(const DiagramDocument& document, std::int32_t i, std::int32_t j, bool selected);

} // namespace dorvan
