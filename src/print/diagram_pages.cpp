#include "print/diagram_pages.h"

#include "numbers/number_text.h"
#include "print/square_pages.h"
#include "view/vector_symbols.h"

#include <fmt/format.h>

#include <array>
#include <optional>

namespace dorvan {

namespace {

constexpr int NoSymbol = 255; // the shade of white
constexpr double HairLine = 1;
constexpr double LegendFontSize = 8;            // points
constexpr double LargeFontSize = 9;             // the printer's own: the large size leaves it as it stands
constexpr double TextOffset = 25;               // of labels below the top of their boxes
constexpr drawing::Point NoClassOffset{25, 25}; // of the "?" in its box
constexpr Colour DiscInk = GreyOf(100);

struct PrintSize {
    int Cell; // twips
    int PerPageCols;
    int PerPageRows;
    double FontSize;    // of the grid, points
    double EndFontSize; // what the font is left at behind the description
};

constexpr std::array<PrintSize, 3> PrintSizes = {
    {{255, 37, 60, 7, 6}, {155, 66, 98, 5, 4}, {375, 25, 40, LargeFontSize, 8}}};

struct Symbol {
    int Shade;      // of grey
    int DiscRadius; // 0: none
};

// The symbol of a class in boxes of a size, 5 the nearest. Class 6 and any other have none.
Symbol SymbolOf(int cellClass, int cell) {
    switch (cellClass) {
    case 2: return {225, cell / 12};
    case 3: return {170, cell / 6};
    case 4: return {100, cell / 4};
    case 5: return {25, static_cast<int>(cell / 2.5)};
    default: return {NoSymbol, 0};
    }
}

class DiagramPrint {
public:
    DiagramPrint(const DiagramDocument& diagram, const PrintSize& size, const Paper& paper,
                 TextMeasure& measure, char decimalSeparator)
        : diagram_(diagram), size_(size), measure_(measure),
          decimalSeparator_(decimalSeparator), square_{diagram.RecCount, size.Cell, size.PerPageCols,
                                                       size.PerPageRows},
          canvas_(paper.Width, paper.Height) {
        canvas_.Pen.Width = HairLine;
        canvas_.Font = {.Name = paper.FontName, .Size = size.FontSize, .Bold = false};
    }

    // What a page leaves the font at holds for the next one.
    Drawing Pages(const std::string& description) {
        const LabelOffsets offsets{.X = 15, .NameX = TextOffset, .Y = TextOffset, .LaterNameY = TextOffset};
        for (const SquarePage& page : PagesOfSquare(square_)) {
            DrawLabels(canvas_, square_, page, offsets,
                       [this](int record) { return diagram_.RecordNames(record); });
            for (int column = 1; column <= page.Columns; ++column)
                for (int row = 1; row <= page.Rows; ++row) DrawCell(page, column, row);
            if (page.HasEnding()) DrawEnding(page, description);
            canvas_.StartPage();
        }
        return canvas_.Take();
    }

private:
    void DrawCell(const SquarePage& page, int column, int row) {
        const int cellClass = diagram_.Classes(page.RowsBefore + row, page.ColumnsBefore + column);
        const drawing::Point corner = BoxCorner(square_, page, column, row);
        const drawing::Point centre{corner.X + size_.Cell / 2.0, corner.Y + size_.Cell / 2.0};
        const Symbol symbol = SymbolOf(cellClass, size_.Cell);
        DrawSymbol(centre, symbol, DiscInk);
        if (diagram_.DiagType == 3)
            DrawClosingLines(page, column, row);
        else
            canvas_.DrawBox(corner, OppositeCorner(square_, corner));
        if (cellClass == 6) canvas_.Write({corner.X + NoClassOffset.X, corner.Y + NoClassOffset.Y}, "?");
    }

