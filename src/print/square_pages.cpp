#include "print/square_pages.h"

#include "numbers/text.h"

#include <fmt/format.h>

namespace dorvan {

namespace {

constexpr int NameColumns = 4; // the names' column is as wide as so many boxes
constexpr std::size_t NameLength = 12;

int WholePages(int count, int perPage) { return count / perPage + (count % perPage > 0 ? 1 : 0); }

int LastCount(int count, int pages, int perPage) { return count - (pages - 1) * perPage; }

std::string Number(int number) { return fmt::format("{}", number); }

// Boxes of the labels at the left, one below the other: the header's first, where the page has it.
template <class DrawOne> void ForEachLabelRow(const SquarePage& page, const DrawOne& drawOne) {
    for (int row = page.HasHeader() ? 0 : 1; row <= page.Rows; ++row) drawOne(row);
}

} // namespace

int SquareOnPages::PagesAcross() const {
    if (FitsOnePage()) return 1;
    return HasNoRoom() ? 0 : WholePages(Count, PerPageCols);
}

int SquareOnPages::PagesDown() const {
    if (FitsOnePage()) return 1;
    return HasNoRoom() ? 0 : WholePages(Count, PerPageRows);
}

std::vector<SquarePage> PagesOfSquare(const SquareOnPages& square) {
    const int across = square.PagesAcross();
    const int down = square.PagesDown();
    const bool single = square.Count <= square.PerPageCols;
    std::vector<SquarePage> pages;
    for (int d = 1; d <= down; ++d)
        for (int a = 1; a <= across; ++a) {
            SquarePage page{.Down = d, .Across = a, .LastAcross = a == across, .LastDown = d == down};
            page.Columns = single            ? square.Count
                           : page.LastAcross ? LastCount(square.Count, across, square.PerPageCols)
                                             : square.PerPageCols;
            page.Rows = single          ? square.Count
                        : page.LastDown ? LastCount(square.Count, down, square.PerPageRows)
                                        : square.PerPageRows;
            page.ColumnsBefore = (a - 1) * square.PerPageCols;
            page.RowsBefore = (d - 1) * square.PerPageRows;
            page.X0 = page.HasNames() ? (1 + NameColumns) * square.Cell : 0;
            page.Y0 = page.HasHeader() ? square.Cell : 0;
            pages.push_back(page);
        }
    return pages;
}

drawing::Point BoxCorner(const SquareOnPages& square, const SquarePage& page, int column, int row) {
    return {double(page.X0 + (column - 1) * square.Cell), double(page.Y0 + (row - 1) * square.Cell)};
}

drawing::Point OppositeCorner(const SquareOnPages& square, drawing::Point corner) {
    return {corner.X + square.Cell, corner.Y + square.Cell};
}

void DrawLabels(Canvas& canvas, const SquareOnPages& square, const SquarePage& page,
                const LabelOffsets& offsets, const std::function<std::string(int)>& nameOf) {
    const double cell = square.Cell;
    const auto topOf = [&](int row) { return BoxCorner(square, page, 1, row).Y; };
    if (page.HasNames())
        ForEachLabelRow(page, [&](int row) {
            canvas.DrawBox({0, topOf(row)}, {cell, topOf(row) + cell});
            if (row > 0) canvas.Write({offsets.X, topOf(row) + offsets.Y}, Number(page.RowsBefore + row));
        });
    if (page.HasHeader())
        for (int column = 1; column <= page.Columns; ++column) {
            const double left = BoxCorner(square, page, column, 1).X;
            canvas.DrawBox({left, 0}, {left + cell, cell});
            canvas.Write({left + offsets.X, offsets.Y}, Number(page.ColumnsBefore + column));
        }
    if (page.HasNames())
        ForEachLabelRow(page, [&](int row) {
            const double y = topOf(row) + (page.HasHeader() ? offsets.Y : offsets.LaterNameY);
            canvas.DrawBox({cell, topOf(row)}, {(1 + NameColumns) * cell, topOf(row) + cell});
            const std::string name = row == 0 ? "Name" : nameOf(page.RowsBefore + row);
            canvas.Write({cell + offsets.NameX, y}, std::string(LeftCharacters(name, NameLength)));
        });
}

void WriteLines(Canvas& canvas, drawing::Point at, const std::string& text, double lineHeight) {
    const std::string lines = ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\r", "\n");
    for (const std::string_view line : SplitFields(lines, '\n')) {
        canvas.Write(at, std::string(line));
        at.Y += lineHeight;
    }
}

} // namespace dorvan
