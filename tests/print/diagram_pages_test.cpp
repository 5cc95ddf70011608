#include "print/diagram_pages.h"

#include "drawn.h"
#include "support/scripted_printer.h"
#include "view/vector_symbols.h"

#include <fmt/format.h>

namespace dorvan::test {
namespace {

using drawing::Point;

constexpr std::int16_t Normal = 1;
constexpr std::int16_t Small = 2;
constexpr std::int16_t Large = 3;
constexpr std::int16_t Greyscale = 1;
constexpr std::int16_t Dots = 2;
constexpr std::int16_t Classic = 3;

// Every cell of class 1, and so white.
DiagramDocument whiteDiagram(int n, std::int16_t type) {
    DiagramDocument diagram;
    diagram.RecCount = static_cast<std::int16_t>(n);
    diagram.DiagType = type;
    diagram.RecordNames = Array1<std::string>(n);
    diagram.Classes = Array2<std::int16_t>(n, n, 1);
    for (int i = 1; i <= n; ++i) diagram.RecordNames(i) = fmt::format("Record {}", i);
    for (int i = 1; i <= 4; ++i) diagram.SectionLimits(i) = i + 0.5f;
    return diagram;
}

class DiagramPrinting : public ::testing::Test {
protected:
    PrinterMeasure measure;
    Paper paper{.Width = 11500, .Height = 16440, .FontName = "Courier New"};

