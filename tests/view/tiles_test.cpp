#include "numbers/runtime_failure.h"
#include "view/tiles.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace dorvan::test {
namespace {

// '#' black, 'o' grey, '.' white outside the symbol (the selected ground), '_' white inside it.
using Art = std::array<std::string, 16>;

const std::string Blank = "................";

Art Rows(std::initializer_list<std::pair<int, const char*>> rows) {
    Art art;
    art.fill(Blank);
    for (const auto& [row, text] : rows) art.at(std::size_t(row)) = text;
    return art;
}

Art Framed(const std::string& inner) {
    Art art;
    art.fill("..#" + inner + "#..");
    art[0] = art[1] = art[14] = art[15] = Blank;
    art[2] = art[13] = "..############..";
    return art;
}

const std::vector<Art> Classics{
    Rows({}), Framed("___#__#___"), Framed("___####___"), Framed("####__####"), Framed("##########"),
};

const std::vector<Art> Circles{
    Rows({}),
    Rows(
        {{6, ".......oo......."}, {7, "......o##o......"}, {8, "......o##o......"}, {9, ".......oo......."}}),
    Rows({{4, "......####......"},
          {5, ".....######....."},
          {6, "....########...."},
          {7, "....########...."},
          {8, "....########...."},
          {9, "....########...."},
          {10, ".....######....."},
          {11, "......####......"}}),
    Rows({{2, ".....######....."},
          {3, "....########...."},
          {4, "...##########..."},
          {5, "..############.."},
          {6, "..############.."},
          {7, "..############.."},
          {8, "..############.."},
          {9, "..############.."},
          {10, "..############.."},
          {11, "...##########..."},
          {12, "....########...."},
          {13, ".....######....."}}),
    Rows({{0, ".....######....."},
          {1, "...##########..."},
          {2, "..############.."},
          {3, ".##############."},
          {4, ".##############."},
          {5, "################"},
          {6, "################"},
          {7, "################"},
          {8, "################"},
          {9, "################"},
          {10, "################"},
          {11, ".##############."},
          {12, ".##############."},
          {13, "..############.."},
          {14, "...##########..."},
          {15, ".....######....."}}),
};

const std::vector<Art> CirclesNA{
    Rows({}),
    Rows(
        {{6, ".......##......."}, {7, "......#__#......"}, {8, "......#__#......"}, {9, ".......##......."}}),
    Rows({{4, "......####......"},
          {5, ".....######....."},
          {6, "....###__###...."},
          {7, "....##____##...."},
          {8, "....##____##...."},
          {9, "....###__###...."},
          {10, ".....######....."},
          {11, "......####......"}}),
    Rows({{2, ".....######....."},
          {3, "....########...."},
          {4, "...##########..."},
          {5, "..####____####.."},
          {6, "..###______###.."},
          {7, "..###______###.."},
          {8, "..###______###.."},
          {9, "..###______###.."},
          {10, "..####____####.."},
          {11, "...##########..."},
          {12, "....########...."},
          {13, ".....######....."}}),
    Rows({{0, ".....######....."},
          {1, "...##########..."},
          {2, "..############.."},
          {3, ".##############."},
          {4, ".#####____#####."},
          {5, "#####______#####"},
          {6, "####________####"},
          {7, "####________####"},
          {8, "####________####"},
          {9, "####________####"},
          {10, "#####______#####"},
          {11, ".#####____#####."},
          {12, ".##############."},
          {13, "..############.."},
          {14, "...##########..."},
          {15, ".....######....."}}),
};

Tile Member(Tile first, int number) { return static_cast<Tile>(static_cast<int>(first) + number - 1); }

void ExpectLooksLike(Tile tile, const Art& art, std::uint32_t ground) {
    const std::map<char, std::uint32_t> colours{
        {'#', 0x000000}, {'o', 0x7F7F7F}, {'_', 0xFFFFFF}, {'.', ground}};
    const TileImage& image = ImageOf(tile);
    for (int row = 0; row < 16; ++row) {
        ASSERT_EQ(art[std::size_t(row)].size(), 16u);
        for (int column = 0; column < 16; ++column)
            EXPECT_EQ(image.At(column, row), colours.at(art[std::size_t(row)][std::size_t(column)]))
                << TileName(tile) << " at column " << column << ", row " << row;
    }
}

void ExpectFamily(Tile plain, Tile selected, const std::vector<Art>& arts) {
    for (int number = 1; number <= 5; ++number) {
        ExpectLooksLike(Member(plain, number), arts.at(std::size_t(number - 1)), 0xFFFFFF);
        ExpectLooksLike(Member(selected, number), arts.at(std::size_t(number - 1)), 0x80AFF0);
    }
}

TEST(Tiles, ClassicsToThePixel) { ExpectFamily(Tile::picClassic01, Tile::picSelectClassic01, Classics); }

TEST(Tiles, DiscsToThePixel) { ExpectFamily(Tile::picCircle01, Tile::picSelectCircle01, Circles); }

TEST(Tiles, DiscsOfMissingValuesToThePixel) {
    ExpectFamily(Tile::picCircle01NA, Tile::picSelectCircle01NA, CirclesNA);
}

void ExpectFlat(Tile tile, std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    for (const auto pixel : ImageOf(tile).Pixels)
        ASSERT_EQ(pixel, red << 16 | green << 8 | blue) << TileName(tile);
}

TEST(Tiles, FlatTilesHaveOneColour) {
    ExpectFlat(Tile::picColor01, 255, 255, 255);
    ExpectFlat(Tile::picColor02, 223, 223, 223);
    ExpectFlat(Tile::picColor03, 191, 191, 191);
    ExpectFlat(Tile::picColor04, 127, 127, 127);
    ExpectFlat(Tile::picColor05, 0, 0, 0);
    ExpectFlat(Tile::picColor06, 255, 0, 0);
    ExpectFlat(Tile::picSelectColor01, 128, 175, 240);
    ExpectFlat(Tile::picSelectColor02, 127, 127, 255);
    ExpectFlat(Tile::picSelectColor03, 0, 0, 255);
    ExpectFlat(Tile::picSelectColor04, 0, 0, 191);
    ExpectFlat(Tile::picSelectColor05, 0, 0, 127);
}

TEST(Tiles, EveryTileHasItsName) {
    std::set<std::string> expected{"picColor06"};
    for (const char* number : {"01", "02", "03", "04", "05"})
        for (const char* family : {"Color", "Classic", "Circle"})
            for (const char* prefix : {"pic", "picSelect"}) {
                const std::string name = std::string(prefix) + family + number;
                expected.insert(name);
                if (std::string(family) == "Circle") expected.insert(name + "NA");
            }
    std::set<std::string> names;
    for (int number = 1; number < TileCount; ++number) names.emplace(TileName(static_cast<Tile>(number)));
    EXPECT_EQ(names, expected);
    EXPECT_EQ(TileCount, 42);
    EXPECT_EQ(TileName(Tile::None), "");
    EXPECT_EQ(TileName(Tile::picSelectClassic03), "picSelectClassic03");
    EXPECT_EQ(TileName(Tile::picCircle02NA), "picCircle02NA");
    EXPECT_EQ(TileName(Tile::picSelectCircle05NA), "picSelectCircle05NA");
}

TEST(Tiles, NoTileHasNoImageAndNoOtherNumberIsATile) {
    EXPECT_THROW(ImageOf(Tile::None), RuntimeFailure);
    EXPECT_THROW(ImageOf(static_cast<Tile>(TileCount)), RuntimeFailure);
    EXPECT_THROW(TileName(static_cast<Tile>(255)), RuntimeFailure);
}

DiagramDocument TwoRecords(std::int16_t cellClass, std::int16_t type, bool firstMissing, bool secondMissing) {
    DiagramDocument document;
    document.RecCount = 2;
    document.DiagType = type;
    document.Classes = Array2<std::int16_t>(2, 2, cellClass);
    document.RecordHasNA = Flags(2);
    document.RecordHasNA(1) = firstMissing;
    document.RecordHasNA(2) = secondMissing;
    return document;
}

std::string NameOfCell(int cellClass, int type, bool missing, bool selected) {
    if (cellClass == 0) return "picColor06";
    if (cellClass < 0 || cellClass > 5) return "";
    const std::string prefix = selected ? "picSelect" : "pic";
    const std::string number = "0" + std::to_string(cellClass);
    if (cellClass == 1 || type == 1) return prefix + "Color" + number;
    if (type == 3) return prefix + "Classic" + number;
    return prefix + "Circle" + number + (missing ? "NA" : "");
}

TEST(CellTile, FollowsClassTypeMissingValuesAndSelection) {
    for (int cellClass = -1; cellClass <= 7; ++cellClass)
        for (const int type : {1, 2, 3})
            for (const bool first : {false, true})
                for (const bool second : {false, true})
                    for (const bool selected : {false, true}) {
                        const auto document = TwoRecords(static_cast<std::int16_t>(cellClass),
                                                         static_cast<std::int16_t>(type), first, second);
                        EXPECT_EQ(TileName(CellTile(document, 1, 2, selected)),
                                  NameOfCell(cellClass, type, first || second, selected))
                            << "class " << cellClass << ", type " << type;
                        EXPECT_EQ(TileName(CellTile(document, 2, 2, selected)),
                                  NameOfCell(cellClass, type, second, selected));
                    }
}

TEST(CellTile, AMissingValueMarksTheRowTheColumnAndTheDiagonalOfADotsDiagram) {
    const auto document = TwoRecords(2, 2, true, false);
    EXPECT_EQ(CellTile(document, 1, 2, false), Tile::picCircle02NA);
    EXPECT_EQ(CellTile(document, 2, 1, false), Tile::picCircle02NA);
    EXPECT_EQ(CellTile(document, 1, 1, false), Tile::picCircle02NA);
    EXPECT_EQ(CellTile(document, 2, 2, false), Tile::picCircle02);
}

TEST(CellTile, AnUnknownTypeHasOnlyTheTilesThatAllTypesShare) {
    for (const int type : {-1, 0, 4, 32767}) {
        const auto unknown = static_cast<std::int16_t>(type);
        EXPECT_EQ(CellTile(TwoRecords(0, unknown, true, false), 1, 1, true), Tile::picColor06);
        EXPECT_EQ(CellTile(TwoRecords(1, unknown, true, false), 1, 1, false), Tile::picColor01);
        EXPECT_EQ(CellTile(TwoRecords(1, unknown, true, false), 1, 1, true), Tile::picSelectColor01);
        EXPECT_EQ(CellTile(TwoRecords(5, unknown, true, false), 1, 1, false), Tile::None);
    }
}

TEST(DescribeTile, TellsTheClassTheMissingValueAndTheSelectionOfEveryTile) {
    for (int number = 1; number < TileCount; ++number) {
        const Tile tile = static_cast<Tile>(number);
        const std::string name(TileName(tile));
        std::string expected = "class " + name.substr(name.find('0') + 1, 1);
        if (name.ends_with("NA")) expected += " with a missing value";
        if (name.starts_with("picSelect")) expected += " selected";
        if (name == "picColor06") expected = "not classified";
        EXPECT_EQ(DescribeTile(tile), expected) << name;
    }
    EXPECT_EQ(DescribeTile(Tile::picColor03), "class 3");
    EXPECT_EQ(DescribeTile(Tile::picSelectClassic01), "class 1 selected");
    EXPECT_EQ(DescribeTile(Tile::picSelectCircle02NA), "class 2 with a missing value selected");
    EXPECT_EQ(DescribeTile(Tile::None), "");
    EXPECT_THROW(DescribeTile(static_cast<Tile>(TileCount)), RuntimeFailure);
}

TEST(CellTile, ACellOutsideIsASubscriptFailure) {
    const auto document = TwoRecords(2, 2, false, false);
    EXPECT_THROW(CellTile(document, 0, 1, false), RuntimeFailure);
    EXPECT_THROW(CellTile(document, 1, 3, false), RuntimeFailure);
}

} // namespace
} // namespace dorvan::test
