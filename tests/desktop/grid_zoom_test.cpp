#include "desktop_test.h"

#include "desktop/grid_mosaic.h"
#include "desktop/tile_pictures.h"
#include "view/tiles.h"

#include <QAction>
#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace dorvan::test {

namespace {

constexpr QRgb Black = 0xFF000000U;

QImage Painted(QWidget& widget) {
    QCoreApplication::processEvents();
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

// Also run with the scale factors 1.5 and 2. 250 records in the order of the sheet.
class GridZoomTest : public DesktopTest {
protected:
    GridZoomTest() {
        ChooseFile(Sample("quakes250.mdt"));
        Click("mnuFData");
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
        Face().showMaximized();
        QCoreApplication::processEvents();
        ActiveGrid().setFocus();
    }

    double Percent() { return Diagram().Zoom.Percent(); }
    double Ratio() { return ActiveGrid().devicePixelRatioF(); }
    // Of a box, in device pixels.
    int BoxAt(double percent) { return std::max(1, int(std::lround(17 * Ratio() * percent / 100))); }

    void Turn(int eighths, QPoint place, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QWidget& viewport = *ActiveGrid().viewport();
        QWheelEvent wheel(QPointF(place), viewport.mapToGlobal(QPointF(place)), {}, QPoint(0, eighths),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&viewport, &wheel);
        QCoreApplication::processEvents();
    }
    QPoint Middle() { return ActiveGrid().viewport()->rect().center(); }

    void ExpectEveryVisibleCellWhereItIsClicked() {
        GridWidget& grid = ActiveGrid();
        for (const QPoint place : {QPoint(300, 200), QPoint(400, 333), QPoint(513, 97), QPoint(260, 401)}) {
            const QPoint cell = grid.CellAt(place);
            if (cell.x() < 2 || cell.y() < 1) continue; // behind the diagram
            EXPECT_TRUE(grid.CellRect(cell.y(), cell.x()).contains(place)) << Percent();
            QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place);
            EXPECT_EQ(Diagram().Siatka.Row(), cell.y()) << Percent();
            EXPECT_EQ(Diagram().Siatka.Column(), cell.x()) << Percent();
        }
    }
};

TEST_F(GridZoomTest, MenuAndKeysStepAndTheStatusLineTells) {
    Click("mnuExtrasZoomIn");
    EXPECT_EQ(Percent(), 150);
    EXPECT_EQ(Find<QLabel>(*desktop.mainWindow, "StatusText").text(), "Zoom 150%");
    Click("mnuExtrasZoomOut");
    Click("mnuExtrasZoomOut");
    EXPECT_EQ(Percent(), 70);
    Click("mnuExtrasZoomActual");
    EXPECT_EQ(Percent(), 100);
    EXPECT_EQ(Item("mnuExtrasZoomIn").shortcut(), QKeySequence("Ctrl++"));
    EXPECT_EQ(Item("mnuExtrasZoomOut").shortcut(), QKeySequence("Ctrl+-"));
    EXPECT_EQ(Item("mnuExtrasZoomActual").shortcut(), QKeySequence("Ctrl+0"));
    PressInWindow(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Percent(), 150);
    PressInWindow(Qt::Key_Equal, Qt::ControlModifier); // the key of "+" without Shift
    EXPECT_EQ(Percent(), 200);
    PressInWindow(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Percent(), 300);
    PressInWindow(Qt::Key_Minus, Qt::ControlModifier);
    PressInWindow(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Percent(), 150);
    PressInWindow(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Percent(), 100);
}

TEST_F(GridZoomTest, ItsItemsAreOnForADiagramAlone) {
    EXPECT_TRUE(Item("mnuExtrasZoomFit").isEnabled());
    NewSheet(3, 3);
    for (const char* item :
         {"mnuExtrasZoomIn", "mnuExtrasZoomOut", "mnuExtrasZoomActual", "mnuExtrasZoomFit"})
        EXPECT_FALSE(Item(item).isEnabled()) << item;
}

TEST_F(GridZoomTest, TheWheelWithControlStepsByNotchesAndAloneScrolls) {
    Turn(120, Middle());
    EXPECT_EQ(Percent(), 150);
    Turn(-240, Middle());
    EXPECT_EQ(Percent(), 70);
    for (int part = 0; part < 3; ++part) Turn(40, Middle());
    EXPECT_EQ(Percent(), 100) << "a fine wheel turns by parts of a notch";
    const int before = ActiveGrid().verticalScrollBar()->value();
    Turn(-120, Middle(), Qt::NoModifier);
    EXPECT_EQ(Percent(), 100);
    EXPECT_GT(ActiveGrid().verticalScrollBar()->value(), before);
}

TEST_F(GridZoomTest, TheCellUnderThePointerStaysThere) {
    GridWidget& grid = ActiveGrid();
    grid.verticalScrollBar()->setValue(100);
    grid.horizontalScrollBar()->setValue(100);
    const QPoint place(420, 260);
    const QPoint cell = grid.CellAt(place);
    for (const int turn : {120, 120, -120, -120, -120, -120}) {
        Turn(turn, place);
        const QPoint now = grid.CellRect(cell.y(), cell.x()).center();
        const double box = BoxAt(Percent()) / Ratio();
        EXPECT_LE(std::abs(now.x() - place.x()), box) << Percent();
        EXPECT_LE(std::abs(now.y() - place.y()), box) << Percent();
    }
}

TEST_F(GridZoomTest, FitShowsTheWholeOfTheLargestDiagramAndFollowsTheWindow) {
    GridWidget& grid = ActiveGrid();
    Click("mnuExtrasZoomFit");
    const auto expectAllInSight = [&] {
        EXPECT_EQ(grid.verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(grid.horizontalScrollBar()->maximum(), 0);
        EXPECT_TRUE(grid.viewport()->rect().contains(grid.CellRect(250, 251)));
    };
    expectAllInSight();
    const double maximized = Percent();
    EXPECT_GE(BoxAt(maximized), 2);
    EXPECT_EQ(BoxAt(maximized), std::floor(grid.RoomBehindLabels().height() / 250.0));
    Face().showNormal();
    Face().resize(700, 400);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_LT(Percent(), maximized);
    expectAllInSight();
}

TEST_F(GridZoomTest, ClicksKeysAndDoubleClicksReachTheRightCellAtEveryStep) {
    for (const char* step :
         {"mnuExtrasZoomFit", "mnuExtrasZoomIn", "mnuExtrasZoomIn", "mnuExtrasZoomIn", "mnuExtrasZoomIn",
          "mnuExtrasZoomActual", "mnuExtrasZoomIn", "mnuExtrasZoomIn"}) {
        Click(step);
        ExpectEveryVisibleCellWhereItIsClicked();
    }
    Click("mnuExtrasZoomFit");
    ClickCell(ActiveGrid(), 120, 80);
    ActiveGrid().setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(Diagram().Siatka.Row(), 121);
    DoubleClickCell(ActiveGrid(), 200, 2);
    EXPECT_EQ(Diagram().SelectedRow, 200);
}

TEST_F(GridZoomTest, EveryCellShowsItsSymbolAtEveryStep) {
    GridWidget& grid = ActiveGrid();
    for (const char* step : {"mnuExtrasZoomFit", "mnuExtrasZoomIn", "mnuExtrasZoomIn", "mnuExtrasZoomActual",
                             "mnuExtrasZoomIn"}) {
        Click(step);
        grid.horizontalScrollBar()->setValue(30);
        grid.verticalScrollBar()->setValue(40);
        const QImage painted = Painted(*grid.viewport());
        const int box = BoxAt(Percent());
        const int side = PictureSide(box);
        const int spare = (box - side) / 2;
        const int firstRow = grid.verticalScrollBar()->value() + 1;
        const int firstColumn = grid.horizontalScrollBar()->value() + 2;
        // The labels in front: 382 and 1800 twips, and 255 above.
        const int left = int(std::lround(382 / 15.0 * Ratio())) + int(std::lround(120 * Ratio()));
        const int top = int(std::lround(17 * Ratio()));
        // From the second row and column on: a frame around a current cell stays away.
        for (int row = firstRow + 1; row < firstRow + 12; ++row)
            for (int column = firstColumn + 1; column < firstColumn + 12; ++column) {
                const QImage symbol = TilePictures().image(Diagram().Siatka.Picture(row, column), side);
                const QPoint place(left + (column - firstColumn) * box + spare,
                                   top + (row - firstRow) * box + spare);
                if (row == Diagram().Siatka.Row()) continue;
                ASSERT_EQ(painted.copy(QRect(place, QSize(side, side))), symbol)
                    << Percent() << " percent, " << row << "," << column;
            }
    }
}

TEST_F(GridZoomTest, FewerHeadsHaveALabelWhereTheyWouldRunTogetherAndTheCurrentOneAlwaysHas) {
    GridWidget& grid = ActiveGrid();
    Click("mnuExtrasZoomFit");
    // Ink of the number of a row, at the left of its middle.
    const auto isLabelled = [&](int row) {
        const QImage painted = Painted(*grid.viewport());
        const QRect number = grid.CellRect(row, 0);
        const int y = int(number.center().y() * Ratio());
        int darkest = 255;
        for (int x = 0; x < int(20 * Ratio()); ++x)
            for (int line = y - 2; line <= y + 2; ++line)
                darkest = std::min(darkest, qGray(painted.pixel(x, line)));
        return darkest < 120;
    };
    EXPECT_TRUE(isLabelled(100));
    EXPECT_TRUE(isLabelled(150));
    const int between = 103;
    ClickCell(grid, between, 90);
    EXPECT_TRUE(isLabelled(between));
    ClickCell(grid, 200, 90);
    Click("mnuExtrasZoomActual");
    EXPECT_TRUE(isLabelled(grid.verticalScrollBar()->value() + 4)) << "each one at 100 percent";
}

TEST_F(GridZoomTest, NumbersOverSmallColumnsStandApart) {
    GridWidget& grid = ActiveGrid();
    Click("mnuExtrasZoomFit");
    ClickCell(grid, 1, 2); // far from what is looked at
    const QImage painted = Painted(*grid.viewport());
    const auto inkAt = [&](double place) { // in columns, from 1
        const QRect head = grid.CellRect(0, int(place) + 1);
        const int x = int((head.left() + head.width() * (place - int(place))) * Ratio());
        int darkest = 255;
        for (int y = 1; y < int(16 * Ratio()); ++y) darkest = std::min(darkest, qGray(painted.pixel(x, y)));
        return 255 - darkest;
    };
    // The denser screen has room for twice as many.
    const double half = BoxAt(Percent()) >= 5 ? 2.5 : 5;
    const int ground = inkAt(140 + half);
    for (int number = 100; number < 200; number += 10) {
        int most = 0;
        for (double place = number - 1.5; place < number + 2; place += 0.25)
            most = std::max(most, inkAt(place));
        EXPECT_GT(most, ground + 60) << number;
        EXPECT_LE(inkAt(number + half), ground + 10) << "between " << number << " and the next one";
    }
}

TEST_F(GridZoomTest, TheRoomForTheLabelsStaysAtEveryStep) {
    GridWidget& grid = ActiveGrid();
    const QRect name = grid.CellRect(1, 1);
    for (const char* step : {"mnuExtrasZoomFit", "mnuExtrasZoomActual", "mnuExtrasZoomIn"}) {
        Click(step);
        grid.verticalScrollBar()->setValue(0);
        EXPECT_EQ(grid.CellRect(1, 1).left(), name.left());
        EXPECT_EQ(grid.CellRect(1, 1).width(), name.width());
        EXPECT_EQ(grid.CellRect(0, 1).height(), name.height());
    }
}

TEST_F(GridZoomTest, ASymbolMadeSmallHasTheShadeOfWhatItCovers) {
    const auto shade = [](Tile tile, int side) {
        const QImage image = TilePictures().image(std::uint8_t(tile), side);
        double sum = 0;
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) sum += 255 - qGray(image.pixel(x, y));
        return sum / (side * side * 255.0);
    };
    for (const Tile tile : {Tile::picClassic02, Tile::picClassic03, Tile::picClassic04, Tile::picClassic05,
                            Tile::picCircle02, Tile::picCircle03, Tile::picCircle04, Tile::picCircle05}) {
        const double whole = shade(tile, 16);
        for (const int side : {1, 2, 3, 6, 8, 11}) EXPECT_NEAR(shade(tile, side), whole, 0.03) << side;
    }
    EXPECT_EQ(TilePictures().image(std::uint8_t(Tile::picColor05), 2).pixel(1, 1), Black);
}

} // namespace dorvan::test
