#include "desktop_test.h"

#include "desktop/qt_text.h"
#include "distance/frmMacierz.h"
#include "session/status_bar.h"

#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>

namespace dorvan::test {

// Ranges of all three grids by mouse and keys, to the clipboard and back.
class CopyPasteTest : public DesktopTest {
protected:
    CopyPasteTest() {
        ChooseFile(Sample("Townships.mdt"));
        Click("mnuFData");
    }

    Grid& Shown() {
        if (auto* sheet = dynamic_cast<frmNotePad*>(desktop.session.ActiveWindow)) return sheet->Grid1;
        return dynamic_cast<GridWindow&>(*desktop.session.ActiveWindow).Siatka;
    }
    void MakeMatrix() {
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
        Click("mnuAnalysisMatrix");
    }
    void MakeDiagram() {
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
    }
    void Drag(int fromRow, int fromColumn, int toRow, int toColumn) {
        QWidget* viewport = ActiveGrid().viewport();
        const QPoint from = PlaceOf(ActiveGrid(), fromRow, fromColumn);
        const QPoint to = PlaceOf(ActiveGrid(), toRow, toColumn);
        QTest::mousePress(viewport, Qt::LeftButton, {}, from);
        MoveTo((from + to) / 2);
        MoveTo(to);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
    }
    void MoveTo(QPoint place) {
        QWidget* viewport = ActiveGrid().viewport();
        QMouseEvent move(QEvent::MouseMove, place, viewport->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
    }
    void ShiftClick(int row, int column) {
        QTest::mouseClick(ActiveGrid().viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          PlaceOf(ActiveGrid(), row, column));
    }
    std::string Clipboard() { return FromQt(QGuiApplication::clipboard()->text()); }
    std::string Cells(const CellRange& range) {
        std::string text;
        for (int row = range.Top; row <= range.Bottom; ++row)
            for (int column = range.Left; column <= range.Right; ++column)
                text += Shown().Text(row, column) + (column < range.Right ? "\t" : "\n");
        return text;
    }
};

TEST_F(CopyPasteTest, ShiftAndArrowsMarkAndControlCCopies) {
    ClickCell(ActiveGrid(), 2, 2);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Shown().Marked(), (CellRange{2, 2, 4, 3}));
    EXPECT_EQ(Shown().Row(), 2);
    PressInWindow(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), Cells({2, 2, 4, 3}));
    const auto* data = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(data->html().contains("<td>" + ToQt(Shown().Text(4, 3)) + "</td></tr>"));
    EXPECT_EQ(StatusText(desktop.session), "Copied 3 x 2 cells");
    Press(Qt::Key_Left);
    EXPECT_TRUE(Shown().Marked().IsOneCell());
    EXPECT_EQ(Shown().Column(), 1);
}

TEST_F(CopyPasteTest, TheEndOfTheRangeIsKeptInSightAndTheCurrentCellStays) {
    ClickCell(ActiveGrid(), 2, 2);
    Press(Qt::Key_End, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(Shown().Marked(), (CellRange{2, 2, Shown().Rows() - 1, Shown().Columns() - 1}));
    EXPECT_FALSE(ActiveGrid().CellRect(Shown().Rows() - 1, Shown().Columns() - 1).isEmpty());
    EXPECT_EQ(Shown().Row(), 2);
    PressInWindow(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Shown().Marked(), (CellRange{0, 1, Shown().Rows() - 1, Shown().Columns() - 1}));
}

TEST_F(CopyPasteTest, AShiftClickMarksUpToItsCellAfterAnOpenEditWasTaken) {
    ClickCell(ActiveGrid(), 1, 2);
    Type("1+2");
    ShiftClick(3, 4);
    EXPECT_EQ(Shown().Text(1, 2), "3.000");
    EXPECT_EQ(Shown().Marked(), (CellRange{1, 2, 3, 4}));
    EXPECT_EQ(Shown().Column(), 2);
    EXPECT_TRUE(ActiveGrid().hasFocus());
}

TEST_F(CopyPasteTest, ADragMarksAndAMarkedCellIsShaded) {
    const QRect cell = ActiveGrid().CellRect(3, 3);
    const auto corner = [&] {
        return ActiveGrid().viewport()->grab().toImage().pixelColor((cell.topLeft() + QPoint(3, 3)) *
                                                                    ActiveGrid().devicePixelRatioF());
    };
    ClickCell(ActiveGrid(), 5, 4);
    const QColor plain = corner();
    Drag(2, 2, 4, 4);
    EXPECT_EQ(Shown().Marked(), (CellRange{2, 2, 4, 4}));
    EXPECT_NE(corner(), plain);
    ClickCell(ActiveGrid(), 5, 4);
    EXPECT_EQ(corner(), plain);
}

TEST_F(CopyPasteTest, ADragFromAHeadTakesTheHeadsAlong) {
    Drag(0, 1, 2, 3);
    EXPECT_EQ(Shown().Marked(), (CellRange{0, 1, 2, 3}));
    Click("mnuExtrasCopy");
    EXPECT_EQ(Clipboard(), Cells({0, 1, 2, 3}));
}

TEST_F(CopyPasteTest, ADragBelowTheTableScrollsOn) {
    Face().resize(500, 260);
    QCoreApplication::processEvents();
    QWidget* viewport = ActiveGrid().viewport();
    const QPoint from = PlaceOf(ActiveGrid(), 1, 2);
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    MoveTo({from.x(), viewport->height() + 40});
    QTest::qWait(400);
    EXPECT_GT(ActiveGrid().verticalScrollBar()->value(), 2);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, {from.x(), viewport->height() + 40});
    const int value = ActiveGrid().verticalScrollBar()->value();
    EXPECT_GT(Shown().Marked().Bottom, 5);
    QTest::qWait(200);
    EXPECT_EQ(ActiveGrid().verticalScrollBar()->value(), value);
}

