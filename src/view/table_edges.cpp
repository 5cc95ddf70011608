#include "view/table_edges.h"

#include "numbers/text.h"

#include <fmt/format.h>

namespace dorvan {

namespace {

drawing::Point Moved(drawing::Point point, drawing::Point offset) {
    return {point.X + offset.X, point.Y + offset.Y};
}

void DrawNumbers(Canvas& canvas, const TableEdges& edges) {
    const double cell = edges.Cell;
    if (edges.WithHeader) canvas.DrawBox({0, 0}, {cell, cell}); // above the numbers, empty
    for (int row = 0; row < edges.Rows; ++row) {
        const double top = edges.Top() + row * cell;
        canvas.DrawBox({0, top}, {cell, top + cell});
        canvas.Write(Moved({0, top}, edges.NumberOffset), fmt::format("{}", edges.FirstRow + row));
    }
}

void DrawHeader(Canvas& canvas, const TableEdges& edges) {
    const double cell = edges.Cell;
    for (int column = 0; column < edges.Columns; ++column) {
        const double left = edges.Left() + column * cell;
        canvas.DrawBox({left, 0}, {left + cell, cell});
        canvas.Write(Moved({left, 0}, edges.HeaderOffset), fmt::format("{}", edges.FirstColumn + column));
    }
}

void DrawNames(Canvas& canvas, const TableEdges& edges, const Array1<std::string>& names) {
    const double cell = edges.Cell;
    if (edges.WithHeader) {
        canvas.DrawBox({cell, 0}, {5 * cell, cell});
        canvas.Write(Moved({cell, 0}, edges.TitleOffset), "Name");
    }
    for (int row = 0; row < edges.Rows; ++row) {
        const double top = edges.Top() + row * cell;
        canvas.DrawBox({cell, top}, {5 * cell, top + cell});
        canvas.Write(Moved({cell, top}, edges.NameOffset),
                     std::string(LeftCharacters(names(edges.FirstRow + row), NameCharacters)));
    }
}

} // namespace

void DrawTableEdges(Canvas& canvas, const TableEdges& edges, const Array1<std::string>& names) {
    if (edges.WithColumns) DrawNumbers(canvas, edges);
    if (edges.WithHeader) DrawHeader(canvas, edges);
    if (edges.WithColumns) DrawNames(canvas, edges, names);
}

} // namespace dorvan