    // The symbol alone, without a box around it.
    void DrawSymbol(drawing::Point centre, const Symbol& symbol, Colour discInk) {
        if (symbol.Shade == NoSymbol) return;
        const double half = size_.Cell / 2.0;
        if (diagram_.DiagType == 1)
            canvas_.FillBox({centre.X - half, centre.Y - half}, {centre.X + half, centre.Y + half},
                            GreyOf(symbol.Shade));
        if (diagram_.DiagType == 2) {
            canvas_.Pen.Ink = discInk;
            canvas_.FillDisc(centre, symbol.DiscRadius);
            canvas_.Pen.Ink = Black;
        }
        if (diagram_.DiagType == 3) PrintPic(canvas_, centre, size_.Cell, symbol.Shade);
    }

    // At the right and the bottom of the whole square.
    void DrawClosingLines(const SquarePage& page, int column, int row) {
        const drawing::Point corner = BoxCorner(square_, page, column, row);
        const drawing::Point opposite = OppositeCorner(square_, corner);
        if (page.LastAcross && column == page.Columns) canvas_.DrawLine({opposite.X, corner.Y}, opposite);
        if (page.LastDown && row == page.Rows) canvas_.DrawLine({corner.X, opposite.Y}, opposite);
    }

    void DrawEnding(const SquarePage& page, const std::string& description) {
        canvas_.Font.Size = LegendFontSize;
        canvas_.Font.Bold = false;
        const double line = size_.Cell * (page.Rows + 1) + 250;
        DrawLegend(line);
        DrawDescription(line, description);
        canvas_.Font.Size = size_.EndFontSize;
    }

    // The symbols stand in a row, their centres at `line`, each with its text behind it.
    void DrawLegend(double line) {
        constexpr double Base = 25 + 50;
        constexpr double Gap = 50;
        const double half = size_.Cell / 2.0;
        double offset = diagram_.DiagType == 3 ? 0 : 60;
        for (int item = 1; item <= 5; ++item) {
            const drawing::Point centre{Base + (item - 1) * (size_.Cell + Gap) + offset, line};
            const std::string text = LegendText(item);
            if (item < 5) DrawLegendSymbol(centre, SymbolOf(6 - item, size_.Cell));
            canvas_.Write({centre.X + half, line - half}, text);
            offset += measure_.extentOf(text, canvas_.Font).Width;
        }
    }

    void DrawLegendSymbol(drawing::Point centre, const Symbol& symbol) {
        DrawSymbol(centre, symbol, Black);
        const double half = size_.Cell / 2.0;
        if (diagram_.DiagType != 3)
            canvas_.DrawBox({centre.X - half, centre.Y - half}, {centre.X + half, centre.Y + half});
    }

    // A limit takes a place for its sign.
    std::string LegendText(int item) const {
        const auto limit = [&](int place) {
            const float value = diagram_.SectionLimits(place);
            return (value < 0 ? "" : " ") + PlainText(value, decimalSeparator_);
        };
        if (item == 1) return fmt::format(" 0 -{} ", limit(1));
        if (item == 5) return fmt::format("(white block = {} - and more...)", limit(4));
        return fmt::format(" {} -{} ", limit(item - 1), limit(item));
    }

    void DrawDescription(double line, const std::string& description) {
        constexpr double Left = 25;
        constexpr const char* Heading = "Diagram: ";
        const double height = measure_.extentOf(description, canvas_.Font).Height;
        canvas_.Font.Bold = true;
        canvas_.Write({Left, line + height}, Heading);
        const double headingWidth = measure_.extentOf(Heading, canvas_.Font).Width;
        canvas_.Font.Bold = false;
        WriteLines(canvas_, {Left + headingWidth, line + height}, description, height);
    }

    const DiagramDocument& diagram_;
    PrintSize size_;
    TextMeasure& measure_;
    char decimalSeparator_;
    SquareOnPages square_;
    Canvas canvas_;
};

} // namespace

Drawing DiagramPages(const DiagramDocument& diagram, const std::string& description, std::int16_t size,
                     const Paper& paper, TextMeasure& measure, char decimalSeparator) {
    if (size < 1 || std::size_t(size) > PrintSizes.size()) return Canvas(paper.Width, paper.Height).Take();
    return DiagramPrint(diagram, PrintSizes[std::size_t(size - 1)], paper, measure, decimalSeparator)
        .Pages(description);
}

} // namespace dorvan
