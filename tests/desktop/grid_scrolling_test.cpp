#include "desktop_test.h"

#include "desktop/qt_text.h"
#include "distance/frmMacierz.h"

#include <QMdiArea>
#include <QScrollBar>

namespace dorvan::test {

// Where the grids scroll by themselves, and where they do not. Windows too small for their tables.
class GridScrollingTest : public DesktopTest {
protected:
    void OpenSample(const QString& name) {
        ChooseFile(Sample(name));
        Click("mnuFData");
        sheet = &Face();
        Shrink();
    }
    void MakeDiagram() {
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
        Shrink();
    }
    void Shrink() {
        Face().resize(640, 320);
        QCoreApplication::processEvents();
    }
    QPoint Scrolled(ChildFace& face) {
        const auto& grid = *face.findChild<GridWidget*>();
        return {grid.horizontalScrollBar()->value(), grid.verticalScrollBar()->value()};
    }
    QPoint Scrolled() { return Scrolled(Face()); }
    void ScrollTo(QPoint place) {
        ActiveGrid().horizontalScrollBar()->setValue(place.x());
        ActiveGrid().verticalScrollBar()->setValue(place.y());
        ASSERT_EQ(Scrolled(), place);
    }
    bool InSight(int row, int column) {
        const QRect cell = ActiveGrid().CellRect(row, column);
        return !cell.isEmpty() && ActiveGrid().viewport()->rect().contains(cell) &&
               cell.width() >= 10; // not a cut one
    }

    ChildFace* sheet = nullptr;
};

TEST_F(GridScrollingTest, AFreshDiagramShowsItsUpperLeftCornerAndTheFirstArrowStartsThere) {
    OpenSample("USArrests.mdt");
    MakeDiagram();
    EXPECT_EQ(Scrolled(), QPoint(0, 0));
    EXPECT_EQ(Diagram().Siatka.Row(), 50); // where its filling ended
    Press(Qt::Key_Down);
    EXPECT_EQ(Diagram().Siatka.Row(), 2);
    EXPECT_EQ(Scrolled(), QPoint(0, 0));
    EXPECT_TRUE(InSight(2, Diagram().Siatka.Column()));
    Press(Qt::Key_End);
    EXPECT_EQ(Diagram().Siatka.Column(), 51);
    EXPECT_TRUE(InSight(2, 51)); // the user's own key scrolls sideways
}

TEST_F(GridScrollingTest, TheFirstArrowStartsFromWhatTheUserHasScrolledTo) {
    OpenSample("USArrests.mdt");
    MakeDiagram();
    ScrollTo({0, 10});
    Press(Qt::Key_Down);
    EXPECT_EQ(Scrolled(), QPoint(0, 10));
    EXPECT_EQ(Diagram().Siatka.Row(), 12);
    ScrollTo({0, 0});
    Press(Qt::Key_Down); // the user's own cell now: the grid goes back to it
    EXPECT_EQ(Diagram().Siatka.Row(), 13);
    EXPECT_TRUE(InSight(13, 1));
}

TEST_F(GridScrollingTest, ADiagramInSightAsAWholeStartsAtItsCurrentCell) {
    OpenSample("Townships.mdt");
    MakeDiagram();
    Face().showMaximized();
    QCoreApplication::processEvents();
    const int last = Diagram().Siatka.Rows() - 1;
    Press(Qt::Key_Up);
    EXPECT_EQ(Diagram().Siatka.Row(), last - 1);
}

TEST_F(GridScrollingTest, ADoubleClickOnANameKeepsTheNamesInSight) {
    OpenSample("USArrests.mdt");
    MakeDiagram();
    ScrollTo({0, 25});
    DoubleClickCell(ActiveGrid(), 30, 1);
    EXPECT_EQ(Diagram().SelectedRow, 30);
    EXPECT_EQ(Scrolled(), QPoint(0, 25));
    EXPECT_TRUE(InSight(30, 1));
    DoubleClickCell(ActiveGrid(), 30, 1);
    EXPECT_EQ(Diagram().RowSelected, 0);
    EXPECT_EQ(Scrolled(), QPoint(0, 25));
}

TEST_F(GridScrollingTest, EachMoveByHandFollowsTheRowAlone) {
    OpenSample("USArrests.mdt");
    MakeDiagram();
    DoubleClickCell(ActiveGrid(), 2, 1);
    const std::string name = Diagram().Siatka.Text(2, 1);
    for (const auto* button : {"toolDiagram.End", "toolDiagram.Up", "toolDiagram.Home", "toolDiagram.Down"}) {
        Click(button);
        const int row = Diagram().SelectedRow;
        EXPECT_EQ(Diagram().Siatka.Text(row, 1), name) << button;
        EXPECT_EQ(Scrolled().x(), 0) << button;
        EXPECT_TRUE(InSight(row, 1)) << button << row;
    }
    ClickCell(ActiveGrid(), 6, 1);
    Click("toolDiagram.Insert");
    EXPECT_EQ(Scrolled().x(), 0);
    EXPECT_TRUE(InSight(6, 1));
    Click("toolDiagram.End");
    Press(Qt::Key_Up); // from the moved row, and not away from the names
    EXPECT_EQ(Diagram().Siatka.Row(), 49);
    EXPECT_EQ(Scrolled().x(), 0);
}

TEST_F(GridScrollingTest, AnotherTypeScrollsNothing) {
    OpenSample("USArrests.mdt");
    MakeDiagram();
    ScrollTo({3, 10});
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "OKButton").click(); });
    Click("toolDiagram.DiagramType");
    EXPECT_EQ(Scrolled(), QPoint(3, 10));
}

