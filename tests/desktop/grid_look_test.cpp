#include "desktop/grid_widget.h"
#include "desktop/tile_pictures.h"
#include "view/tiles.h"

#include <QApplication>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace dorvan::test {

namespace {

// Labels in the columns 0 and 1, pictures or texts behind.
class GridLookTest : public ::testing::Test {
protected:
    GridLookTest() {
        grid.SetSize(40, 40);
        for (int place = 1; place < 40; ++place) {
            grid.SetText(place, 0, std::to_string(place));
            grid.SetText(place, 1, "name " + std::to_string(place));
            grid.SetText(0, place, std::to_string(100 + place));
        }
        grid.SetColumnWidth(1, 1800);
        grid.SetCurrent(1, 2);
    }

    void FillWith(Tile tile) {
        for (int row = 0; row < 40; ++row) grid.SetRowHeight(row, 255);
        for (int column = 2; column < 40; ++column) grid.SetColumnWidth(column, 255);
        for (int row = 1; row < 40; ++row)
            for (int column = 2; column < 40; ++column) grid.SetPicture(row, column, std::uint8_t(tile));
        grid.GridLines = false;
        widget.SetPictures(TilePictures());
    }

    void Show(QSize size = {500, 300}) {
        widget.SetLabelColumns(2);
        widget.resize(size);
        widget.Mirror();
        widget.show();
        QApplication::setActiveWindow(&widget);
        widget.setFocus();
        QCoreApplication::processEvents();
    }

    QImage Painted() { return widget.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    double Ratio() { return widget.devicePixelRatioF(); }
    QPoint Device(QPoint place) {
        return {int(std::lround(place.x() * Ratio())), int(std::lround(place.y() * Ratio()))};
    }
    // The greys of the pixels of a cell.
    std::multiset<int> GreysOf(const QImage& painted, int row, int column) {
        const QRect cell = widget.CellRect(row, column);
        const QRect pixels(Device(cell.topLeft()), Device(cell.bottomRight()));
        std::multiset<int> greys;
        for (int y = pixels.top(); y <= pixels.bottom(); ++y)
            for (int x = pixels.left(); x <= pixels.right(); ++x) greys.insert(qGray(painted.pixel(x, y)));
        return greys;
    }
    QColor CornerOf(const QImage& painted, int row, int column) {
        return painted.pixelColor(Device(widget.CellRect(row, column).topLeft()) + QPoint(1, 1));
    }

    Grid grid{"Siatka"};
    EventDispatch dispatch;
    GridWidget widget{grid, dispatch};
};

} // namespace

TEST_F(GridLookTest, NamesStayInSightSidewardsAndAClickOnOneIsAClickOnThatName) {
    Show();
    const QRect name = widget.CellRect(5, 1);
    widget.horizontalScrollBar()->setValue(10);
    EXPECT_EQ(widget.CellRect(5, 1), name);
    EXPECT_TRUE(widget.CellRect(5, 2).isEmpty());
    EXPECT_FALSE(widget.CellRect(5, 12).isEmpty());
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, name.center());
    EXPECT_EQ(grid.Row(), 5);
    EXPECT_EQ(grid.Column(), 1);
    EXPECT_EQ(widget.horizontalScrollBar()->value(), 10);
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.CellRect(6, 0).center());
    EXPECT_EQ(grid.Row(), 6);
    EXPECT_EQ(grid.Column(), 1) << "the numbers alone are fixed";
    QTest::keyClick(&widget, Qt::Key_Right);
    widget.Mirror();
    EXPECT_EQ(grid.Column(), 2);
    EXPECT_FALSE(widget.CellRect(6, 2).isEmpty());
}

TEST_F(GridLookTest, NamesScrollAwayWhereTheyWouldTakeMoreThanHalfOfTheRoom) {
    Show({300, 200});
    widget.horizontalScrollBar()->setValue(10);
    EXPECT_TRUE(widget.CellRect(5, 1).isEmpty());
    widget.resize(600, 200);
    QCoreApplication::processEvents();
    EXPECT_FALSE(widget.CellRect(5, 1).isEmpty());
    widget.horizontalScrollBar()->setValue(0);
    widget.resize(300, 200);
    QCoreApplication::processEvents();
    EXPECT_FALSE(widget.CellRect(5, 1).isEmpty()) << "where nothing is scrolled, they stay";
}

