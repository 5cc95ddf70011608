#include "print/matrix_pages.h"

#include "drawn.h"
#include "numbers/runtime_failure.h"
#include "support/scripted_printer.h"

#include <fmt/format.h>

namespace dorvan::test {
namespace {

using drawing::Point;

// Names "Record 1" and so on; the distance of records i and j is |i - j|.
DistanceMatrix lineOf(int n) {
    DistanceMatrix matrix{Array1<std::string>(n), Array2<std::string>(n, n), static_cast<std::int16_t>(n)};
    for (int i = 1; i <= n; ++i) {
        matrix.Names(i) = fmt::format("Record {}", i);
        for (int j = 1; j <= n; ++j) matrix.Cells(i, j) = fmt::format("{}", std::abs(i - j));
    }
    return matrix;
}

// The boxes are made for "9.000" at 7 points in bold: 5 x 84 = 420 wide and 140 high.
constexpr double W = 420;
constexpr double W2 = 462;
constexpr double Cell = 462;

class MatrixPrinting : public ::testing::Test {
protected:
    PrinterMeasure measure;
    Paper paper{.Width = 11500, .Height = 16440, .FontName = "Courier New"}; // 24 and 35 boxes
    static constexpr int PerPageCols = 20;
    static constexpr int PerPageRows = 34;

