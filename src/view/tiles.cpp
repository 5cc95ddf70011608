#include "view/tiles.h"

#include "numbers/runtime_failure.h"

#include <fmt/format.h>

#include <vector>

namespace dorvan {

namespace {

constexpr std::uint32_t White = 0xFFFFFF;
constexpr std::uint32_t Grey = 0x7F7F7F;
constexpr std::uint32_t Black = 0x000000;
constexpr std::uint32_t SelectedGround = 0x80AFF0;

constexpr std::array<std::uint32_t, 6> Greys{0xFFFFFF, 0xDFDFDF, 0xBFBFBF, 0x7F7F7F, 0x000000, 0xFF0000};
constexpr std::array<std::uint32_t, 5> Blues{0x80AFF0, 0x7F7FFF, 0x0000FF, 0x0000BF, 0x00007F};

constexpr std::array<std::string_view, TileCount> TileNames{
    "",
    "picColor01",
    "picColor02",
    "picColor03",
    "picColor04",
    "picColor05",
    "picColor06",
    "picSelectColor01",
    "picSelectColor02",
    "picSelectColor03",
    "picSelectColor04",
    "picSelectColor05",
    "picClassic01",
    "picClassic02",
    "picClassic03",
    "picClassic04",
    "picClassic05",
    "picSelectClassic01",
    "picSelectClassic02",
    "picSelectClassic03",
    "picSelectClassic04",
    "picSelectClassic05",
    "picCircle01",
    "picCircle02",
    "picCircle03",
    "picCircle04",
    "picCircle05",
    "picCircle01NA",
    "picCircle02NA",
    "picCircle03NA",
    "picCircle04NA",
    "picCircle05NA",
    "picSelectCircle01",
    "picSelectCircle02",
    "picSelectCircle03",
    "picSelectCircle04",
    "picSelectCircle05",
    "picSelectCircle01NA",
    "picSelectCircle02NA",
    "picSelectCircle03NA",
    "picSelectCircle04NA",
    "picSelectCircle05NA",
};

// Tile `number` (from 1) of the family that starts at `first`.
constexpr Tile Member(Tile first, int number) {
    return static_cast<Tile>(static_cast<int>(first) + number - 1);
}

// A filled box, all four edges inclusive.
struct Box {
    int top, bottom, left, right;
    std::uint32_t colour = Black;
};

using Drawing = std::vector<Box>; // painted in order, on white

Drawing Joined(Drawing first, const Drawing& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Drawing ClassicDrawing(int number) {
    const Drawing frame{{2, 2, 2, 13}, {13, 13, 2, 13}, {2, 13, 2, 2}, {2, 13, 13, 13}};
    switch (number) {
    case 2: return Joined(frame, {{2, 13, 6, 6}, {2, 13, 9, 9}});
    case 3: return Joined(frame, {{2, 13, 6, 9}});
    case 4: return Joined(frame, {{2, 13, 2, 6}, {2, 13, 9, 13}});
    case 5: return {{2, 13, 2, 13}};
    default: return {};
    }
}

Drawing DiscDrawing(int number) {
    switch (number) {
    case 2: return {{7, 8, 6, 9, Grey}, {6, 6, 7, 8, Grey}, {9, 9, 7, 8, Grey}, {7, 8, 7, 8}};
    case 3: return {{4, 4, 6, 9}, {5, 5, 5, 10}, {6, 9, 4, 11}, {10, 10, 5, 10}, {11, 11, 6, 9}};
    case 4:
        return {{2, 2, 5, 10},   {3, 3, 4, 11},   {4, 4, 3, 12},  {5, 10, 2, 13},
                {11, 11, 3, 12}, {12, 12, 4, 11}, {13, 13, 5, 10}};
    case 5:
        return {{0, 0, 5, 10},   {1, 1, 3, 12},   {2, 2, 2, 13},   {3, 4, 1, 14},  {5, 10, 0, 15},
                {11, 12, 1, 14}, {13, 13, 2, 13}, {14, 14, 3, 12}, {15, 15, 5, 10}};
    default: return {};
    }
}

Drawing DiscWithHoleDrawing(int number) {
    switch (number) {
    case 2: return {{6, 6, 7, 8}, {9, 9, 7, 8}, {7, 8, 6, 6}, {7, 8, 9, 9}}; // a ring, all black
    case 3: return Joined(DiscDrawing(3), {{6, 6, 7, 8, White}, {9, 9, 7, 8, White}, {7, 8, 6, 9, White}});
    case 4: return Joined(DiscDrawing(4), {{5, 5, 6, 9, White}, {10, 10, 6, 9, White}, {6, 9, 5, 10, White}});
    case 5:
        return Joined(DiscDrawing(5), {{4, 4, 6, 9, White},
                                       {11, 11, 6, 9, White},
                                       {5, 5, 5, 10, White},
                                       {10, 10, 5, 10, White},
                                       {6, 9, 4, 11, White}});
    default: return {};
    }
}

TileImage Flat(std::uint32_t colour) {
    TileImage image;
    image.Pixels.fill(colour);
    return image;
}

TileImage Painted(const Drawing& drawing) {
    TileImage image = Flat(White);
    for (const Box& box : drawing)
        for (int row = box.top; row <= box.bottom; ++row)
            for (int column = box.left; column <= box.right; ++column)
                image.Pixels[std::size_t(row * TileSide + column)] = box.colour;
    return image;
}

// Floods the white that reaches the tile's edge; the white inside a frame or a ring stays. Steps go along
// rows and columns only: the pixels of a ring may touch by their corners.
TileImage OnSelectedGround(TileImage image) {
    std::vector<std::pair<int, int>> waiting;
    for (int place = 0; place < TileSide; ++place)
        for (const auto& edge :
             {std::pair{place, 0}, {place, TileSide - 1}, {0, place}, {TileSide - 1, place}})
            waiting.push_back(edge);
    while (!waiting.empty()) {
        const auto [column, row] = waiting.back();
        waiting.pop_back();
        if (column < 0 || column >= TileSide || row < 0 || row >= TileSide) continue;
        auto& pixel = image.Pixels[std::size_t(row * TileSide + column)];
        if (pixel != White) continue;
        pixel = SelectedGround;
        for (const auto& next :
             {std::pair{column - 1, row}, {column + 1, row}, {column, row - 1}, {column, row + 1}})
            waiting.push_back(next);
    }
    return image;
}

using TileImages = std::array<TileImage, TileCount>;

void PutFamily(TileImages& images, Tile plain, Tile selected, Drawing (*drawing)(int number)) {
    for (int number = 1; number <= 5; ++number) {
        const TileImage image = Painted(drawing(number));
        images[std::size_t(Member(plain, number))] = image;
        images[std::size_t(Member(selected, number))] = OnSelectedGround(image);
    }
}

TileImages DrawTiles() {
    TileImages images;
    for (int number = 1; number <= 6; ++number)
        images[std::size_t(Member(Tile::picColor01, number))] = Flat(Greys[std::size_t(number - 1)]);
    for (int number = 1; number <= 5; ++number)
        images[std::size_t(Member(Tile::picSelectColor01, number))] = Flat(Blues[std::size_t(number - 1)]);
    PutFamily(images, Tile::picClassic01, Tile::picSelectClassic01, ClassicDrawing);
    PutFamily(images, Tile::picCircle01, Tile::picSelectCircle01, DiscDrawing);
    PutFamily(images, Tile::picCircle01NA, Tile::picSelectCircle01NA, DiscWithHoleDrawing);
    return images;
}

constexpr std::size_t ClassesWithTile = 6; // 0 to 5
constexpr std::size_t Types = 4;           // 0 stands for every unknown type

// Where the tile of a cell stands in the table of all choices.
constexpr std::size_t Choice(bool selected, bool missing, std::size_t type, std::size_t cellClass) {
    return ((std::size_t(selected) * 2 + std::size_t(missing)) * Types + type) * ClassesWithTile + cellClass;
}

constexpr Tile FirstOfFamily(bool selected, bool missing, std::size_t type) {
    switch (type) {
    case 1: return selected ? Tile::picSelectColor01 : Tile::picColor01;
    case 2:
        if (missing) return selected ? Tile::picSelectCircle01NA : Tile::picCircle01NA;
        return selected ? Tile::picSelectCircle01 : Tile::picCircle01;
    case 3: return selected ? Tile::picSelectClassic01 : Tile::picClassic01;
    default: return Tile::None;
    }
}

constexpr auto MakeChoices() {
    std::array<Tile, 2 * 2 * Types * ClassesWithTile> choices{};
    for (const bool selected : {false, true})
        for (const bool missing : {false, true})
            for (std::size_t type = 0; type < Types; ++type) {
                const Tile first = FirstOfFamily(selected, missing, type);
                const auto at = [&](std::size_t cellClass) -> Tile& {
                    return choices[Choice(selected, missing, type, cellClass)];
                };
                at(0) = Tile::picColor06;
                at(1) = selected ? Tile::picSelectColor01 : Tile::picColor01;
                for (int number = 2; number <= 5; ++number)
                    at(std::size_t(number)) = first == Tile::None ? Tile::None : Member(first, number);
            }
    return choices;
}

constexpr auto Choices = MakeChoices();

std::size_t NumberOf(Tile tile) {
    const auto number = static_cast<std::size_t>(tile);
    if (number >= TileCount) throw RuntimeFailure(Failure::InvalidProcedureCall, "no such tile");
    return number;
}

} // namespace

std::string_view TileName(Tile tile) { return TileNames[NumberOf(tile)]; }

std::string DescribeTile(Tile tile) {
    struct Family {
        Tile First;
        const char* Says;
    };
    static constexpr Family families[] = {
        {Tile::picSelectCircle01NA, " with a missing value selected"},
        {Tile::picSelectCircle01, " selected"},
        {Tile::picCircle01NA, " with a missing value"},
        {Tile::picCircle01, ""},
        {Tile::picSelectClassic01, " selected"},
        {Tile::picClassic01, ""},
        {Tile::picSelectColor01, " selected"},
        {Tile::picColor01, ""},
    };
    const std::size_t number = NumberOf(tile);
    if (tile == Tile::picColor06) return "not classified";
    for (const auto& [first, says] : families)
        if (number >= std::size_t(first))
            return fmt::format("class {}{}", number - std::size_t(first) + 1, says);
    return {};
}

const TileImage& ImageOf(Tile tile) {
    static const TileImages images = DrawTiles();
    const std::size_t number = NumberOf(tile);
    if (tile == Tile::None) throw RuntimeFailure(Failure::InvalidProcedureCall, "no tile has no image");
    return images[number];
}

Tile CellTile(const DiagramDocument& document, std::int32_t i, std::int32_t j, bool selected) {
    const std::int16_t cellClass = document.Classes(i, j);
    if (cellClass < 0 || cellClass > 5) return Tile::None;
    const bool missing = document.RecordHasNA(i) || document.RecordHasNA(j);
    const std::int16_t type = document.DiagType < 1 || document.DiagType > 3 ? 0 : document.DiagType;
    return Choices[Choice(selected, missing, std::size_t(type), std::size_t(cellClass))];
}

} // namespace dorvan
