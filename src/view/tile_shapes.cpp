#include "view/tile_shapes.h"

#include <string_view>

namespace dorvan {

namespace {

constexpr std::uint32_t White = 0xFFFFFF;
constexpr std::uint32_t Black = 0x000000;
constexpr double Centre = TileSide / 2.0;

TileShape Box(double left, double right, double top = 2, double bottom = 14, std::uint32_t fill = Black) {
    return {TileShape::Kind::Box, left, top, right, bottom, fill};
}

TileShape Disc(double radius, std::uint32_t fill = Black) {
    return {TileShape::Kind::Disc, Centre - radius, Centre - radius, Centre + radius, Centre + radius, fill};
}

std::vector<TileShape> ClassicShapes(int number) {
    if (number == 5) return {Box(2, 14)};
    if (number < 2 || number > 4) return {};
    std::vector<TileShape> shapes{Box(2, 14), Box(3, 13, 3, 13, White)}; // the frame
    switch (number) {
    case 2: shapes.insert(shapes.end(), {Box(6, 7), Box(9, 10)}); break;
    case 3: shapes.push_back(Box(6, 10)); break;
    default: shapes.insert(shapes.end(), {Box(2, 7), Box(9, 14)}); break;
    }
    return shapes;
}

// A fringe of grey counts half.
std::vector<TileShape> DiscShapes(int number) {
    static constexpr double radii[] = {0, 0, 1.6, 4, 6, 8};
    if (number < 2 || number > 5) return {};
    return {Disc(radii[number])};
}

std::vector<TileShape> DiscWithHoleShapes(int number) {
    static constexpr double holes[] = {0, 0, 1.2, 1.95, 3.2, 4.05};
    if (number < 2 || number > 5) return {};
    auto shapes = number == 2 ? std::vector{Disc(2)} : DiscShapes(number);
    shapes.push_back(Disc(holes[number], White));
    return shapes;
}

} // namespace

TileShapes ShapesOf(Tile tile) {
    const std::string_view name = TileName(tile); // "picSelectCircle03NA"
    const std::uint32_t ground = ImageOf(tile).At(0, 0);
    const auto digit = name.find_first_of("0123456789");
    const int number = name[digit + 1] - '0';
    if (name.ends_with("NA")) return {ground, DiscWithHoleShapes(number)};
    if (name.find("Circle") != std::string_view::npos) return {ground, DiscShapes(number)};
    if (name.find("Classic") != std::string_view::npos) return {ground, ClassicShapes(number)};
    return {ground, {}};
}

} // namespace dorvan
