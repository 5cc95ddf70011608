#include "view/bitmap_drawing.h"

#include "numbers/rounding.h"
#include "view/legend_texts.h"
#include "view/table_edges.h"
#include "view/vector_symbols.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace dorvan {

namespace {

constexpr int MostRecordsOfTheLargeSize = 100;
constexpr int LeastWidth = 7900;
constexpr int TextInset = 25;
constexpr int TextDrop = 10;
constexpr int LegendGap = 150; // between swatch and text, and behind the text
constexpr double LegendFontSize = 8;

constexpr int Classes = 6; // 0 to 5
constexpr std::array<int, Classes> Greys{255, 255, 225, 170, 100, 25};

struct Scale {
    int Cell;
    double FontSize; // of numbers and names
    std::array<int, Classes> Radii;
};
constexpr Scale LargeScale{300, 8, {0, 0, 22, 52, 80, 120}};
constexpr Scale SmallScale{250, 5, {0, 0, 20, 45, 70, 105}};

std::size_t Checked(int cellClass) {
    if (cellClass < 0 || cellClass >= Classes)
        throw RuntimeFailure(Failure::SubscriptOutOfRange, "a cell without a section");
    return std::size_t(cellClass);
}

class BitmapDrawer {
public:
    BitmapDrawer(const DiagramDocument& document, TextMeasure& measure, char decimalSeparator)
        : document_(document), measure_(measure), decimalSeparator_(decimalSeparator),
          count_(document.RecCount), scale_(count_ > MostRecordsOfTheLargeSize ? SmallScale : LargeScale),
          canvas_(std::max((count_ + 5) * scale_.Cell + 350, LeastWidth), (count_ + 4) * scale_.Cell) {}

    Drawing Draw() {
        canvas_.Font.Size = scale_.FontSize;
        DrawTableEdges(canvas_, Edges(), document_.RecordNames);
        for (int column = 1; column <= count_; ++column)
            for (int row = 1; row <= count_; ++row) DrawCell(column, row);
        canvas_.DrawBox({0, 0}, {double((count_ + 5) * scale_.Cell), double((count_ + 1) * scale_.Cell)});
        DrawLegend();
        return canvas_.Take();
    }

private:
    TableEdges Edges() const {
        TableEdges edges;
        edges.Cell = scale_.Cell;
        edges.Rows = edges.Columns = count_;
        edges.NumberOffset = edges.HeaderOffset = edges.NameOffset =
            edges.TitleOffset = {TextInset, TextDrop};
        return edges;
    }

    // The first index of the classes runs along x.
    void DrawCell(int column, int row) {
        const double cell = scale_.Cell;
        const drawing::Point corner{(column + 4) * cell, row * cell};
        const std::size_t cellClass = Checked(document_.Classes(column, row));
        if (document_.DiagType == 3) {
            const drawing::Point centre{std::floor(corner.X + 0.5 * cell), std::floor(corner.Y + 0.5 * cell)};
            DrawSymbol(centre, cellClass);
        } else {
            if (Greys[cellClass] != 255) DrawFilling(corner, 0.5 * cell, cellClass, cellClass);
            if (HasSquares()) DrawSquare(corner);
        }
        if (cellClass == 0) canvas_.Write({corner.X + TextInset, corner.Y + TextInset}, "?");
    }

    // Around the cells; a file may give a type that is none.
    bool HasSquares() const { return document_.DiagType == 1 || document_.DiagType == 2; }

    // A cell or a swatch: its grey or its disc.
    void DrawFilling(drawing::Point corner, double half, std::size_t greyClass, std::size_t discClass) {
        const double cell = scale_.Cell;
        if (document_.DiagType == 1)
            canvas_.FillBox(corner, {corner.X + cell, corner.Y + cell}, GreyOf(Greys[greyClass]));
        if (document_.DiagType == 2)
            canvas_.FillDisc({corner.X + half, corner.Y + half}, scale_.Radii[discClass]);
    }

    void DrawSymbol(drawing::Point centre, std::size_t cellClass) {
        BmpPic(canvas_, centre, scale_.Cell * 7 / 10, int(cellClass));
    }

    void DrawSquare(drawing::Point corner) {
        canvas_.DrawBox(corner, {corner.X + scale_.Cell, corner.Y + scale_.Cell});
    }

    void DrawLegend() {
        canvas_.Font = {"", LegendFontSize, true};
        const int cell = scale_.Cell;
        const double textDrop = RoundToInt32(cell / 3.0);
        drawing::Point corner{TextInset, double((count_ + 2) * cell)};
        std::size_t swatch = 0;
        for (const std::string& text : LegendTexts(document_.SectionLimits, decimalSeparator_)) {
            DrawSwatch(corner, ++swatch);
            canvas_.Write({corner.X + cell + LegendGap, corner.Y + textDrop}, text);
            const int width = RoundToInt32(measure_.extentOf(text, canvas_.Font).Width);
            corner.X += cell + LegendGap + width + LegendGap;
        }
    }

    // Greys and squares from the class 1 up, beside texts that start with the class 5; discs as the texts.
    void DrawSwatch(drawing::Point corner, std::size_t swatch) {
        const double half = RoundToInt32(scale_.Cell / 2.0);
        if (document_.DiagType == 3)
            DrawSymbol({corner.X + half, corner.Y + half}, swatch);
        else
            DrawFilling(corner, half, swatch, Classes - swatch);
        if (HasSquares() || document_.DiagType == 3) DrawSquare(corner);
    }

    const DiagramDocument& document_;
    TextMeasure& measure_;
    char decimalSeparator_;
    int count_;
    const Scale& scale_;
    Canvas canvas_;
};

} // namespace

Drawing BitmapDrawing(const DiagramDocument& document, TextMeasure& measure, char decimalSeparator) {
    return BitmapDrawer(document, measure, decimalSeparator).Draw();
}

} // namespace dorvan
