#include "view/bitmap_drawing.h"

#include "diagram_session.h"
#include "support/drawings.h"
#include "support/expect_failure.h"
#include "view/legend_texts.h"

#include <gmock/gmock.h>

namespace dorvan::test {
namespace {

using namespace drawing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

constexpr Font Legend{"", 8, true};
constexpr Pen Thin{Black, 15};

// A diagram of that many records and type whose cells are all of one class.
DiagramDocument documentOf(int count, std::int16_t type, std::int16_t cellClass) {
    DiagramDocument document = SampleDocument(count);
    document.DiagType = type;
    document.Classes = Array2<std::int16_t>(count, count, cellClass);
    document.SectionLimits.Cells() = {1.5f, 2.25f, 3.125f, 4.0f};
    return document;
}

Drawing drawn(const DiagramDocument& document, char separator = '.') {
    FixedMeasure measure;
    return BitmapDrawing(document, measure, separator);
}

// What stands in the cells: the operations behind numbers and names and before the box of the whole.
std::vector<Operation> cellsOf(const Drawing& drawing, int count, double cell) {
    const Operation whole = Box{{0, 0}, {(count + 5) * cell, (count + 1) * cell}, Thin};
    const auto begin = drawing.Operations.begin() + 2 * (2 * count + 1) + 2 * count + 1;
    return {begin, std::find(begin, drawing.Operations.end(), whole)};
}

std::vector<Operation> legendOf(const Drawing& drawing, int count, double cell) {
    const Operation whole = Box{{0, 0}, {(count + 5) * cell, (count + 1) * cell}, Thin};
    auto begin = std::find(drawing.Operations.begin(), drawing.Operations.end(), whole);
    EXPECT_NE(begin, drawing.Operations.end());
    return {begin + 1, drawing.Operations.end()};
}

TEST(LegendTexts, AreOfTwoToThreeDecimals) {
    Array1<float> limits(4);
    limits.Cells() = {1.5f, 2.25f, 3.125f, 4.0f};
    EXPECT_THAT(LegendTexts(limits, '.'),
                ElementsAre("0 - 1.50", "1.50 - 2.25", "2.25 - 3.125", "3.125 - 4.00", ">= 4.00"));
    EXPECT_EQ(LegendTexts(limits, ',')[1], "1,50 - 2,25");
}

TEST(BitmapDrawing, SizeFollowsTheCellsAndHasALeastWidth) {
    for (const auto& [count, width, height] : {std::tuple{2, 7900, 1800},
                                               {5, 7900, 2700},
                                               {21, 8150, 7500},
                                               {100, 31850, 31200},
                                               {101, 26850, 26250},
                                               {250, 64100, 63500}}) {
        const Drawing drawing = drawn(documentOf(count, 1, 1));
        EXPECT_EQ(drawing.Width, width) << count;
        EXPECT_EQ(drawing.Height, height) << count;
    }
}

TEST(BitmapDrawing, NumbersHeaderAndNamesStandFirst) {
    DiagramDocument document = documentOf(2, 1, 1);
    document.RecordNames(2) = "a name of twenty sig";
    const Drawing drawing = drawn(document);
    const Font own{"", 8, false};
    const std::vector<Operation> edges(drawing.Operations.begin(), drawing.Operations.begin() + 15);
    EXPECT_THAT(
        edges,
        ElementsAre(
            Operation(Box{{0, 0}, {300, 300}, Thin}), Operation(Box{{0, 300}, {300, 600}, Thin}),
            Operation(Text{{25, 310}, "1", own, Black}), Operation(Box{{0, 600}, {300, 900}, Thin}),
            Operation(Text{{25, 610}, "2", own, Black}), Operation(Box{{1500, 0}, {1800, 300}, Thin}),
            Operation(Text{{1525, 10}, "1", own, Black}), Operation(Box{{1800, 0}, {2100, 300}, Thin}),
            Operation(Text{{1825, 10}, "2", own, Black}), Operation(Box{{300, 0}, {1500, 300}, Thin}),
            Operation(Text{{325, 10}, "Name", own, Black}), Operation(Box{{300, 300}, {1500, 600}, Thin}),
            Operation(Text{{325, 310}, "A", own, Black}), Operation(Box{{300, 600}, {1500, 900}, Thin}),
            Operation(Text{{325, 610}, "a name of tw", own, Black})));
}

TEST(BitmapDrawing, SmallCellsAndLettersFromMoreThanAHundredRecordsOn) {
    for (const auto& [count, size, cell] : {std::tuple{100, 8.0, 300.0}, {101, 5.0, 250.0}}) {
        const Drawing drawing = drawn(documentOf(count, 1, 1));
        EXPECT_THAT(drawing.Operations,
                    Contains(Operation(Text{{25, cell + 10}, "1", {"", size, false}, Black})));
        EXPECT_THAT(drawing.Operations, Contains(Operation(Box{{5 * cell, 0}, {6 * cell, cell}, Thin})));
    }
}

TEST(BitmapDrawing, GreyscaleCellsAreFilledAndOutlined) {
    for (const auto& [cellClass, grey] : {std::pair{2, 225}, {3, 170}, {4, 100}, {5, 25}}) {
        const Drawing drawing = drawn(documentOf(1, 1, static_cast<std::int16_t>(cellClass)));
        EXPECT_THAT(cellsOf(drawing, 1, 300),
                    ElementsAre(Operation(FilledBox{{1500, 300}, {1800, 600}, GreyOf(grey)}),
                                Operation(Box{{1500, 300}, {1800, 600}, Thin})));
    }
}

TEST(BitmapDrawing, GreyscaleCellOfClassOneIsAnOutlineOnly) {
    EXPECT_THAT(cellsOf(drawn(documentOf(1, 1, 1)), 1, 300),
                ElementsAre(Operation(Box{{1500, 300}, {1800, 600}, Thin})));
}

TEST(BitmapDrawing, DotsAreDiscsInOutlines) {
    for (const auto& [cellClass, large, small] :
         {std::tuple{2, 22, 20}, {3, 52, 45}, {4, 80, 70}, {5, 120, 105}}) {
        EXPECT_THAT(cellsOf(drawn(documentOf(1, 2, static_cast<std::int16_t>(cellClass))), 1, 300),
                    ElementsAre(Operation(Disc{{1650, 450}, double(large), Black}),
                                Operation(Box{{1500, 300}, {1800, 600}, Thin})));
        const auto cells = cellsOf(drawn(documentOf(101, 2, static_cast<std::int16_t>(cellClass))), 101, 250);
        EXPECT_EQ(cells[0], Operation(Disc{{1375, 375}, double(small), Black}));
        EXPECT_EQ(cells[1], Operation(Box{{1250, 250}, {1500, 500}, Thin}));
    }
}

TEST(BitmapDrawing, DotsOfClassOneAreOutlinesOnly) {
    EXPECT_THAT(cellsOf(drawn(documentOf(1, 2, 1)), 1, 300),
                ElementsAre(Operation(Box{{1500, 300}, {1800, 600}, Thin})));
}

TEST(BitmapDrawing, DiscsOfMissingValuesAreFull) {
    DiagramDocument document = documentOf(1, 2, 5);
    const Drawing plain = drawn(document);
    document.RecordHasNA(1) = true;
    EXPECT_TRUE(sameDrawing(drawn(document), plain));
}

TEST(BitmapDrawing, ClassicCellsAreSymbolsWithoutOutline) {
    EXPECT_THAT(cellsOf(drawn(documentOf(1, 3, 5)), 1, 300),
                ElementsAre(Operation(FilledBox{{1545, 555}, {1755, 345}, Black})));
    EXPECT_TRUE(cellsOf(drawn(documentOf(1, 3, 1)), 1, 300).empty());
    const auto small = cellsOf(drawn(documentOf(101, 3, 5)), 101, 250);
    EXPECT_EQ(small[0], Operation(FilledBox{{1375 - 87.5, 375 + 87.5}, {1375 + 87.5, 375 - 87.5}, Black}));
}

TEST(BitmapDrawing, UnclassifiedCellsShowAQuestionMark) {
    const Operation mark = Text{{1525, 325}, "?", {"", 8, false}, Black};
    const Operation outline = Box{{1500, 300}, {1800, 600}, Thin};
    EXPECT_THAT(cellsOf(drawn(documentOf(1, 1, 0)), 1, 300), ElementsAre(outline, mark));
    EXPECT_THAT(cellsOf(drawn(documentOf(1, 2, 0)), 1, 300), ElementsAre(outline, mark));
    EXPECT_THAT(cellsOf(drawn(documentOf(1, 3, 0)), 1, 300), ElementsAre(mark));
}

TEST(BitmapDrawing, FirstIndexOfTheClassesRunsAlongTheRow) {
    DiagramDocument document = documentOf(2, 1, 1);
    document.Classes(2, 1) = 5;
    EXPECT_THAT(operationsOf<FilledBox>(drawn(document)),
                Contains(FilledBox{{1800, 300}, {2100, 600}, GreyOf(25)}));
}

TEST(BitmapDrawing, CellOfClassSixEndsTheRun) {
    for (const std::int16_t type : {1, 2, 3}) {
        EXPECT_FAILURE(Failure::SubscriptOutOfRange, drawn(documentOf(2, type, 6)));
        EXPECT_FAILURE(Failure::SubscriptOutOfRange, drawn(documentOf(2, type, -1)));
    }
}

// Widths of the legend's texts by the measure of the tests: 10 x 8 x 1.5 = 120 twips a character.
constexpr double second = 25 + 300 + 150 + 8 * 120 + 150;
constexpr double third = second + 300 + 150 + 11 * 120 + 150;
constexpr double fourth = third + 300 + 150 + 12 * 120 + 150;
constexpr double fifth = fourth + 300 + 150 + 12 * 120 + 150;
constexpr double swatches[] = {25, second, third, fourth, fifth};

TEST(BitmapDrawing, LegendOfDotsMatchesItsTexts) {
    std::vector<Operation> expected;
    const char* texts[] = {"0 - 1.50", "1.50 - 2.25", "2.25 - 3.125", "3.125 - 4.00", ">= 4.00"};
    const double radii[] = {120, 80, 52, 22, 0};
    for (int k = 0; k < 5; ++k) {
        expected.push_back(Disc{{swatches[k] + 150, 900 + 150}, radii[k], Black});
        expected.push_back(Box{{swatches[k], 900}, {swatches[k] + 300, 1200}, Thin});
        expected.push_back(Text{{swatches[k] + 450, 1000}, texts[k], Legend, Black});
    }
    EXPECT_EQ(legendOf(drawn(documentOf(1, 2, 1)), 1, 300), expected);
}

TEST(BitmapDrawing, LegendOfGreyscaleRunsAgainstItsTexts) {
    const auto legend = legendOf(drawn(documentOf(1, 1, 1)), 1, 300);
    ASSERT_EQ(legend.size(), 15U);
    const int greys[] = {255, 225, 170, 100, 25};
    for (std::size_t k = 0; k < 5; ++k) {
        const Point corner{swatches[k], 900};
        EXPECT_EQ(legend[3 * k], Operation(FilledBox{corner, {corner.X + 300, 1200}, GreyOf(greys[k])}));
        EXPECT_EQ(legend[3 * k + 1], Operation(Box{corner, {corner.X + 300, 1200}, Thin}));
    }
}

TEST(BitmapDrawing, LegendOfClassicRunsAgainstItsTexts) {
    const auto legend = legendOf(drawn(documentOf(1, 3, 1)), 1, 300);
    ASSERT_EQ(legend.size(), 5U * 2 + 0 + 4 + 2 + 3 + 1);
    EXPECT_EQ(legend[0], Operation(Box{{25, 900}, {325, 1200}, Thin})); // nothing for the class 1
    EXPECT_EQ(legend[1], Operation(Text{{475, 1000}, "0 - 1.50", Legend, Black}));
    EXPECT_EQ(legend[2], Operation(Box{{second + 45, 1155}, {second + 255, 945}, Thin}));
    EXPECT_EQ(legend[17], Operation(FilledBox{{fifth + 45, 1155}, {fifth + 255, 945}, Black}));
    EXPECT_EQ(legend[18], Operation(Box{{fifth, 900}, {fifth + 300, 1200}, Thin}));
    EXPECT_EQ(legend[19], Operation(Text{{fifth + 450, 1000}, ">= 4.00", Legend, Black}));
}

TEST(BitmapDrawing, LegendOfSmallCells) {
    const auto legend = legendOf(drawn(documentOf(101, 2, 1)), 101, 250);
    ASSERT_EQ(legend.size(), 15U);
    const double y = 103 * 250;
    EXPECT_EQ(legend[0], Operation(Disc{{150, y + 125}, 105, Black}));
    EXPECT_EQ(legend[1], Operation(Box{{25, y}, {275, y + 250}, Thin}));
    EXPECT_EQ(legend[2], Operation(Text{{425, y + 83}, "0 - 1.50", Legend, Black})); // 83.33 rounded
    EXPECT_EQ(legend[5], Operation(Text{{425 + 960 + 150 + 400, y + 83}, "1.50 - 2.25", Legend, Black}));
}

TEST(BitmapDrawing, WidthsOfTheLegendAreRounded) {
    FixedMeasure measure;
    measure.twipsPerPoint = 10.043; // 8 characters are 964.128 twips wide
    const auto legend = legendOf(BitmapDrawing(documentOf(1, 2, 1), measure, '.'), 1, 300);
    EXPECT_EQ(legend[4], Operation(Box{{25 + 600 + 964, 900}, {25 + 900 + 964, 1200}, Thin}));
}

TEST(BitmapDrawing, LimitsAreShownWithTheSeparator) {
    EXPECT_THAT(operationsOf<Text>(drawn(documentOf(1, 2, 1), ',')),
                Contains(::testing::Field(&Text::Content, ">= 4,00")));
}

TEST(BitmapDrawing, TypeThatIsNoneDrawsNoSymbol) {
    const auto drawing = drawn(documentOf(1, 0, 5));
    EXPECT_TRUE(cellsOf(drawing, 1, 300).empty());
    EXPECT_EQ(legendOf(drawing, 1, 300).size(), 5U); // the texts
}

} // namespace
} // namespace dorvan::test