TEST_F(GridLookTest, ScrollingSidewardsWithNamesInSightPaintsTheSameAsPaintingAnew) {
    for (const bool pictures : {false, true}) {
        if (pictures) FillWith(Tile::picCircle04);
        Show();
        Painted();
        widget.horizontalScrollBar()->setValue(widget.horizontalScrollBar()->value() + 3);
        QCoreApplication::processEvents();
        const QImage scrolled = widget.grab().toImage();
        widget.viewport()->update();
        QCoreApplication::processEvents();
        EXPECT_EQ(scrolled, widget.grab().toImage());
    }
}

TEST_F(GridLookTest, TheHeadsOfTheCurrentRowAndColumnAreMarked) {
    Show();
    grid.SetCurrent(4, 3);
    widget.Mirror();
    const QImage painted = Painted();
    EXPECT_NE(CornerOf(painted, 4, 0), CornerOf(painted, 5, 0));
    EXPECT_NE(CornerOf(painted, 4, 1), CornerOf(painted, 5, 1));
    EXPECT_NE(CornerOf(painted, 0, 3), CornerOf(painted, 0, 4));
    EXPECT_EQ(CornerOf(painted, 3, 0), CornerOf(painted, 5, 0));
    EXPECT_EQ(CornerOf(painted, 0, 2), CornerOf(painted, 0, 4));
    EXPECT_EQ(CornerOf(painted, 4, 2), CornerOf(painted, 5, 2)) << "cells are not";
    grid.SetCurrent(5, 4);
    widget.Mirror();
    const QImage moved = Painted();
    EXPECT_EQ(CornerOf(moved, 4, 0), CornerOf(painted, 5, 0));
    EXPECT_EQ(CornerOf(moved, 0, 4), CornerOf(painted, 0, 3));
}

TEST_F(GridLookTest, TheFrameOfTheCurrentCellIsSeenOnEveryTile) {
    for (const Tile tile : {Tile::picColor01, Tile::picColor03, Tile::picColor04, Tile::picColor05,
                            Tile::picSelectColor01, Tile::picSelectColor05, Tile::picCircle05}) {
        FillWith(tile);
        Show();
        for (const bool focused : {true, false}) {
            if (!focused) widget.clearFocus();
            QCoreApplication::processEvents();
            grid.SetCurrent(4, 6);
            widget.Mirror();
            const QImage framed = Painted();
            const QImage plain = [&] {
                grid.SetCurrent(9, 9);
                widget.Mirror();
                return Painted();
            }();
            const QRect cell(Device(widget.CellRect(4, 6).topLeft()),
                             Device(widget.CellRect(4, 6).bottomRight()));
            int changed = 0;
            int strongest = 0;
            for (int y = cell.top(); y <= cell.bottom(); ++y)
                for (int x = cell.left(); x <= cell.right(); ++x) {
                    const int difference = std::abs(qGray(framed.pixel(x, y)) - qGray(plain.pixel(x, y)));
                    strongest = std::max(strongest, difference);
                    if (difference >= 60) ++changed;
                }
            EXPECT_GE(strongest, 90) << TileName(tile) << " " << focused;
            EXPECT_GE(changed, int(30 * Ratio() * Ratio())) << TileName(tile) << " " << focused;
            // Both tones, one inside the other.
            const auto greys = GreysOf(framed, 4, 6); // not current any more in `plain`
            EXPECT_LE(*greys.begin(), 115);
            EXPECT_GE(*greys.rbegin(), 250);
        }
    }
}

TEST_F(GridLookTest, AroundACellTooSmallForItTheFrameStandsOutside) {
    FillWith(Tile::picColor05);
    double percent = 100;
    widget.zoom = [&percent] { return percent; };
    Show();
    percent = 18; // a box of three pixels
    grid.SetCurrent(20, 20);
    widget.Mirror();
    const QImage painted = Painted();
    const QPoint middle = Device(widget.CellRect(20, 20).center());
    const int reach = int(std::lround(3 * Ratio()));
    EXPECT_EQ(painted.pixelColor(middle), QColor(Qt::black)) << "the cell itself is seen";
    int light = 0;
    for (int x = middle.x() - 2 * reach; x <= middle.x() + 2 * reach; ++x)
        light = std::max(light, qGray(painted.pixel(x, middle.y())));
    EXPECT_EQ(light, 255);
}