TEST_F(CopyPasteTest, TheRightButtonLeavesMarkedCellsMarked) {
    Drag(2, 2, 4, 4);
    auto* menu = desktop.mainWindow->findChild<QMenu*>("mnuEdit");
    QTest::mouseClick(ActiveGrid().viewport(), Qt::RightButton, {}, PlaceOf(ActiveGrid(), 3, 3));
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(Shown().Marked(), (CellRange{2, 2, 4, 4}));
    menu->close();
    QTest::mouseClick(ActiveGrid().viewport(), Qt::RightButton, {}, PlaceOf(ActiveGrid(), 5, 3));
    EXPECT_EQ(Shown().Marked(), (CellRange{5, 3, 5, 3}));
    menu->close();
}

TEST_F(CopyPasteTest, AMatrixCopiesWhatItShows) {
    MakeMatrix();
    Drag(2, 1, 3, 3);
    EXPECT_EQ(Shown().Marked(), (CellRange{2, 1, 3, 3}));
    PressInWindow(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), Cells({2, 1, 3, 3}));
    EXPECT_FALSE(Item("mnuExtrasPaste").isEnabled());
}

TEST_F(CopyPasteTest, ADiagramCopiesItsClasses) {
    MakeDiagram();
    ClickCell(ActiveGrid(), 1, 1);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_Up, Qt::ShiftModifier);
    PressInWindow(Qt::Key_C, Qt::ControlModifier);
    const auto& document = Diagram().Document();
    EXPECT_EQ(Clipboard(), "Name\t1\t2\n" + document.RecordNames(1) + "\t" +
                               std::to_string(document.Classes(1, 1)) + "\t" +
                               std::to_string(document.Classes(1, 2)) + "\n");
}

TEST_F(CopyPasteTest, ControlVPastesAndOneUndoTakesItBack) {
    const std::string before = Cells({2, 2, 3, 3});
    QGuiApplication::clipboard()->setText("1,5\tn/a\n2\t3.25\n");
    ClickCell(ActiveGrid(), 2, 2);
    PressInWindow(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Cells({2, 2, 3, 3}), "1.500\tN/A\n2.000\t3.250\n");
    EXPECT_EQ(Shown().Marked(), (CellRange{2, 2, 3, 3}));
    EXPECT_TRUE(desktop.session.DataStates.at(1).Dirty);
    PressInWindow(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cells({2, 2, 3, 3}), before);
}

TEST_F(CopyPasteTest, ASheetIsPastedWholeIntoANewOne) {
    PressInWindow(Qt::Key_A, Qt::ControlModifier);
    PressInWindow(Qt::Key_C, Qt::ControlModifier);
    const Grid& from = Shown();
    const std::string all = Cells({0, 1, from.Rows() - 1, from.Columns() - 1});
    NewSheet(2, 2);
    AnswerNext("Yes");
    PressInWindow(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Cells({0, 1, Shown().Rows() - 1, Shown().Columns() - 1}), all);
}

TEST_F(CopyPasteTest, InTheEditFieldAndTheDescriptionTheKeysAreTheirs) {
    ClickCell(ActiveGrid(), 2, 1);
    Press(Qt::Key_F2);
    auto& field = Find<QLineEdit>(Face(), "EditCell");
    field.selectAll();
    PressInWindow(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(field.isVisible());
    EXPECT_EQ(Clipboard(), Shown().Text(2, 1));
    QGuiApplication::clipboard()->setText("Ohio");
    PressInWindow(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "Ohio");
    Press(Qt::Key_Return);
    EXPECT_EQ(Shown().Text(2, 1), "Ohio");
}

} // namespace dorvan::test
