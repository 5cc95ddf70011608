#include "view/linear_drawing.h"

#include "diagram_session.h"
#include "support/drawings.h"
#include "support/expect_failure.h"

#include <gmock/gmock.h>

namespace dorvan::test {
namespace {

using namespace drawing;
using ::testing::Contains;
using ::testing::ElementsAre;

constexpr Colour Grey = 0x808080;

// Records whose following distances are as told.
DiagramDocument follow(const std::vector<float>& distances) {
    const int count = int(distances.size()) + 1;
    DiagramDocument document = SampleDocument(count);
    document.Matrix = FloatTable(count, count, 1e6f); // what is not beside the diagonal does not count
    for (int k = 1; k < count; ++k) document.Matrix(k, k + 1) = distances[std::size_t(k - 1)];
    return document;
}

Drawing graph(const std::vector<float>& distances, char separator = '.') {
    FixedMeasure measure;
    return LinearGraphDrawing(follow(distances), measure, separator);
}

std::vector<Disc> pointsOf(const Drawing& drawing) {
    const auto discs = operationsOf<Disc>(drawing);
    return {discs.begin() + 3, discs.end()}; // behind the end marks of the axes
}

TEST(LinearGraph, FrameOfAxesMarksAndLabels) {
    const Drawing drawing = graph({1});
    EXPECT_EQ(drawing.Width, 5055);
    EXPECT_EQ(drawing.Height, 3015);
    const Font own{"", 8, false};
    const std::vector<Operation> frame(drawing.Operations.begin(), drawing.Operations.begin() + 8);
    EXPECT_THAT(
        frame,
        ElementsAre(
            Operation(Line{{240, 360}, {240, 2640}, {}}), Operation(Line{{240, 2625}, {4800, 2625}, {}}),
            Operation(Disc{{255, 410}, 60, Black}), Operation(Disc{{260, 2630}, 60, Black}),
            Operation(Disc{{4740, 2620}, 60, Black}), Operation(Text{{80, 2400}, "0", own, Black}),
            Operation(Text{{240, 2760}, "1", own, Black}), Operation(Text{{4680, 2760}, "N", own, Black})));
}

TEST(LinearGraph, TwoRecordsAreOnePointAtFullHeight) {
    const Drawing drawing = graph({0.5});
    EXPECT_THAT(pointsOf(drawing), ElementsAre(Disc{{240, 360}, 30, Grey}));
    EXPECT_EQ(drawing.Operations.size(), 8U + 1 + 1);
    EXPECT_EQ(drawing.Operations.back(), Operation(Text{{25, 25}, "0.50", {"", 6, false}, Black}));
}

TEST(LinearGraph, PointsAreJoinedInTheOrderOfTheDiagram) {
    const Drawing drawing = graph({1, 4, 2});
    const double step = 4460.0 / 3;
    const Point points[] = {{240, 2640 - 570}, {240 + step, 360}, {240 + 2 * step, 1500}};
    const std::vector<Operation> plot(drawing.Operations.begin() + 8, drawing.Operations.end() - 1);
    EXPECT_THAT(plot, ElementsAre(Operation(Disc{points[0], 30, Grey}),
                                  Operation(Line{points[0], points[1], {Grey, 15}}),
                                  Operation(Disc{points[1], 30, Grey}),
                                  Operation(Line{points[1], points[2], {Grey, 15}}),
                                  Operation(Disc{points[2], 30, Grey})));
}

TEST(LinearGraph, NegativeDistanceLiesBelowTheAxis) {
    EXPECT_EQ(pointsOf(graph({-1, 2}))[0].Centre, (Point{240, 2640 + 1140}));
}

TEST(LinearGraph, TicksAndNumbersAtEveryTenthPlace) {
    const Drawing drawing = graph(std::vector<float>(20, 1.0f)); // 21 records
    const double step = 4460.0 / 20;
    const Font small{"", 6, false};
    const std::vector<Operation> ticks(drawing.Operations.end() - 5, drawing.Operations.end());
    EXPECT_THAT(ticks,
                ElementsAre(Operation(Line{{240 + 9 * step, 2615}, {240 + 9 * step, 2665}, {Black, 30}}),
                            Operation(Text{{240 + 9 * step - 60, 2760}, "10", small, Black}),
                            Operation(Line{{240 + 19 * step, 2615}, {240 + 19 * step, 2665}, {Black, 30}}),
                            Operation(Text{{240 + 19 * step - 60, 2760}, "20", small, Black}),
                            Operation(Text{{25, 25}, "1.00", small, Black})));
}

TEST(LinearGraph, NoTickForTenRecords) {
    const Drawing drawing = graph(std::vector<float>(9, 1.0f));
    EXPECT_EQ(drawing.Operations.size(), 8U + 9 + 8 + 1);
    EXPECT_EQ(graph(std::vector<float>(10, 1.0f)).Operations.size(), 8U + 10 + 9 + 2 + 1);
}

TEST(LinearGraph, LabelShowsTheLargestWithTwoDecimals) {
    const auto label = [](const Drawing& drawing) { return operationsOf<Text>(drawing).back().Content; };
    EXPECT_EQ(label(graph({1, 1234.567f, 3})), "1234.57");
    EXPECT_EQ(label(graph({0.5f}, ',')), "0,50");
}

TEST(LinearGraph, NothingToDivideByEndsTheRun) {
    EXPECT_FAILURE(Failure::DivisionByZero, graph({0, 0}));
    EXPECT_FAILURE(Failure::DivisionByZero, graph({-1, 0}));
    EXPECT_EQ(pointsOf(graph({-2, -1}))[0].Centre.Y, 2640 - 2280 * 2); // the largest may be negative
}

TEST(LinearGraph, OneRecordHasNoNeighbour) { EXPECT_FAILURE(Failure::SubscriptOutOfRange, graph({})); }

} // namespace
} // namespace dorvan::test
