#include "session/status_bar.h"
#include "view/diagram_session.h"
#include "view/diagram_zoom.h"

#include <gtest/gtest.h>

#include <vector>

namespace dorvan::test {
namespace {

constexpr DiagramBoxes Boxes{.Count = 250, .Side = 255};

DiagramRoom Pixels(double width, double height, double ratio = 1) {
    return {width * 15, height * 15, 15 / ratio};
}

TEST(DiagramZoom, StepsFromOnePixelABoxToFourTimesTheTileAndStopsThere) {
    DiagramZoom zoom;
    std::vector<double> seen;
    for (int step = 0; step < 12; ++step) zoom.Out();
    EXPECT_EQ(zoom.Percent(), 6);
    for (int step = 0; step < 13; ++step) {
        seen.push_back(zoom.Percent());
        zoom.In();
    }
    EXPECT_EQ(seen, (std::vector<double>{6, 12, 18, 25, 35, 50, 70, 100, 150, 200, 300, 400, 400}));
    zoom.Out();
    EXPECT_EQ(zoom.Percent(), 300);
    zoom.Actual();
    EXPECT_EQ(zoom.Percent(), 100);
}

TEST(DiagramZoom, FitsAsManyWholePixelsABoxAsTheNarrowerSideHas) {
    EXPECT_DOUBLE_EQ(FittingPercent(Boxes, Pixels(1200, 633)), 2 / 17.0 * 100);
    EXPECT_DOUBLE_EQ(FittingPercent(Boxes, Pixels(633, 1200)), 2 / 17.0 * 100);
    EXPECT_DOUBLE_EQ(FittingPercent(Boxes, Pixels(750, 750)), 3 / 17.0 * 100);
    EXPECT_DOUBLE_EQ(FittingPercent(Boxes, Pixels(749, 750)), 2 / 17.0 * 100);
    // On a screen of twice the density half pixels are whole ones.
    EXPECT_DOUBLE_EQ(FittingPercent(Boxes, Pixels(633, 633, 2)), 2.5 / 17 * 100);
}

TEST(DiagramZoom, FitsNoSmallerThanAPixelABoxAndNoLargerThanTheTiles) {
    EXPECT_DOUBLE_EQ(FittingPercent(Boxes, Pixels(100, 100)), 1 / 17.0 * 100);
    EXPECT_DOUBLE_EQ(FittingPercent(Boxes, Pixels(-5, 100)), 1 / 17.0 * 100);
    EXPECT_EQ(FittingPercent({.Count = 3, .Side = 255}, Pixels(1000, 1000)), 100);
    EXPECT_EQ(FittingPercent({}, Pixels(1000, 1000)), 100);
}

TEST(DiagramZoom, FitsEveryRoomToComeUntilAnotherStepIsChosen) {
    DiagramZoom zoom;
    zoom.SetRoom(Pixels(600, 600), Boxes);
    EXPECT_EQ(zoom.Percent(), 100) << "only after Fit";
    zoom.Fit(Boxes);
    EXPECT_TRUE(zoom.Fits());
    EXPECT_DOUBLE_EQ(zoom.Percent(), 2 / 17.0 * 100);
    zoom.SetRoom(Pixels(1100, 1100), Boxes);
    EXPECT_DOUBLE_EQ(zoom.Percent(), 4 / 17.0 * 100);
    zoom.In();
    EXPECT_FALSE(zoom.Fits());
    EXPECT_EQ(zoom.Percent(), 25);
    zoom.SetRoom(Pixels(600, 600), Boxes);
    EXPECT_EQ(zoom.Percent(), 25);
    zoom.Fit(Boxes);
    zoom.Out();
    EXPECT_EQ(zoom.Percent(), 6);
    zoom.Fit(Boxes);
    zoom.Actual();
    EXPECT_FALSE(zoom.Fits());
}

TEST(DiagramZoom, OfAWindowTellsItselfInTheStatusLineAndChangesNothingOfTheDiagram) {
    DiagramSession at;
    auto& window = at.Open(100);
    at.session.DiagramStates.at(1).Dirty = false;
    window.TakeRoom(Pixels(600, 450));
    window.ZoomFit();
    EXPECT_DOUBLE_EQ(window.Zoom.Percent(), 4 / 17.0 * 100);
    EXPECT_EQ(StatusText(at.session), "Zoom 24%");
    window.ZoomIn();
    EXPECT_EQ(StatusText(at.session), "Zoom 25%");
    window.ZoomOut();
    EXPECT_EQ(StatusText(at.session), "Zoom 18%");
    window.ZoomActual();
    EXPECT_EQ(StatusText(at.session), "Zoom 100%");
    EXPECT_FALSE(at.session.DiagramStates.at(1).Dirty);
    EXPECT_EQ(window.Siatka.ColumnWidth(2), 255);
    EXPECT_EQ(window.Siatka.RowHeight(1), 255);
}

TEST(DiagramZoom, OfADiagramWithoutRecordsStaysAt100) {
    DiagramSession at;
    auto& window = at.Open(0);
    window.TakeRoom(Pixels(600, 450));
    window.ZoomFit();
    EXPECT_EQ(window.Zoom.Percent(), 100);
}

} // namespace
} // namespace dorvan::test
