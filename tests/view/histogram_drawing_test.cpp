#include "view/histogram_drawing.h"

#include "diagram_session.h"
#include "support/drawings.h"
#include "support/expect_failure.h"

#include <gmock/gmock.h>

namespace dorvan::test {
namespace {

using namespace drawing;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

Array1<float> limits(float first, float second, float third, float fourth) {
    Array1<float> result(4);
    result.Cells() = {first, second, third, fourth};
    return result;
}

// Three records with the distances 1, 2 and 3.
DiagramDocument threeRecords() {
    DiagramDocument document = SampleDocument(3);
    const float distances[] = {0, 1, 2, 1, 0, 3, 2, 3, 0};
    document.Matrix.Cells().assign(std::begin(distances), std::end(distances));
    return document;
}

TEST(SectionCounts, CountOrderedPairsOfDifferentRecords) {
    const SectionCounts counts = CountSections(threeRecords(), limits(1.5f, 2.5f, 3.5f, 4.5f));
    EXPECT_EQ(counts.PairCount, 6);
    EXPECT_THAT(counts.SectionCount, ElementsAre(2, 2, 2, 0, 0));
}

TEST(SectionCounts, DistanceEqualToALimitCountsInTheSectionAboveIt) {
    EXPECT_THAT(CountSections(threeRecords(), limits(1, 2, 3, 4)).SectionCount, ElementsAre(0, 2, 2, 2, 0));
    EXPECT_THAT(CountSections(threeRecords(), limits(0, 0, 1, 3)).SectionCount, ElementsAre(0, 0, 0, 4, 2));
}

TEST(SectionCounts, NegativeDistanceIsInNoSectionButAPair) {
    DiagramDocument document = threeRecords();
    document.Matrix(1, 2) = document.Matrix(2, 1) = NaValue;
    const SectionCounts counts = CountSections(document, limits(1.5f, 2.5f, 3.5f, 4.5f));
    EXPECT_EQ(counts.PairCount, 6);
    EXPECT_THAT(counts.SectionCount, ElementsAre(0, 2, 2, 0, 0));
}

TEST(SectionCounts, LimitsBelowZeroLeaveNegativeDistancesToTheLaterSections) {
    DiagramDocument document = threeRecords();
    document.Matrix(1, 2) = document.Matrix(2, 1) = -2;
    EXPECT_THAT(CountSections(document, limits(-3, -1, 2, 4)).SectionCount, ElementsAre(0, 2, 0, 4, 0));
}

TEST(SectionCounts, FirstSectionThatHoldsCounts) {
    // Below limit 1, although also above the limits 2 to 4.
    EXPECT_THAT(CountSections(threeRecords(), limits(5, 1, 1, 1)).SectionCount, ElementsAre(6, 0, 0, 0, 0));
}

TEST(SectionCounts, RunningSums) {
    SectionCounts counts{6, {2, 2, 1, 0, 1}};
    counts.Accumulate();
    EXPECT_THAT(counts.SectionCount, ElementsAre(2, 4, 5, 5, 6));
    EXPECT_EQ(counts.PairCount, 6);
}

TEST(SectionCounts, CountsOf181RecordsFitAndOf182DoNot) {
    EXPECT_EQ(CountSections(SampleDocument(181), limits(1, 2, 3, 4)).PairCount, 181 * 180);
    EXPECT_FAILURE(Failure::Overflow, CountSections(SampleDocument(182), limits(1, 2, 3, 4)));
}

TEST(BarHeights, AreSharesOf2040TiesToEven) {
    EXPECT_THAT(BarHeights({6, {6, 3, 2, 1, 0}}), ElementsAre(2040, 1020, 680, 340, 0));
    EXPECT_THAT(BarHeights({16, {1, 3, 5, 7, 0}}), ElementsAre(128, 382, 638, 892, 0)); // 127.5, 382.5, ...
}

TEST(BarHeights, OfNoPairsEndTheRun) { EXPECT_FAILURE(Failure::Overflow, BarHeights({0, {}})); }

Drawing chart(std::array<std::int16_t, 5> heights, bool cumulative = false) {
    FixedMeasure measure;
    return HistogramDrawing(heights, cumulative, measure);
}

TEST(HistogramDrawing, HasTheSizeOfItsPicture) {
    EXPECT_EQ(chart({}).Width, 4095);
    EXPECT_EQ(chart({}).Height, 2655);
}

TEST(HistogramDrawing, BarsStandOnTheBaseLine) {
    const Drawing drawing = chart({100, 200, 300, 400, 500});
    EXPECT_THAT(operationsOf<FilledBox>(drawing),
                ElementsAre(FilledBox{{720, 2060}, {1095, 2160}, 0x404040},
                            FilledBox{{1320, 1960}, {1695, 2160}, 0x808080},
                            FilledBox{{1920, 1860}, {2295, 2160}, 0xC0C0C0},
                            FilledBox{{2520, 1760}, {2895, 2160}, 0xE0E0E0}));
    EXPECT_THAT(operationsOf<Box>(drawing), ElementsAre(Box{{2520, 1760}, {2895, 2160}, {0xC0C0C0, 15}},
                                                        Box{{3120, 1660}, {3495, 2160}, {Black, 15}}));
}

TEST(HistogramDrawing, EmptyBarsAreNotDrawn) {
    EXPECT_THAT(operationsOf<FilledBox>(chart({})), IsEmpty());
    EXPECT_THAT(operationsOf<Box>(chart({})), IsEmpty());
}

TEST(HistogramDrawing, AxesWithArrowHeadsAndTicks) {
    EXPECT_THAT(operationsOf<Line>(chart({1, 1, 1, 1, 1})),
                ElementsAre(Line{{480, 120}, {480, 2160}, {}}, Line{{480, 120}, {360, 240}, {}},
                            Line{{480, 120}, {600, 240}, {}}, Line{{480, 2160}, {3840, 2160}, {}},
                            Line{{3840, 2160}, {3720, 2040}, {}}, Line{{3840, 2160}, {3720, 2280}, {}},
                            Line{{360, 630}, {600, 630}, {}}, Line{{360, 1140}, {600, 1140}, {}},
                            Line{{360, 1650}, {600, 1650}, {}}));
}

TEST(HistogramDrawing, LabelsOfTheAxisAndOfTheBars) {
    const Font own{"", 8, false};
    // 80 twips a character in the measure of the tests: the names stand in the middle of 375.
    EXPECT_THAT(operationsOf<Text>(chart({})),
                ElementsAre(Text{{120, 120}, "%", own, Black}, Text{{120, 480}, "75", own, Black},
                            Text{{120, 980}, "50", own, Black}, Text{{120, 1480}, "25", own, Black},
                            Text{{210, 2000}, "0", own, Black}, Text{{867.5, 2280}, "I", own, Black},
                            Text{{1427.5, 2280}, "II", own, Black}, Text{{1987.5, 2280}, "III", own, Black},
                            Text{{2627.5, 2280}, "IV", own, Black}, Text{{3267.5, 2280}, "V", own, Black}));
}

TEST(HistogramDrawing, DotsMarkACumulativeChartAndFollowNoBar) {
    EXPECT_THAT(operationsOf<Disc>(chart({1, 2, 3, 4, 5})), IsEmpty());
    for (const std::int16_t height : {0, 2040}) {
        const auto dots = operationsOf<Disc>(chart({height, height, height, height, height}, true));
        EXPECT_THAT(dots, ElementsAre(Disc{{900, 1752}, 60, 0xFF0000}, Disc{{1500, 1344}, 60, 0xFF0000},
                                      Disc{{2100, 936}, 60, 0xFF0000}, Disc{{2700, 528}, 60, 0xFF0000},
                                      Disc{{3300, 120}, 60, 0xFF0000}));
    }
}

} // namespace
} // namespace dorvan::test
