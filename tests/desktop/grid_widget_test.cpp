#include "desktop/grid_companion.h"
#include "desktop/grid_widget.h"
#include "desktop/tile_pictures.h"
#include "platform/keys.h"
#include "view/tiles.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

namespace dorvan::test {

namespace {

class GridWidgetTest : public ::testing::Test {
protected:
    GridWidgetTest() {
        grid.SetSize(60, 40);
        for (int row = 0; row < 60; ++row)
            for (int column = 0; column < 40; ++column)
                grid.SetText(row, column, std::to_string(row) + "/" + std::to_string(column));
        grid.SetCurrent(1, 1);
        widget.resize(400, 300);
        widget.Mirror();
        widget.show();
        QApplication::setActiveWindow(&widget);
        widget.setFocus();
        QCoreApplication::processEvents();
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&widget, key, modifiers);
        widget.Mirror();
    }
    void ExpectCurrent(int row, int column) {
        EXPECT_EQ(grid.Row(), row);
        EXPECT_EQ(grid.Column(), column);
    }
    // In device pixels.
    QImage Painted() { return widget.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32); }

    Grid grid{"Grid1"};
    EventDispatch dispatch;
    GridWidget widget{grid, dispatch};
};

// Tells whether its grid is still one as it goes.
class Witness : public GridCompanion {
public:
    Witness(GridWidget& grid, bool& sawTheGrid) : GridCompanion(grid), sawTheGrid_(sawTheGrid) {}
    ~Witness() override { sawTheGrid_ = dynamic_cast<GridWidget*>(parent()) != nullptr; }

private:
    bool& sawTheGrid_;
};

} // namespace

TEST_F(GridWidgetTest, WhatWatchesAGridGoesBeforeIt) {
    bool sawTheGrid = false;
    {
        GridWidget other(grid, dispatch);
        new Witness(other, sawTheGrid);
    }
    EXPECT_TRUE(sawTheGrid);
}

TEST_F(GridWidgetTest, ArrowsStopAtTheFixedCellsAndAtTheEdges) {
    Press(Qt::Key_Up);
    Press(Qt::Key_Left);
    ExpectCurrent(1, 1);
    Press(Qt::Key_Down);
    Press(Qt::Key_Right);
    ExpectCurrent(2, 2);
    Press(Qt::Key_End, Qt::ControlModifier);
    ExpectCurrent(59, 39);
    Press(Qt::Key_Down);
    Press(Qt::Key_Right);
    ExpectCurrent(59, 39);
}