    Drawing print(const DiagramDocument& diagram, std::int16_t size, const std::string& description = "d") {
        return DiagramPages(diagram, description, size, paper, measure, '.');
    }
    std::vector<Drawing> pages(const DiagramDocument& diagram, std::int16_t size = Normal,
                               const std::string& description = "d") {
        return PagesOf(print(diagram, size, description));
    }
    // A diagram whose first row has the classes 1 to 6 and one that is none, on one page.
    Drawing classes(std::int16_t type) {
        DiagramDocument diagram = whiteDiagram(7, type);
        for (int column = 1; column <= 7; ++column)
            diagram.Classes(1, column) = static_cast<std::int16_t>(column % 7);
        return pages(diagram)[0];
    }
    // What of a kind lies in the square itself, above the legend.
    template <class Kind> std::vector<Kind> inSquare(const Drawing& page, int n, double cell) {
        auto found = allOf<Kind>(page);
        std::erase_if(found, [&](const auto& one) { return placeOf(one).Y > (n + 1) * cell + 1; });
        return found;
    }
    static Point placeOf(const drawing::FilledBox& box) { return box.From; }
    static Point placeOf(const drawing::Box& box) { return box.From; }
    static Point placeOf(const drawing::Disc& disc) { return disc.Centre; }
    static Point placeOf(const drawing::Line& line) { return line.From; }
};

TEST_F(DiagramPrinting, PageCountsOfTheThreeSizes) {
    const auto count = [&](int n, std::int16_t size) { return pages(whiteDiagram(n, Dots), size).size(); };
    EXPECT_EQ(count(2, Normal), 1u);
    EXPECT_EQ(count(37, Normal), 1u);
    EXPECT_EQ(count(38, Normal), 2u); // 2 across, 1 down
    EXPECT_EQ(count(60, Normal), 2u);
    EXPECT_EQ(count(61, Normal), 4u);
    EXPECT_EQ(count(74, Normal), 4u);
    EXPECT_EQ(count(75, Normal), 6u);
    EXPECT_EQ(count(250, Normal), 35u); // 7 across, 5 down
    EXPECT_EQ(count(66, Small), 1u);
    EXPECT_EQ(count(67, Small), 2u);
    EXPECT_EQ(count(98, Small), 2u);
    EXPECT_EQ(count(99, Small), 4u);
    EXPECT_EQ(count(250, Small), 12u); // 4 across, 3 down
    EXPECT_EQ(count(25, Large), 1u);
    EXPECT_EQ(count(26, Large), 2u);
    EXPECT_EQ(count(40, Large), 2u);
    EXPECT_EQ(count(41, Large), 4u);
    EXPECT_EQ(count(250, Large), 70u); // 10 across, 7 down
    EXPECT_EQ(newPages(print(whiteDiagram(38, Dots), Normal)), 2u);
}

TEST_F(DiagramPrinting, OtherSizesPrintNothing) {
    for (const int size : {-1, 0, 4})
        EXPECT_TRUE(print(whiteDiagram(2, Dots), static_cast<std::int16_t>(size)).Operations.empty());
}

TEST_F(DiagramPrinting, LabelsStandAtFixedOffsets) {
    const double sides[] = {255, 155, 375};
    for (std::int16_t size = Normal; size <= Large; ++size) {
        const double cell = sides[size - 1];
        DiagramDocument diagram = whiteDiagram(3, Dots);
        diagram.RecordNames(2) = "Łódź-Bałuty-Doły";
        const Drawing page = pages(diagram, size)[0];
        EXPECT_TRUE(hasBox(page, {0, 0}, {cell, cell}));
        EXPECT_TRUE(hasBox(page, {cell, 0}, {5 * cell, cell}));
        EXPECT_EQ(textAt(page, {cell + 25, 25}).Content, "Name");
        EXPECT_TRUE(textsAt(page, {15, 25}).empty());
        for (int place = 1; place <= 3; ++place) {
            EXPECT_TRUE(hasBox(page, {0, place * cell}, {cell, (place + 1) * cell}));
            EXPECT_TRUE(hasBox(page, {cell, place * cell}, {5 * cell, (place + 1) * cell}));
            EXPECT_TRUE(hasBox(page, {(4 + place) * cell, 0}, {(5 + place) * cell, cell}));
            EXPECT_EQ(textAt(page, {15, place * cell + 25}).Content, fmt::format("{}", place));
            EXPECT_EQ(textAt(page, {(4 + place) * cell + 15, 25}).Content, fmt::format("{}", place));
        }
        EXPECT_EQ(textAt(page, {cell + 25, 2 * cell + 25}).Content, "Łódź-Bałuty-");
        EXPECT_EQ(textAt(page, {cell + 25, 3 * cell + 25}).Content, "Record 3");
    }
}

TEST_F(DiagramPrinting, FontSizeOfTheGrid) {
    const double sizes[] = {7, 5, 9};
    for (std::int16_t size = Normal; size <= Large; ++size)
        EXPECT_EQ(textOf(pages(whiteDiagram(3, Dots), size)[0], "Name").With,
                  (drawing::Font{"Courier New", sizes[size - 1], false}));
}

// The font is left at another size behind the description, and the page after it follows.
TEST_F(DiagramPrinting, FontSizeBehindTheDescription) {
    struct Case {
        std::int16_t size;
        int n;
        double points;
    };
    for (const auto& [size, n, points] : {Case{Normal, 38, 6}, Case{Small, 67, 4}, Case{Large, 26, 8}}) {
        const auto drawn = pages(whiteDiagram(n, Dots), size);
        ASSERT_EQ(drawn.size(), 2u);
        EXPECT_EQ(textAt(drawn[1], {15, 25}).With, (drawing::Font{"Courier New", points, false}));
    }
}

TEST_F(DiagramPrinting, PagesBelowTheFirstHaveNoHeader) {
    const auto drawn = pages(whiteDiagram(70, Dots)); // 2 across, 2 down
    ASSERT_EQ(drawn.size(), 4u);
    EXPECT_EQ(textAt(drawn[1], {15, 25}).Content, "38");
    EXPECT_EQ(textAt(drawn[2], {15, 25}).Content, "61");
    EXPECT_EQ(textAt(drawn[2], {15, 9 * 255 + 25}).Content, "70");
    EXPECT_EQ(textAt(drawn[2], {280, 25}).Content, "Record 61");
    EXPECT_TRUE(allOf<drawing::Text>(drawn[3]).empty());
    EXPECT_EQ(allOf<drawing::Box>(drawn[0]).size(), 61u + 37u + 61u + 37u * 60u);
    EXPECT_EQ(allOf<drawing::Box>(drawn[1]).size(), 33u + 33u * 60u);
    EXPECT_EQ(allOf<drawing::Box>(drawn[2]).size(), 10u + 10u + 37u * 10u + 4u); // 4 of the legend
    EXPECT_EQ(allOf<drawing::Box>(drawn[3]).size(), 33u * 10u);
    EXPECT_TRUE(hasBox(drawn[1], {0, 255}, {255, 510}));
    EXPECT_TRUE(hasBox(drawn[3], {0, 0}, {255, 255}));
    EXPECT_TRUE(hasBox(drawn[2], {5 * 255, 0}, {6 * 255, 255}));
}

TEST_F(DiagramPrinting, CellsTakeTheirClassesAtTheirPlaceInTheDiagram) {
    DiagramDocument diagram = whiteDiagram(70, Greyscale);
    diagram.Classes(62, 40) = 3;
    diagram.Classes(62, 2) = 5;
    const auto drawn = pages(diagram);
    EXPECT_EQ(allOf<drawing::FilledBox>(drawn[3]),
              (std::vector<drawing::FilledBox>{{{2 * 255, 255}, {3 * 255, 2 * 255}, GreyOf(170)}}));
    EXPECT_EQ(inSquare<drawing::FilledBox>(drawn[2], 10, 255),
              (std::vector<drawing::FilledBox>{{{6 * 255, 255}, {7 * 255, 510}, GreyOf(25)}}));
    EXPECT_TRUE(allOf<drawing::FilledBox>(drawn[0]).empty());
}

TEST_F(DiagramPrinting, GreyscaleFillsBoxesAndOutlinesEveryOne) {
    const Drawing page = classes(Greyscale);
    const auto box = [](int column, int grey) {
        return drawing::FilledBox{{(4.0 + column) * 255, 255}, {(5.0 + column) * 255, 510}, GreyOf(grey)};
    };
    EXPECT_EQ(inSquare<drawing::FilledBox>(page, 7, 255),
              (std::vector<drawing::FilledBox>{box(2, 225), box(3, 170), box(4, 100), box(5, 25)}));
    for (int row = 1; row <= 7; ++row)
        for (int column = 1; column <= 7; ++column)
            EXPECT_TRUE(
                hasBox(page, {(4. + column) * 255, row * 255.}, {(5. + column) * 255, (row + 1) * 255.}));
    EXPECT_TRUE(allOf<drawing::Disc>(page).empty());
    EXPECT_TRUE(allOf<drawing::Line>(page).empty());
}

// The outline lies over the filling.
TEST_F(DiagramPrinting, OutlinesComeAfterTheirFillings) {
    for (const auto type : {Greyscale, Dots}) {
        DiagramDocument diagram = whiteDiagram(1, type);
        diagram.Classes(1, 1) = 5;
        const auto operations = pages(diagram)[0].Operations;
        const auto filling = std::find_if(operations.begin(), operations.end(), [](const auto& operation) {
            return std::holds_alternative<drawing::FilledBox>(operation) ||
                   std::holds_alternative<drawing::Disc>(operation);
        });
        ASSERT_NE(filling, operations.end());
        EXPECT_EQ(std::get<drawing::Box>(*(filling + 1)),
                  (drawing::Box{{5 * 255, 255}, {6 * 255, 510}, {Black, 1}}));
    }
}

TEST_F(DiagramPrinting, DotsGrowWithTheClass) {
    const double sides[] = {255, 155, 375};
    const int radii[][4] = {{21, 42, 63, 102}, {12, 25, 38, 62}, {31, 62, 93, 150}};
    for (std::int16_t size = Normal; size <= Large; ++size) {
        const double cell = sides[size - 1];
        DiagramDocument diagram = whiteDiagram(7, Dots);
        for (int column = 1; column <= 7; ++column)
            diagram.Classes(1, column) = static_cast<std::int16_t>(column % 7);
        const Drawing page = pages(diagram, size)[0];
        std::vector<drawing::Disc> discs;
        for (int place = 0; place < 4; ++place)
            discs.push_back(
                {{(6.5 + place) * cell, 1.5 * cell}, double(radii[size - 1][place]), GreyOf(100)});
        EXPECT_EQ(inSquare<drawing::Disc>(page, 7, cell), discs);
        EXPECT_EQ(inSquare<drawing::Box>(page, 7, cell).size(), 8u + 7u + 8u + 49u);
        EXPECT_TRUE(allOf<drawing::FilledBox>(page).empty());
        EXPECT_TRUE(allOf<drawing::Line>(page).empty());
    }
}

TEST_F(DiagramPrinting, ClassicHasSymbolsAndClosingLinesAndNoGrid) {
    const Drawing page = classes(Classic);
    const double cell = 255;
    // Of boxes there are those of the labels and the outlines of three symbols.
    EXPECT_EQ(inSquare<drawing::Box>(page, 7, cell).size(), 8u + 7u + 8u + 3u);
    const float side = 178.5f;
    const Point second{6.5 * cell, 1.5 * cell};
    EXPECT_EQ(inSquare<drawing::Box>(page, 7, cell).at(23),
              (drawing::Box{{second.X - side / 2, second.Y + side / 2},
                            {second.X + side / 2, second.Y - side / 2},
                            {Black, 2}}));
    std::vector<drawing::Line> closing;
    for (int place = 1; place <= 7; ++place) {
        closing.push_back({{12 * cell, place * cell}, {12 * cell, (place + 1) * cell}, {Black, 1}});
        closing.push_back({{(4 + place) * cell, 8 * cell}, {(5 + place) * cell, 8 * cell}, {Black, 1}});
    }
    auto lines = inSquare<drawing::Line>(page, 7, cell);
    std::erase_if(lines, [](const auto& line) { return line.With.Width != 1; });
    EXPECT_TRUE(std::is_permutation(lines.begin(), lines.end(), closing.begin(), closing.end()));
}

TEST_F(DiagramPrinting, ClosingLinesStandOnTheLastPagesOnly) {
    const auto drawn = pages(whiteDiagram(70, Classic)); // 2 across, 2 down
    std::vector<std::size_t> lines;
    for (auto& page : drawn) {
        auto some = allOf<drawing::Line>(page);
        std::erase_if(some, [](const auto& line) { return line.With.Width != 1; });
        lines.push_back(some.size());
    }
    EXPECT_EQ(lines, (std::vector<std::size_t>{0, 60, 37, 10 + 33}));
}

TEST_F(DiagramPrinting, CellWithoutAClassShowsAQuestionMarkInEveryType) {
    for (const auto type : {Greyscale, Dots, Classic}) {
        const Drawing page = classes(type);
        const auto text = textOf(page, "?");
        EXPECT_EQ(text.At, (Point{10 * 255 + 25, 255 + 25}));
        EXPECT_EQ(text.With, (drawing::Font{"Courier New", 7, false}));
    }
}

TEST_F(DiagramPrinting, LegendTexts) {
    const Drawing page = pages(whiteDiagram(3, Dots))[0];
    for (const char* text :
         {" 0 - 1.5 ", "  1.5 - 2.5 ", "  2.5 - 3.5 ", "  3.5 - 4.5 ", "(white block =  4.5 - and more...)"})
        EXPECT_EQ(textOf(page, text).With, (drawing::Font{"Courier New", 8, false}));
}

TEST_F(DiagramPrinting, LimitsArePlainTexts) {
    DiagramDocument diagram = whiteDiagram(3, Dots);
    diagram.SectionLimits(1) = -0.25f;
    diagram.SectionLimits(2) = 0;
    diagram.SectionLimits(3) = 1234.5678f;
    diagram.SectionLimits(4) = 1e7f;
    const auto drawn = PagesOf(DiagramPages(diagram, "d", Normal, paper, measure, ','));
    for (const char* text : {" 0 --0,25 ", " -0,25 - 0 ", "  0 - 1234,568 ", "  1234,568 - 1E+07 ",
                             "(white block =  1E+07 - and more...)"})
        textOf(drawn[0], text);
}

// Each item is as far to the right as the texts before it are wide; at 8 points a character has 80 twips.
TEST_F(DiagramPrinting, LegendItemsStandInARow) {
    const double widths[] = {0, 9 * 80, 9 * 80 + 12 * 80, 9 * 80 + 24 * 80, 9 * 80 + 36 * 80};
    const double sides[] = {255, 155, 375};
    for (const auto type : {Greyscale, Dots, Classic})
        for (std::int16_t size = Normal; size <= Large; ++size) {
            const double cell = sides[size - 1];
            const double line = 4 * cell + 250;
            const Drawing page = pages(whiteDiagram(3, type), size)[0];
            const char* texts[] = {" 0 - 1.5 ", "  1.5 - 2.5 ", "  2.5 - 3.5 ", "  3.5 - 4.5 ",
                                   "(white block =  4.5 - and more...)"};
            for (int item = 1; item <= 5; ++item) {
                const double centre =
                    75 + (item - 1) * (cell + 50) + widths[item - 1] + (type == Classic ? 0 : 60);
                EXPECT_TRUE(near(textOf(page, texts[item - 1]).At, {centre + cell / 2, line - cell / 2}))
                    << type << " " << size << " " << item;
            }
        }
}

TEST_F(DiagramPrinting, LegendSymbolsOfGreyscale) {
    const Drawing page = pages(whiteDiagram(3, Greyscale))[0];
    const double line = 4 * 255 + 250;
    const double centres[] = {135, 135 + 305 + 720, 135 + 610 + 1680, 135 + 915 + 2640};
    const int shades[] = {25, 100, 170, 225};
    const auto filled = allOf<drawing::FilledBox>(page);
    ASSERT_EQ(filled.size(), 4u); // the last item has no symbol
    for (std::size_t item = 0; item < 4; ++item) {
        const Point from{centres[item] - 127.5, line - 127.5};
        const Point to{centres[item] + 127.5, line + 127.5};
        EXPECT_EQ(filled[item], (drawing::FilledBox{from, to, GreyOf(shades[item])}));
        EXPECT_TRUE(hasBox(page, from, to));
    }
    EXPECT_EQ(allOf<drawing::Box>(page).size(), 4u + 3u + 4u + 9u + 4u);
}

TEST_F(DiagramPrinting, LegendSymbolsOfDots) {
    const Drawing page = pages(whiteDiagram(3, Dots))[0];
    const double line = 4 * 255 + 250;
    EXPECT_EQ(allOf<drawing::Disc>(page),
              (std::vector<drawing::Disc>{{{135, line}, 102, Black},
                                          {{135 + 305 + 720, line}, 63, Black},
                                          {{135 + 610 + 1680, line}, 42, Black},
                                          {{135 + 915 + 2640, line}, 21, Black}}));
    EXPECT_TRUE(hasBox(page, {7.5, line - 127.5}, {262.5, line + 127.5}));
    EXPECT_EQ(allOf<drawing::Box>(page).size(), 4u + 3u + 4u + 9u + 4u);
}

TEST_F(DiagramPrinting, LegendSymbolsOfClassic) {
    const Drawing page = pages(whiteDiagram(3, Classic))[0];
    const double line = 4 * 255 + 250;
    Canvas canvas(0, 0);
    canvas.Pen.Width = 1;
    const Point centres[] = {
        {75, line}, {75 + 305 + 720, line}, {75 + 610 + 1680, line}, {75 + 915 + 2640, line}};
    const int shades[] = {25, 100, 170, 225};
    for (std::size_t item = 0; item < 4; ++item) PrintPic(canvas, centres[item], 255, shades[item]);
    // All operations of the symbols stand in the drawing, in their order.
    auto operations = page.Operations;
    std::size_t found = 0;
    const auto wanted = canvas.Take().Operations;
    for (const auto& operation : operations)
        if (found < wanted.size() && operation == wanted[found]) ++found;
    EXPECT_EQ(found, wanted.size());
    EXPECT_EQ(allOf<drawing::Box>(page).size(), 4u + 3u + 4u + 3u); // no box around a symbol
}

TEST_F(DiagramPrinting, DescriptionStandsBelowTheLegend) {
    const Drawing page = pages(whiteDiagram(3, Dots), Normal, "Three towns")[0];
    const double y = 4 * 255 + 250 + 160; // a line of 8 points is 160 high
    const auto heading = textOf(page, "Diagram: ");
    EXPECT_EQ(heading.At, (Point{25, y}));
    EXPECT_EQ(heading.With, (drawing::Font{"Courier New", 8, true}));
    const auto text = textOf(page, "Three towns");
    EXPECT_EQ(text.At, (Point{25 + 9 * 96, y}));
    EXPECT_EQ(text.With, (drawing::Font{"Courier New", 8, false}));
}

TEST_F(DiagramPrinting, EndingStandsOnTheLastPageOfTheFirstPageColumn) {
    const auto drawn = pages(whiteDiagram(70, Dots), Normal, "Seventy");
    for (std::size_t page = 0; page < drawn.size(); ++page) {
        const auto texts = allOf<drawing::Text>(drawn[page]);
        const bool here = std::any_of(texts.begin(), texts.end(),
                                      [](const auto& text) { return text.Content == "Seventy"; });
        EXPECT_EQ(here, page == 2) << page;
    }
    EXPECT_EQ(textOf(drawn[2], " 0 - 1.5 ").At.Y, 11 * 255 + 250 - 127.5); // 10 rows and one
}

TEST_F(DiagramPrinting, PageIsAsLargeAsThePaper) {
    EXPECT_EQ(print(whiteDiagram(3, Dots), Normal).Width, 11500);
    EXPECT_EQ(print(whiteDiagram(3, Dots), Normal).Height, 16440);
}

} // namespace
} // namespace dorvan::test