TEST_F(GridScrollingTest, MakeDiagramLeavesTheSheetWhereTheUserHadScrolledIt) {
    OpenSample("USArrests.mdt");
    sheet->resize(320, 320);
    QCoreApplication::processEvents();
    ScrollTo({1, 17});
    MakeDiagram();
    EXPECT_EQ(Scrolled(*sheet), QPoint(1, 17));
    AnswerNext("No"); // a fresh diagram asks
    Click("mnuFileClose");
    EXPECT_EQ(&Face(), sheet);
    EXPECT_EQ(Scrolled(), QPoint(1, 17));
}

TEST_F(GridScrollingTest, ARefusedDiagramLeavesTheSheetAsWell) {
    OpenSample("airquality.mdt");
    ScrollTo({0, 17});
    InDialog([this](QDialog& dialog) {
        AnswerNext("OK");
        Find<QPushButton>(dialog, "Command3").click();
    });
    Click("mnuAnalysisDiagram");
    EXPECT_EQ(&Face(), sheet);
    EXPECT_EQ(Scrolled(), QPoint(0, 17));
    const int last = Sheet().RecordCount();
    EXPECT_EQ(Sheet().Grid1.Row(), last); // where the reading ended
    Press(Qt::Key_Down);                  // from what is seen
    EXPECT_EQ(Scrolled(), QPoint(0, 17));
    EXPECT_LT(Sheet().Grid1.Row(), last);
    EXPECT_TRUE(InSight(Sheet().Grid1.Row(), Sheet().Grid1.Column()));
}

TEST_F(GridScrollingTest, ANewRecordAndAnEditedCellOfASheetAreFollowed) {
    OpenSample("USArrests.mdt");
    sheet->resize(400, 320);
    QCoreApplication::processEvents();
    ClickCell(ActiveGrid(), 3, 2);
    for (int step = 0; step < 3; ++step) {
        Type("1");
        Press(Qt::Key_Tab); // the edit field's key moves the current cell
    }
    EXPECT_EQ(Sheet().Grid1.Column(), 5);
    EXPECT_TRUE(InSight(3, 5));
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
    Click("mnuEditRecAdd");
    EXPECT_TRUE(InSight(51, 0));
}

} // namespace dorvan::test