    Drawing print(const DistanceMatrix& matrix, const std::string& description = "d") {
        return MatrixPages(matrix, description, paper, measure, '.');
    }
    std::vector<Drawing> pages(const DistanceMatrix& matrix, const std::string& description = "d") {
        return PagesOf(print(matrix, description));
    }
};

TEST_F(MatrixPrinting, TwoRecordsStandOnOnePage) {
    const auto drawn = pages(lineOf(2));
    ASSERT_EQ(drawn.size(), 1u);
    const Drawing& page = drawn[0];
    EXPECT_EQ(page.Width, 11500);
    EXPECT_EQ(page.Height, 16440);
    // "1.000" is the last in the order of texts: as wide as "9.000".
    EXPECT_EQ(allOf<drawing::Box>(page).size(), 3u + 2u + 3u + 4u);
    std::string contents;
    for (const auto& text : allOf<drawing::Text>(page)) contents += text.Content + "|";
    EXPECT_EQ(contents, "1|2|1|2|Name|Record 1|Record 2|0.000|1.000|0.000|d|");
    EXPECT_TRUE(hasBox(page, {6 * Cell, Cell}, {7 * Cell, 2 * Cell})); // the empty one at the upper right
}

TEST_F(MatrixPrinting, NumberColumn) {
    const Drawing page = pages(lineOf(3))[0];
    for (int row = 0; row <= 3; ++row)
        EXPECT_TRUE(hasBox(page, {0, row * Cell}, {Cell, (row + 1) * Cell})) << row;
    EXPECT_TRUE(textsAt(page, {Cell / 5, Cell / 3}).empty());
    for (int row = 1; row <= 3; ++row) {
        const auto text = textAt(page, {Cell / 5, row * Cell + Cell / 3});
        EXPECT_EQ(text.Content, fmt::format("{}", row));
        EXPECT_EQ(text.With, (drawing::Font{"Courier New", 7, true}));
    }
}

TEST_F(MatrixPrinting, HeaderRow) {
    const Drawing page = pages(lineOf(3))[0];
    for (int column = 1; column <= 3; ++column) {
        const double left = (4 + column) * Cell;
        EXPECT_TRUE(hasBox(page, {left, 0}, {left + Cell, Cell})) << column;
        const auto text = textAt(page, {left + Cell / 5, Cell / 3});
        EXPECT_EQ(text.Content, fmt::format("{}", column));
        EXPECT_EQ(text.With, (drawing::Font{"Courier New", 7, true}));
    }
}

TEST_F(MatrixPrinting, NameColumnCutsNamesAtTwelveCharacters) {
    DistanceMatrix matrix = lineOf(2);
    matrix.Names(1) = "Łódź-Bałuty-Doły";
    const Drawing page = pages(matrix)[0];
    for (int row = 0; row <= 2; ++row)
        EXPECT_TRUE(hasBox(page, {Cell, row * Cell}, {5 * Cell, (row + 1) * Cell})) << row;
    EXPECT_EQ(textAt(page, {Cell / 5 + Cell, Cell / 3}).Content, "Name");
    EXPECT_EQ(textAt(page, {Cell / 5 + Cell, Cell + Cell / 3}).Content, "Łódź-Bałuty-");
    EXPECT_EQ(textAt(page, {Cell / 5 + Cell, 2 * Cell + Cell / 3}).Content, "Record 2");
}

TEST_F(MatrixPrinting, ValuesAreAlignedToTheRightAndThoseOfTheDiagonalCentred) {
    DistanceMatrix matrix = lineOf(3);
    matrix.Cells(2, 1) = "9";
    matrix.Cells(3, 1) = "12.3456";
    const Drawing page = pages(matrix)[0];
    const auto ordinary = textAt(page, {5 * Cell + Cell / 10 + W - 350, 2 * Cell + Cell / 3});
    EXPECT_EQ(ordinary.Content, "9.000"); // 350 wide as it is drawn, not in bold
    EXPECT_EQ(ordinary.With, (drawing::Font{"Courier New", 7, false}));
    const auto wide = textAt(page, {5 * Cell + Cell / 10 + W - 420, 3 * Cell + Cell / 3});
    EXPECT_EQ(wide.Content, "12.346");
    // "0.0" at 8 points in bold is 288 wide.
    const auto diagonal = textAt(page, {6 * Cell + (W2 - 288) / 2, 2 * Cell + Cell / 3});
    EXPECT_EQ(diagonal.Content, "0.000");
    EXPECT_EQ(diagonal.With, (drawing::Font{"Courier New", 8, true}));
}

TEST_F(MatrixPrinting, UpperTriangleIsEmpty) {
    const Drawing page = pages(lineOf(4))[0];
    for (int row = 1; row <= 4; ++row)
        for (int column = 1; column <= 4; ++column) {
            const Point corner{(4 + column) * Cell, row * Cell};
            EXPECT_TRUE(hasBox(page, corner, {corner.X + Cell, corner.Y + Cell}));
            std::size_t inside = 0;
            for (const auto& text : allOf<drawing::Text>(page))
                inside += text.At.X > corner.X && text.At.X < corner.X + Cell && text.At.Y > corner.Y &&
                          text.At.Y < corner.Y + Cell;
            EXPECT_EQ(inside, column > row ? 0u : 1u) << row << " " << column;
        }
}

TEST_F(MatrixPrinting, BoxesAreDrawnInBlackHairLines) {
    for (const auto& box : allOf<drawing::Box>(pages(lineOf(2))[0]))
        EXPECT_EQ(box.With, (drawing::Pen{Black, 1}));
}

// 9.5 wins over 10.5, so that the boxes are made for the shorter of the two.
TEST_F(MatrixPrinting, TheLastInTextOrderMakesTheBoxes) {
    DistanceMatrix matrix = lineOf(2);
    matrix.Cells(1, 2) = matrix.Cells(2, 1) = "10.5";
    EXPECT_TRUE(hasBox(pages(matrix)[0], {0, 0}, {554, 554})); // "10.500": 504 x 1.1 is 554.4
    matrix.Cells(1, 1) = "9.5";
    EXPECT_TRUE(hasBox(pages(matrix)[0], {0, 0}, {462, 462})); // "9.500"
}

TEST_F(MatrixPrinting, ScanStartsFromTheNumberNought) {
    DistanceMatrix matrix = lineOf(2);
    for (auto& cell : matrix.Cells.Cells()) cell = "-1000";
    EXPECT_TRUE(hasBox(pages(matrix)[0], {0, 0}, {462, 462})); // for "0.000"
    matrix.Cells(1, 2) = "0";
    matrix.Cells(2, 1) = "-5000"; // as a text below "0"
    EXPECT_TRUE(hasBox(pages(matrix)[0], {0, 0}, {462, 462}));
}

// Halves to even, and the greater of the height and the width.
TEST_F(MatrixPrinting, SideOfABoxIsRoundedToAWholeNumber) {
    struct Extents : TextMeasure {
        TextExtent extent;
        TextExtent extentOf(const std::string&, const drawing::Font&) override { return extent; }
    } extents;
    const auto sideOf = [&](double width, double height) {
        extents.extent = {width, height};
        const auto boxes = allOf<drawing::Box>(MatrixPages(lineOf(2), "", paper, extents, '.'));
        return boxes.at(0).To.X;
    };
    EXPECT_EQ(sideOf(205, 10), 226); // 225.5
    EXPECT_EQ(sideOf(10, 162.5), 195);
    EXPECT_EQ(sideOf(10, 161.25), 194);    // 193.5
    EXPECT_EQ(sideOf(10, 162.08334), 195); // 194.500008
    EXPECT_EQ(sideOf(10, 163.75), 196); // 196.5
}

TEST_F(MatrixPrinting, TwentyColumnsStillFitOnePageWhateverTheRows) {
    paper.Height = 1000; // all rows go on the one page, past its end
    EXPECT_EQ(pages(lineOf(PerPageCols)).size(), 1u);
    EXPECT_EQ(newPages(print(lineOf(PerPageCols))), 1u);
}

TEST_F(MatrixPrinting, OneColumnMoreTakesAPageToTheRight) {
    const auto drawn = pages(lineOf(PerPageCols + 1));
    ASSERT_EQ(drawn.size(), 2u); // 21 rows are fewer than 34
    EXPECT_EQ(allOf<drawing::Box>(drawn[0]).size(), 22u + 20u + 22u + 20u * 21u);
    EXPECT_EQ(allOf<drawing::Box>(drawn[1]).size(), 1u + 21u);
    // No names on the second: the body starts at the left edge, below the header.
    EXPECT_TRUE(hasBox(drawn[1], {0, 0}, {Cell, Cell}));
    EXPECT_EQ(textAt(drawn[1], {Cell / 5, Cell / 3}).Content, "21");
    EXPECT_TRUE(hasBox(drawn[1], {0, 21 * Cell}, {Cell, 22 * Cell}));
}

TEST_F(MatrixPrinting, PageCounts) {
    const auto count = [&](int n) { return pages(lineOf(n)).size(); };
    EXPECT_EQ(count(34), 2u);   // 2 across, 1 down
    EXPECT_EQ(count(35), 4u);   // 2 across, 2 down
    EXPECT_EQ(count(40), 4u);   // 2 across without a remainder
    EXPECT_EQ(count(41), 6u);   // 3 across
    EXPECT_EQ(count(150), 60u); // boxes for "99.000": 10 across, 6 down
}

TEST_F(MatrixPrinting, RowsOfPagesComeFirst) {
    const auto drawn = pages(lineOf(45)); // 3 across, 2 down
    ASSERT_EQ(drawn.size(), 6u);
    EXPECT_EQ(textAt(drawn[0], {5 * Cell + Cell / 5, Cell / 3}).Content, "1");
    EXPECT_EQ(textAt(drawn[1], {Cell / 5, Cell / 3}).Content, "21");
    EXPECT_EQ(textAt(drawn[2], {Cell / 5, Cell / 3}).Content, "41");
    // The second page row: no header, the numbers go on.
    EXPECT_EQ(textAt(drawn[3], {Cell / 5, Cell / 3}).Content, "35");
    EXPECT_EQ(textAt(drawn[3], {Cell / 5, 10 * Cell + Cell / 3}).Content, "45");
    EXPECT_EQ(allOf<drawing::Box>(drawn[3]).size(), 11u + 11u + 20u * 11u);
    EXPECT_EQ(allOf<drawing::Box>(drawn[4]).size(), 20u * 11u);
    EXPECT_EQ(allOf<drawing::Box>(drawn[5]).size(), 5u * 11u);
    EXPECT_EQ(newPages(print(lineOf(45))), 6u); // the last of them leaves an empty page
}

TEST_F(MatrixPrinting, NamesBelowTheFirstPageRowStandAtAnotherHeight) {
    const Drawing page = pages(lineOf(45))[3];
    EXPECT_EQ(textAt(page, {Cell / 5 + Cell, 25}).Content, "Record 35");
    EXPECT_EQ(textAt(page, {Cell / 5 + Cell, 10 * Cell + 25}).Content, "Record 45");
}

TEST_F(MatrixPrinting, BodyCountsOnOverThePages) {
    DistanceMatrix matrix = lineOf(45);
    matrix.Cells(36, 22) = "7.125";
    const Drawing page = pages(matrix)[4]; // columns 21 to 40, rows 35 to 45
    const auto text = textOf(page, "7.125");
    EXPECT_TRUE(near(text.At, {Cell + Cell / 10 + W - 350, Cell + Cell / 3}));
    // The diagonal's value of record 35 stands in column 15 of the page.
    EXPECT_EQ(textAt(page, {14 * Cell + (W2 - 288) / 2, Cell / 3}).Content, "0.000");
}

TEST_F(MatrixPrinting, WideValuesBelowTheFirstPageRowKeepTheirPlace) {
    DistanceMatrix matrix = lineOf(45);
    matrix.Cells(40, 1) = "1000";   // "1000.000", 560 wide, on page row 2
    matrix.Cells(41, 1) = "10.1";   // "10.100", 420 wide: not narrower
    matrix.Cells(30, 1) = "1000.5"; // on page row 1
    matrix.Cells(1, 2) = "9.5";
    const auto drawn = pages(matrix);
    EXPECT_DOUBLE_EQ(textOf(drawn[3], "1000.000").At.X, 5 * Cell + Cell / 10);
    EXPECT_DOUBLE_EQ(textOf(drawn[3], "10.100").At.X, 5 * Cell + Cell / 10);
    EXPECT_DOUBLE_EQ(textOf(drawn[0], "1000.500").At.X, 5 * Cell + Cell / 10 + W - 560);
}

TEST_F(MatrixPrinting, DescriptionStandsOnTheLastPageOfTheFirstPageColumn) {
    const auto drawn = pages(lineOf(45), "Forty-five");
    for (std::size_t page = 0; page < drawn.size(); ++page)
        EXPECT_EQ(page == 3, !textsAt(drawn[page], {25, 12 * Cell + 100}).empty()) << page;
    const auto text = textOf(drawn[3], "Forty-five");
    EXPECT_EQ(text.With, (drawing::Font{"Courier New", 10, true}));
    EXPECT_EQ(textOf(pages(lineOf(2), "Two")[0], "Two").At, (Point{25, 3 * Cell + 100}));
}

// The printer's font stands as the last text left it, over the pages.
TEST_F(MatrixPrinting, LaterLabelsFollowTheFontOfTheLastValue) {
    const auto drawn = pages(lineOf(21), "d"); // its description ends in bold, at 7 points
    EXPECT_EQ(textAt(drawn[1], {Cell / 5, Cell / 3}).With, (drawing::Font{"Courier New", 7, true}));
    const auto many = pages(lineOf(45), "d"); // page 1 ends with an ordinary value
    EXPECT_EQ(textAt(many[1], {Cell / 5, Cell / 3}).With, (drawing::Font{"Courier New", 7, false}));
}

TEST_F(MatrixPrinting, DescriptionGoesOnOverSeveralLines) {
    const Drawing page = pages(lineOf(2), "one\r\ntwo\nthree")[0];
    EXPECT_EQ(textOf(page, "one").At, (Point{25, 3 * Cell + 100}));
    EXPECT_EQ(textOf(page, "two").At, (Point{25, 3 * Cell + 300}));
    EXPECT_EQ(textOf(page, "three").At, (Point{25, 3 * Cell + 500}));
}

TEST_F(MatrixPrinting, CellThatIsNoNumberStaysEmpty) {
    DistanceMatrix matrix = lineOf(2);
    matrix.Cells(2, 1) = "";
    std::string contents;
    for (const auto& text : allOf<drawing::Text>(pages(matrix)[0])) contents += text.Content + "|";
    EXPECT_EQ(contents, "1|2|1|2|Name|Record 1|Record 2|0.000|0.000|d|");
    matrix.Cells(2, 1) = "N/A"; // the last in text order: the boxes are to be made for it
    EXPECT_THROW(pages(matrix), RuntimeFailure);
}

TEST_F(MatrixPrinting, NumbersHaveTheLocalesSeparator) {
    DistanceMatrix matrix = lineOf(2);
    matrix.Cells(1, 2) = matrix.Cells(2, 1) = "0,25";
    const auto drawn = PagesOf(MatrixPages(matrix, "d", paper, measure, ','));
    EXPECT_EQ(textOf(drawn[0], "0,250").With.Size, 7);
}

TEST_F(MatrixPrinting, PaperWithoutRoomForABoxTakesNoPage) {
    paper.Width = 4 * Cell; // no column left beside the names
    EXPECT_TRUE(print(lineOf(2)).Operations.empty());
}

} // namespace
} // namespace dorvan::test