TEST_F(GridLookTest, TheEdgeOfADiagramShowsAgainstTheBackground) {
    FillWith(Tile::picColor01);
    Show({1000, 900});
    const QImage painted = Painted();
    const QPoint corner = Device(widget.CellRect(39, 39).bottomRight() + QPoint(1, 1));
    for (const QPoint edge : {corner - QPoint(0, int(50 * Ratio())), corner - QPoint(int(50 * Ratio()), 0)}) {
        EXPECT_LT(qGray(painted.pixel(edge)), 160) << edge.x() << "," << edge.y();
    }
    EXPECT_GT(qGray(painted.pixel(corner + QPoint(int(10 * Ratio()), int(10 * Ratio())))), 200);
}

TEST_F(GridLookTest, DiscsAreSmoothOnAScreenThatIsNoMultipleOfTheirPixels) {
    FillWith(Tile::picCircle05);
    Show();
    const auto greys = GreysOf(Painted(), 5, 6);
    const std::set<int> tones(greys.begin(), greys.end());
    if (Ratio() == 1) {
        EXPECT_EQ(tones.size(), 2u) << "the tile to the pixel";
    } else {
        EXPECT_GT(tones.size(), 6u);
        const int side = int(std::lround(16 * Ratio()));
        const QImage disc = TilePictures().image(std::uint8_t(Tile::picCircle05), side);
        EXPECT_EQ(disc, disc.mirrored(true, false));
        EXPECT_EQ(disc, disc.mirrored(false, true));
    }
}

TEST_F(GridLookTest, NumbersFrom100OnKeepAGapBetweenThem) {
    grid.FontSize = 7;
    FillWith(Tile::picColor01);
    Show();
    const QImage painted = Painted();
    const QColor ground = CornerOf(painted, 0, 6);
    for (int column = 4; column < 12; ++column) {
        const QPoint left = Device(widget.CellRect(0, column).topLeft());
        const int bottom = Device(widget.CellRect(0, column).bottomLeft()).y();
        for (int y = left.y(); y <= bottom; ++y)
            EXPECT_LE(std::abs(qGray(painted.pixel(left.x(), y)) - qGray(ground.rgb())), 40)
                << "column " << column << " line " << y;
    }
}

TEST_F(GridLookTest, TheWholeOfACutTextIsInItsToolTip) {
    grid.SetText(3, 1, "a name that is far too long for any column of names");
    grid.SetText(3, 2, "12345.678");
    grid.SetColumnWidth(2, 700); // too narrow by a little
    Show();
    const auto tipAt = [this](int row, int column) {
        QToolTip::hideText(); // which takes a while
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 2000));
        const QPoint place = widget.CellRect(row, column).center();
        QHelpEvent help(QEvent::ToolTip, place, widget.viewport()->mapToGlobal(place));
        QApplication::sendEvent(widget.viewport(), &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    EXPECT_EQ(tipAt(3, 1), "a name that is far too long for any column of names");
    EXPECT_TRUE(tipAt(3, 2).isEmpty()) << "narrow, and whole";
    EXPECT_TRUE(tipAt(4, 1).isEmpty());
    QToolTip::hideText();
}

TEST_F(GridLookTest, TheTextOfASheetFollowsTheFontOfTheApplicationAndItsCellsGrow) {
    Show({800, 300});
    const int height = widget.CellRect(1, 2).height();
    const int width = widget.CellRect(1, 2).width();
    QFont large = widget.font();
    large.setPointSizeF(18);
    widget.setFont(large);
    QCoreApplication::processEvents();
    EXPECT_NEAR(widget.CellRect(1, 2).height(), 2 * height, 2); // of whole device pixels
    EXPECT_NEAR(widget.CellRect(1, 2).width(), 2 * width, 2);
    EXPECT_EQ(grid.RowHeight(1), 255);
    large.setPointSizeF(9);
    widget.setFont(large);
    QCoreApplication::processEvents();
    EXPECT_EQ(widget.CellRect(1, 2).height(), height);
}

TEST_F(GridLookTest, TheBoxesOfADiagramKeepTheirPixelsUnderALargerFont) {
    FillWith(Tile::picCircle05);
    Show({600, 300});
    const QSize box = widget.CellRect(1, 3).size();
    QFont large = widget.font();
    large.setPointSizeF(18);
    widget.setFont(large);
    QCoreApplication::processEvents();
    EXPECT_EQ(widget.CellRect(1, 3).size(), box);
    EXPECT_EQ(widget.CellRect(1, 1).width(), 240) << "names have twice the room";
}

} // namespace dorvan::test