// Where all cells have room without bars but not beside one, no bar calls the other one, whichever was there.
TEST_F(GridWidgetTest, BarsDoNotCallEachOther) {
    grid.SetSize(6, 5);
    widget.Mirror();
    const QRect last = [this] {
        widget.resize(2000, 2000);
        return widget.CellRect(5, 4);
    }();
    const QSize all(last.right() + 4, last.bottom() + 4);
    for (const QSize before : {QSize(2000, 60), QSize(60, 2000), QSize(60, 60)}) {
        widget.resize(before);
        QCoreApplication::processEvents();
        ASSERT_TRUE(widget.verticalScrollBar()->isVisible() || widget.horizontalScrollBar()->isVisible());
        widget.resize(all);
        EXPECT_EQ(widget.verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(widget.horizontalScrollBar()->maximum(), 0);
        QCoreApplication::processEvents();
        EXPECT_EQ(widget.viewport()->size(), all);
    }
}

// One bar alone takes the room that its neighbour's cells had.
TEST_F(GridWidgetTest, ABarCallsTheOtherOneWhereItTakesItsRoom) {
    grid.SetSize(6, 5);
    widget.Mirror();
    widget.resize(2000, 2000);
    const QRect last = widget.CellRect(5, 4);
    for (const QSize size :
         {QSize(last.right() + 4, last.bottom() - 2), QSize(last.right() - 2, last.bottom() + 4)}) {
        widget.resize(size);
        QCoreApplication::processEvents();
        EXPECT_TRUE(widget.verticalScrollBar()->isVisible());
        EXPECT_TRUE(widget.horizontalScrollBar()->isVisible());
        EXPECT_GT(widget.verticalScrollBar()->maximum(), 0);
        EXPECT_GT(widget.horizontalScrollBar()->maximum(), 0);
    }
}

TEST_F(GridWidgetTest, HomeAndEndGoAlongTheRowAndWithControlToTheCorners) {
    Press(Qt::Key_End);
    ExpectCurrent(1, 39);
    Press(Qt::Key_End, Qt::ControlModifier);
    Press(Qt::Key_Home);
    ExpectCurrent(59, 1);
    Press(Qt::Key_Home, Qt::ControlModifier);
    ExpectCurrent(1, 1);
}

TEST_F(GridWidgetTest, PageKeysMoveByAScreenfulAndStopAtTheEnds) {
    Press(Qt::Key_PageDown);
    EXPECT_GT(grid.Row(), 5);
    EXPECT_LT(grid.Row(), 25);
    for (int page = 0; page < 20; ++page) Press(Qt::Key_PageDown);
    ExpectCurrent(59, 1);
    for (int page = 0; page < 20; ++page) Press(Qt::Key_PageUp);
    ExpectCurrent(1, 1);
}

TEST_F(GridWidgetTest, ACurrentCellInAFixedColumnMovesAlongItAndOut) {
    grid.SetCurrent(3, 0);
    Press(Qt::Key_Down);
    ExpectCurrent(4, 0);
    Press(Qt::Key_Left);
    ExpectCurrent(4, 0);
    Press(Qt::Key_Right);
    ExpectCurrent(4, 1);
}

TEST_F(GridWidgetTest, TheCurrentCellIsScrolledIntoView) {
    EXPECT_TRUE(widget.CellRect(50, 30).isEmpty() ||
                !widget.viewport()->rect().contains(widget.CellRect(50, 30)));
    grid.SetCurrent(50, 30);
    widget.Mirror();
    const QRect cell = widget.CellRect(50, 30);
    EXPECT_FALSE(cell.isEmpty());
    EXPECT_TRUE(widget.viewport()->rect().contains(cell));
    EXPECT_FALSE(widget.CellRect(0, 30).isEmpty()); // the fixed row stays
    EXPECT_TRUE(widget.CellRect(1, 30).isEmpty());
}

TEST_F(GridWidgetTest, TheEndOfTheTableIsWhereScrollingEnds) {
    widget.verticalScrollBar()->setValue(widget.verticalScrollBar()->maximum());
    const QRect last = widget.CellRect(59, 1);
    EXPECT_FALSE(last.isEmpty());
    EXPECT_LE(last.bottom(), widget.viewport()->height());
    EXPECT_GT(last.bottom(), widget.viewport()->height() - 2 * last.height());
}

TEST_F(GridWidgetTest, AClickMovesTheCurrentCellButNotIntoFixedOnes) {
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.CellRect(5, 2).center());
    ExpectCurrent(5, 2);
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.CellRect(8, 0).center());
    ExpectCurrent(8, 2);
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.CellRect(0, 3).center());
    ExpectCurrent(8, 3);
}

TEST_F(GridWidgetTest, AKeyThatItsOwnerSwallowsDoesNotMove) {
    int seen = 0;
    widget.events.keyDown = [&seen](int& keyCode) { seen = std::exchange(keyCode, 0); };
    Press(Qt::Key_Down);
    EXPECT_EQ(seen, key::Down);
    ExpectCurrent(1, 1);
}

TEST_F(GridWidgetTest, ScrollingByAStepPaintsTheSameAsPaintingAnew) {
    Painted();
    widget.verticalScrollBar()->setValue(7);
    widget.horizontalScrollBar()->setValue(3);
    QCoreApplication::processEvents();
    const QImage scrolled = widget.grab().toImage();
    widget.viewport()->update();
    QCoreApplication::processEvents();
    EXPECT_EQ(scrolled, widget.grab().toImage());
}

