#include "print/matrix_pages.h"

#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "print/square_pages.h"

#include <algorithm>

namespace dorvan {

namespace {

constexpr double GridFontSize = 7; // points
constexpr double DiagonalFontSize = 8;
constexpr double DescriptionFontSize = 10;

// The scan starts from the number 0; from the first cell taken on, texts are compared.
std::string LastInTextOrder(const DistanceMatrix& matrix, char decimalSeparator) {
    const std::string* last = nullptr;
    for (const std::string& cell : matrix.Cells.Cells())
        if (last ? cell >= *last : StrictDouble(cell, decimalSeparator) >= 0) last = &cell;
    return last ? *last : "0";
}

std::string ShownText(const std::string& cell, char decimalSeparator) {
    return std::string(
        TrimSpaces(FormatPattern(StrictDouble(cell, decimalSeparator), "#0.000", decimalSeparator)));
}

class MatrixPrint {
public:
    MatrixPrint(const DistanceMatrix& matrix, const Paper& paper, TextMeasure& measure, char decimalSeparator)
        : matrix_(matrix), measure_(measure), decimalSeparator_(decimalSeparator),
          canvas_(paper.Width, paper.Height) {
        canvas_.Pen.Width = 1;
        canvas_.Font = {.Name = paper.FontName, .Size = GridFontSize, .Bold = true};
        MeasureBoxes();
    }

    Drawing Pages(const std::string& description) {
        const LabelOffsets offsets{
            .X = square_.Cell / 5.0, .NameX = square_.Cell / 5.0, .Y = square_.Cell / 3.0, .LaterNameY = 25};
        for (const SquarePage& page : PagesOfSquare(square_)) {
            DrawLabels(canvas_, square_, page, offsets, [this](int record) { return matrix_.Names(record); });
            DrawBody(page);
            if (page.HasEnding()) DrawDescription(page, description);
            canvas_.StartPage();
        }
        return canvas_.Take();
    }

private:
    void MeasureBoxes() {
        const std::string text = ShownText(LastInTextOrder(matrix_, decimalSeparator_), decimalSeparator_);
        const TextExtent extent = measure_.extentOf(text, canvas_.Font);
        valueWidth_ = extent.Width;
        roomyWidth_ = extent.Width * 1.1;
        square_.Count = matrix_.Size;
        square_.Cell = RoundToInt16(std::max(extent.Height * 1.2, roomyWidth_));
        square_.PerPageCols = static_cast<int>(canvas_.Width() / square_.Cell) - 4;
        square_.PerPageRows = static_cast<int>(canvas_.Height() / square_.Cell) - 1;
    }

    void DrawBody(const SquarePage& page) {
        for (int column = 1; column <= page.Columns; ++column)
            for (int row = 1; row <= page.Rows; ++row) {
                const drawing::Point corner = BoxCorner(square_, page, column, row);
                canvas_.DrawBox(corner, OppositeCorner(square_, corner));
                const int place = page.ColumnsBefore + column;
                const int record = page.RowsBefore + row;
                if (place > record) continue;
                try {
                    WriteValue(page, corner, ShownText(matrix_.Cells(record, place), decimalSeparator_),
                               place == record);
                } catch (const RuntimeFailure&) { // skipped, as every step that fails from here on
                }
            }
    }

    // To the right of its box; the diagonal's in the middle of a text of three characters.
    void WriteValue(const SquarePage& page, drawing::Point corner, const std::string& value, bool diagonal) {
        canvas_.Font.Size = diagonal ? DiagonalFontSize : GridFontSize;
        canvas_.Font.Bold = diagonal;
        const double tenth = square_.Cell / 10.0;
        const double width = measure_.extentOf(diagonal ? "0.0" : value, canvas_.Font).Width;
        double offset = diagonal ? (roomyWidth_ - width) / 2 - tenth : valueWidth_ - width;
        if (!diagonal && !page.HasHeader() && width >= valueWidth_) offset = 0;
        canvas_.Write({corner.X + tenth + offset, corner.Y + square_.Cell / 3.0}, value);
    }

    void DrawDescription(const SquarePage& page, const std::string& description) {
        canvas_.Font.Size = DescriptionFontSize;
        canvas_.Font.Bold = true;
        const double height = measure_.extentOf(description, canvas_.Font).Height;
        WriteLines(canvas_, {25, double(square_.Cell * (page.Rows + 1) + 100)}, description, height);
        canvas_.Font.Size = GridFontSize;
    }

    const DistanceMatrix& matrix_;
    TextMeasure& measure_;
    char decimalSeparator_;
    Canvas canvas_;
    SquareOnPages square_;
    double valueWidth_ = 0; // of the text that the boxes are made for
    double roomyWidth_ = 0;
};

} // namespace

Drawing MatrixPages(const DistanceMatrix& matrix, const std::string& description, const Paper& paper,
                    TextMeasure& measure, char decimalSeparator) {
    return MatrixPrint(matrix, paper, measure, decimalSeparator).Pages(description);
}

} // namespace dorvan
