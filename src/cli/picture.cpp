#include "cli/picture.h"

#include "numbers/number_text.h"
#include "numbers/text.h"
#include "view/tiles.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>

namespace dorvan::cli {

namespace {

constexpr int Cell = 16;
constexpr int Margin = 16;
constexpr int TextHeight = 12;
constexpr int CharacterWidth = 7;

std::string Escaped(std::string_view text) {
    std::string result = ReplaceAll(text, "&", "&amp;");
    result = ReplaceAll(result, "<", "&lt;");
    return ReplaceAll(result, ">", "&gt;");
}

std::string Text(int x, int y, std::string_view anchor, std::string_view text) {
    return fmt::format("<text x=\"{}\" y=\"{}\" text-anchor=\"{}\">{}</text>\n", x, y, anchor, Escaped(text));
}

// A tile as the rectangles of its runs of equal dark pixels; white is left out.
std::string TileShape(Tile tile) {
    const auto& pixels = ImageOf(tile).Pixels;
    std::string shape;
    for (int row = 0; row < Cell; ++row)
        for (int column = 0; column < Cell;) {
            const auto colour = pixels[std::size_t(row * Cell + column)];
            int end = column + 1;
            while (end < Cell && pixels[std::size_t(row * Cell + end)] == colour) ++end;
            if (colour != 0xFFFFFF)
                shape += fmt::format("<rect x=\"{}\" y=\"{}\" width=\"{}\" height=\"1\" fill=\"#{:06x}\"/>",
                                     column, row, end - column, colour);
            column = end;
        }
    return shape;
}

// The tile as a symbol of smooth shapes where it is a disc, else of its pixels.
std::string Symbol(Tile tile) {
    static const std::map<std::string, std::pair<double, double>> discs = {
        {"picCircle02", {1.7, 0}}, {"picCircle03", {4, 0}},   {"picCircle04", {6, 0}},
        {"picCircle05", {8, 0}},   {"picCircle02NA", {2, 1}}, {"picCircle03NA", {4, 2}},
        {"picCircle04NA", {6, 3}}, {"picCircle05NA", {8, 4}}};
    const std::string name(TileName(tile));
    std::string shape;
    if (const auto disc = discs.find(name); disc != discs.end()) {
        shape = fmt::format("<circle cx=\"8\" cy=\"8\" r=\"{}\"/>", disc->second.first);
        if (disc->second.second > 0)
            shape +=
                fmt::format("<circle cx=\"8\" cy=\"8\" r=\"{}\" fill=\"#ffffff\"/>", disc->second.second);
    } else {
        shape = TileShape(tile);
    }
    return fmt::format("<symbol id=\"{}\" overflow=\"visible\">{}</symbol>\n", name, shape);
}

int LongestName(const DiagramDocument& diagram) {
    std::size_t longest = 4;
    for (const auto& name : diagram.RecordNames.Cells()) longest = std::max(longest, CharacterCount(name));
    return static_cast<int>(longest);
}

std::string SectionText(const DiagramDocument& diagram, int section, char separator) {
    const auto limit = [&](int k) { return FormatPattern(diagram.SectionLimits(k), "###0.000", separator); };
    if (section == 1) return "0 - " + limit(1);
    if (section == 5) return limit(4) + " and more";
    return limit(section - 1) + " - " + limit(section);
}

// A document that shows the tile of one class: what the legend draws.
Tile LegendTile(const DiagramDocument& diagram, std::int16_t cellClass) {
    DiagramDocument sample;
    sample.DiagType = diagram.DiagType;
    sample.Classes = Array2<std::int16_t>(1, 1, cellClass);
    sample.RecordHasNA = Flags(1, false);
    return CellTile(sample, 1, 1, false);
}

} // namespace

std::string DiagramSvg(const DiagramDocument& diagram, const std::string& description,
                       char decimalSeparator) {
    const int n = diagram.RecCount;
    const int left = Margin + 30 + LongestName(diagram) * CharacterWidth;
    const int top = Margin + 2 * TextHeight + 20;
    const int width = std::max(left + n * Cell + Margin, 480);
    const int height = top + n * Cell + 2 * TextHeight + 6 * Cell + Margin;

    std::map<Tile, std::string> symbols;
    std::string cells;
    const auto use = [&](Tile tile, int x, int y) {
        if (tile == Tile::None || tile == Tile::picColor01) return;
        if (!symbols.contains(tile)) symbols[tile] = Symbol(tile);
        cells += fmt::format("<use href=\"#{}\" x=\"{}\" y=\"{}\"/>\n", TileName(tile), x, y);
    };
    for (int i = 1; i <= n; ++i) {
        const int y = top + (i - 1) * Cell;
        cells += Text(Margin + 24, y + TextHeight, "end", fmt::format("{}", i));
        cells += Text(Margin + 30, y + TextHeight, "start", diagram.RecordNames(i));
        cells += Text(left + (i - 1) * Cell + Cell / 2, top - 4, "middle", fmt::format("{}", i));
        for (int j = 1; j <= n; ++j) use(CellTile(diagram, i, j, false), left + (j - 1) * Cell, y);
    }
    for (int section = 1; section <= 5; ++section) {
        const int y = top + n * Cell + 2 * TextHeight + (section - 1) * Cell;
        use(LegendTile(diagram, static_cast<std::int16_t>(6 - section)), left, y);
        cells +=
            Text(left + Cell + 8, y + TextHeight, "start", SectionText(diagram, section, decimalSeparator));
    }
    std::string defined;
    for (const auto& [tile, symbol] : symbols) defined += symbol;
    return fmt::format(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{0}\" height=\"{1}\" "
        "viewBox=\"0 0 {0} {1}\" font-family=\"sans-serif\" font-size=\"{2}\">\n"
        "<rect width=\"{0}\" height=\"{1}\" fill=\"#ffffff\"/>\n<defs>\n{3}</defs>\n{4}"
        "<rect x=\"{5}\" y=\"{6}\" width=\"{7}\" height=\"{7}\" fill=\"none\" stroke=\"#7f7f7f\"/>\n"
        "{8}</svg>\n",
        width, height, n > 99 ? 9 : 11, defined, Text(Margin, Margin + TextHeight, "start", description),
        left, top, n * Cell, cells);
}

} // namespace dorvan::cli
