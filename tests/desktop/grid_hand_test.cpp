#include "desktop_test.h"

#include "desktop/qt_text.h"

#include <QLabel>
#include <QPlainTextEdit>

namespace dorvan::test {

// What the mouse drags beside ranges, and where the edit field stands.
class GridHandTest : public DesktopTest {
protected:
    GridHandTest() {
        ChooseFile(Sample("Townships.mdt"));
        Click("mnuFData");
    }

    void MakeDiagram() {
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
    }
    void MoveTo(QPoint place, Qt::MouseButtons buttons = Qt::LeftButton) {
        QWidget* viewport = ActiveGrid().viewport();
        QMouseEvent move(QEvent::MouseMove, place, viewport->mapToGlobal(place), Qt::NoButton, buttons,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
    }
    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(ActiveGrid().viewport(), Qt::LeftButton, {}, from);
        MoveTo((from + to) / 2);
        MoveTo(to);
        QTest::mouseRelease(ActiveGrid().viewport(), Qt::LeftButton, {}, to);
    }
    QPoint BorderOf(int column) {
        const QRect head = ActiveGrid().CellRect(0, column);
        return {head.right(), head.center().y()};
    }
    std::string Name(int row) { return Diagram().Siatka.Text(row, 1); }
};

TEST_F(GridHandTest, ADraggedBorderOfAHeadWidensItsColumn) {
    const int before = ActiveGrid().CellRect(0, 2).width();
    const int other = ActiveGrid().CellRect(0, 3).width();
    const int row = Sheet().Grid1.Row();
    MoveTo(BorderOf(2), Qt::NoButton);
    EXPECT_EQ(ActiveGrid().viewport()->cursor().shape(), Qt::SplitHCursor);
    Drag(BorderOf(2), BorderOf(2) + QPoint(40, 5));
    EXPECT_NEAR(ActiveGrid().CellRect(0, 2).width(), before + 40, 2);
    EXPECT_EQ(ActiveGrid().CellRect(0, 3).width(), other);
    EXPECT_TRUE(Sheet().Grid1.Marked().IsOneCell());
    EXPECT_EQ(Sheet().Grid1.Row(), row);
    Drag(BorderOf(2), BorderOf(2) - QPoint(400, 0));
    EXPECT_NEAR(ActiveGrid().CellRect(0, 2).width(), 12, 2); // no narrower
    MoveTo(ActiveGrid().CellRect(2, 3).center(), Qt::NoButton);
    EXPECT_EQ(ActiveGrid().viewport()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(desktop.session.DataStates.at(1).Dirty);
}

TEST_F(GridHandTest, ADoubleClickOnABorderFitsTheWidestText) {
    Sheet().Grid1.SetText(3, 1, "A name that is much longer than the column is wide");
    ActiveGrid().Mirror();
    QTest::mouseDClick(ActiveGrid().viewport(), Qt::LeftButton, {}, BorderOf(1));
    const int wide = ActiveGrid().CellRect(0, 1).width();
    EXPECT_GT(wide, 200);
    Sheet().Grid1.SetText(3, 1, "Short");
    ActiveGrid().Mirror();
    QTest::mouseDClick(ActiveGrid().viewport(), Qt::LeftButton, {}, BorderOf(1));
    EXPECT_LT(ActiveGrid().CellRect(0, 1).width(), wide / 2);
    EXPECT_GT(ActiveGrid().CellRect(0, 1).width(), 20);
    EXPECT_FALSE(Find<QLineEdit>(Face(), "EditCell").isVisible());
    EXPECT_FALSE(desktop.session.DataStates.at(1).Dirty);
}

TEST_F(GridHandTest, TheColumnsOfSymbolsKeepTheirWidth) {
    MakeDiagram();
    const int symbols = ActiveGrid().CellRect(0, 4).width();
    const int names = ActiveGrid().CellRect(0, 1).width();
    Drag(BorderOf(4), BorderOf(4) + QPoint(30, 0));
    EXPECT_EQ(ActiveGrid().CellRect(0, 4).width(), symbols);
    Drag(BorderOf(1), BorderOf(1) + QPoint(30, 0));
    EXPECT_NEAR(ActiveGrid().CellRect(0, 1).width(), names + 30, 2);
}

TEST_F(GridHandTest, ARowDraggedByItsNameMovesAsInsertMovesIt) {
    MakeDiagram();
    desktop.session.DiagramStates.at(1).Dirty = false;
    const std::string second = Name(2);
    const std::string third = Name(3);
    Drag(PlaceOf(ActiveGrid(), 2, 1), PlaceOf(ActiveGrid(), 5, 1));
    EXPECT_EQ(Name(2), third);
    EXPECT_EQ(Name(5), second);
    EXPECT_EQ(Diagram().Document().RecordNames(5), second);
    EXPECT_EQ(Diagram().SelectedRow, 5);
    EXPECT_EQ(Diagram().RowSelected, 1);
    EXPECT_TRUE(desktop.session.DiagramStates.at(1).Dirty);
    Drag(PlaceOf(ActiveGrid(), 5, 0), PlaceOf(ActiveGrid(), 1, 0)); // upwards, by its number
    EXPECT_EQ(Name(1), second);
    const std::string fourth = Name(4);
    Drag(PlaceOf(ActiveGrid(), 4, 1), PlaceOf(ActiveGrid(), 3, 1)); // another one than the selected
    EXPECT_EQ(Name(3), fourth);
    EXPECT_EQ(Diagram().SelectedRow, 3);
    EXPECT_TRUE(Diagram().Siatka.Marked().IsOneCell());
}

TEST_F(GridHandTest, ARowOnItsWayEndsWithItsWindow) {
    MakeDiagram();
    auto& viewport = *ActiveGrid().viewport();
    auto& line = Find<QFrame>(viewport, "RowTarget");
    QTest::mousePress(&viewport, Qt::LeftButton, {}, PlaceOf(ActiveGrid(), 2, 1));
    MoveTo({5, viewport.height() + 20}); // it scrolls from now on
    ASSERT_TRUE(line.isVisible());
    Face().Detach(); // as when the window closes in a dialog's or a menu's own loop
    QTest::qWait(200);
    EXPECT_FALSE(line.isVisible());
    QTest::mouseRelease(&viewport, Qt::LeftButton, {}, {5, 5});
}

TEST_F(GridHandTest, ALineShowsWhereTheRowWouldLandAndEscLetsItGo) {
    MakeDiagram();
    desktop.session.DiagramStates.at(1).Dirty = false;
    const std::string second = Name(2);
    const QPoint from = PlaceOf(ActiveGrid(), 2, 1);
    const QPoint to = PlaceOf(ActiveGrid(), 5, 1);
    auto& line = Find<QFrame>(*ActiveGrid().viewport(), "RowTarget");
    EXPECT_FALSE(line.isVisible());
    QTest::mousePress(ActiveGrid().viewport(), Qt::LeftButton, {}, from);
    MoveTo(to);
    EXPECT_TRUE(line.isVisible());
    EXPECT_TRUE(line.geometry().contains(to.x(), ActiveGrid().CellRect(5, 1).bottom() + 1));
    const QImage painted = ActiveGrid().viewport()->grab().toImage();
    EXPECT_EQ(painted.pixelColor(line.geometry().center()), line.palette().color(QPalette::Highlight));
    Press(Qt::Key_Escape);
    EXPECT_FALSE(line.isVisible());
    QTest::mouseRelease(ActiveGrid().viewport(), Qt::LeftButton, {}, to);
    EXPECT_EQ(Name(2), second);
    EXPECT_EQ(Diagram().RowSelected, 0);
    EXPECT_FALSE(desktop.session.DiagramStates.at(1).Dirty);
    desktop.session.DiagramBusy = 1;
    Drag(from, to);
    EXPECT_EQ(Name(2), second);
    desktop.session.DiagramBusy = 0;
    ClickCell(ActiveGrid(), 2, 1); // moved by nothing, it is a click
    EXPECT_EQ(Name(2), second);
    EXPECT_EQ(Diagram().RowSelected, 0);
}

TEST_F(GridHandTest, TheEditFieldStandsOverTheTablesLeftEndBehindTheCellsNames) {
    ClickCell(ActiveGrid(), 2, 3);
    const auto& title = Find<QLabel>(Face(), "CellTitle");
    const std::string expected = Sheet().Grid1.Text(2, 1) + ", " + Sheet().Grid1.Text(0, 3) + ":";
    EXPECT_EQ(FromQt(title.toolTip()), expected);
    Type("7");
    const auto& field = Find<QLineEdit>(Face(), "EditCell");
    ASSERT_TRUE(field.isVisible());
    const QPoint place = field.mapTo(Face().widget(), QPoint());
    const QPoint titlePlace = title.mapTo(Face().widget(), QPoint());
    EXPECT_LT(titlePlace.x(), 20);
    EXPECT_GT(place.x(), titlePlace.x() + title.width() - 1);
    EXPECT_LT(place.x(), titlePlace.x() + title.width() + 20);
    EXPECT_LT(ActiveGrid().y() - (place.y() + field.height()), 10); // right above the table
    EXPECT_GE(place.y(), Find<QPlainTextEdit>(Face(), "OpisText").geometry().bottom());
    const int top = ActiveGrid().y();
    Press(Qt::Key_Escape);
    EXPECT_FALSE(field.isVisible());
    EXPECT_EQ(ActiveGrid().y(), top); // nothing jumps
}

} // namespace dorvan::test