TEST_F(GridWidgetTest, OnlyVisibleCellsAreAskedForTheirPictures) {
    Grid large{"Siatka"};
    large.SetSize(251, 252);
    for (int row = 1; row < 251; ++row)
        for (int column = 2; column < 252; ++column)
            large.SetPicture(row, column, std::uint8_t(1 + column % 250));
    int asked = 0;
    GridWidget shown(large, dispatch);
    shown.SetPictures({[&asked](std::uint8_t, int side) {
                           ++asked;
                           return QImage(side, side, QImage::Format_RGB32);
                       },
                       {}});
    shown.resize(400, 300);
    shown.Mirror();
    shown.grab();
    EXPECT_GT(asked, 0);
    EXPECT_LT(asked, 10); // each picture once, of the columns in view
}

namespace {

double widgetRatio() { return QWidget().devicePixelRatioF(); }

} // namespace

// Also run with the scale factors 1.5 and 2.
TEST(GridTilesTest, TilesAreOnWholeDevicePixelsAtEveryScale) {
    Grid grid{"Siatka"};
    grid.SetSize(8, 8);
    grid.GridLines = false;
    grid.FixedRows = grid.FixedColumns = 1;
    for (int row = 0; row < 8; ++row) grid.SetRowHeight(row, 255);
    for (int column = 0; column < 8; ++column) grid.SetColumnWidth(column, 255);
    const double scale = widgetRatio();
    // Discs keep their pixels where the screen has as many; on a denser one they are smooth.
    const bool discs = scale == 1;
    const Tile tiles[] = {discs ? Tile::picCircle02 : Tile::picClassic05,
                          discs ? Tile::picCircle05 : Tile::picSelectClassic03,
                          Tile::picClassic02,
                          Tile::picClassic04,
                          Tile::picColor04,
                          discs ? Tile::picCircle03NA : Tile::picClassic03,
                          discs ? Tile::picSelectCircle04 : Tile::picSelectClassic02};
    for (int column = 1; column < 8; ++column)
        for (int row = 1; row < 8; ++row)
            grid.SetPicture(row, column, std::uint8_t(tiles[(row + column) % 7]));
    EventDispatch dispatch;
    GridWidget widget(grid, dispatch);
    widget.SetPictures(TilePictures());
    widget.resize(150, 150);
    widget.Mirror();
    widget.show();
    QCoreApplication::processEvents();
    const QImage painted = widget.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const double ratio = widget.devicePixelRatioF();
    const int cell = int(std::lround(17 * ratio));
    const int side = int(std::lround(16 * ratio));
    const int spare = (cell - side) / 2;
    // At 1.5 the first half shows its pixels 1, 2, 1, 2, ... times, the second half the other way round.
    const auto shownPixel = [ratio](int place) {
        if (ratio == 1.5) return place < 12 ? (2 * place + 1) / 3 : 15 - (2 * (23 - place) + 1) / 3;
        return int(place / ratio);
    };
    for (int row = 1; row < 5; ++row)
        for (int column = 1; column < 5; ++column) {
            const TileImage& tile = ImageOf(tiles[(row + column) % 7]);
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x)
                    ASSERT_EQ(painted.pixel(column * cell + spare + x, row * cell + spare + y),
                              0xff000000u | tile.At(shownPixel(x), shownPixel(y)))
                        << "ratio " << ratio << " cell " << row << "," << column << " pixel " << x << ","
                        << y;
        }
}

TEST(GridThemeTest, TextIsReadableInADarkThemeAndTilesKeepTheirColours) {
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Window, QColor(45, 45, 45));
    dark.setColor(QPalette::Button, QColor(50, 50, 50));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::ButtonText, Qt::white);
    Grid grid{"Siatka"};
    grid.SetSize(3, 3);
    grid.SetText(1, 1, "8888");
    grid.SetPicture(2, 2, std::uint8_t(Tile::picColor01));
    EventDispatch dispatch;
    GridWidget widget(grid, dispatch);
    widget.setPalette(dark);
    widget.SetPictures(TilePictures());
    widget.resize(300, 100);
    widget.Mirror();
    const QImage painted = widget.viewport()->grab().toImage();
    const auto brightest = [&painted](QRect rect) {
        int most = 0;
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            for (int x = rect.left(); x <= rect.right(); ++x)
                most = std::max(most, qGray(painted.pixel(x, y)));
        return most;
    };
    EXPECT_LT(qGray(painted.pixel(widget.CellRect(1, 2).center())), 60);
    EXPECT_GT(brightest(widget.CellRect(1, 1)), 180);
    EXPECT_EQ(painted.pixelColor(widget.CellRect(2, 2).center()), QColor(Qt::white));
}

class GridReadingTest : public GridWidgetTest {
protected:
    QAccessibleInterface* Reader() { return QAccessible::queryAccessibleInterface(&widget); }
};

TEST_F(GridReadingTest, AScreenReaderReadsEveryCellOfTheTable) {
    auto* reader = Reader();
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->role(), QAccessible::Table);
    auto* table = reader->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rowCount(), 60);
    EXPECT_EQ(table->columnCount(), 40);
    auto* cell = table->cellAt(47, 33); // scrolled out, and readable all the same
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), "47/33");
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 47);
    EXPECT_EQ(cell->tableCellInterface()->columnIndex(), 33);
    EXPECT_TRUE(cell->state().invisible);
    EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells().first()->text(QAccessible::Name), "0/33");
    EXPECT_EQ(table->cellAt(0, 5)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(table->cellAt(5, 0)->role(), QAccessible::RowHeader);
    EXPECT_EQ(table->cellAt(60, 0), nullptr);
    EXPECT_EQ(reader->childCount(), 2400);
    EXPECT_EQ(reader->indexOfChild(cell), 47 * 40 + 33);
}

TEST_F(GridReadingTest, TheCurrentCellIsTheSelectedAndFocusedOneAndCanBeMoved) {
    grid.SetCurrent(2, 3);
    auto* table = Reader()->tableInterface();
    EXPECT_TRUE(table->cellAt(2, 3)->state().selected);
    EXPECT_TRUE(table->cellAt(2, 3)->state().focused);
    EXPECT_FALSE(table->cellAt(2, 4)->state().selected);
    EXPECT_EQ(table->selectedCells().first(), table->cellAt(2, 3));
    table->cellAt(4, 4)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    ExpectCurrent(4, 4);
}

TEST_F(GridReadingTest, CellsOfAGridThatShrankOrWentAreInvalid) {
    auto* cell = Reader()->tableInterface()->cellAt(59, 1);
    grid.SetSize(10, 40);
    EXPECT_FALSE(cell->isValid());
    EXPECT_EQ(cell->text(QAccessible::Name), "");
    auto* other = Reader()->tableInterface()->cellAt(3, 1);
    widget.Detach();
    EXPECT_FALSE(other->isValid());
    EXPECT_EQ(Reader()->tableInterface()->rowCount(), 0);
}

TEST_F(GridReadingTest, TilesReadAsTheirClass) {
    grid.SetText(3, 3, "");
    grid.SetPicture(3, 3, std::uint8_t(Tile::picCircle05));
    grid.SetText(3, 4, "");
    grid.SetPicture(3, 4, std::uint8_t(Tile::picSelectCircle02NA));
    widget.SetPictures(TilePictures());
    EXPECT_EQ(widget.CellReading(3, 3), "class 5");
    EXPECT_EQ(widget.CellReading(3, 4), "class 2 with a missing value selected");
}

} // namespace dorvan::test
