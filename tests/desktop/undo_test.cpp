#include "desktop_test.h"

#include "desktop/qt_text.h"
#include "session/children.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

namespace dorvan::test {

class UndoTest : public DesktopTest {
protected:
    void OpenDiagram() {
        ChooseFile(Sample("Townships.mdt"));
        Click("mnuFData");
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
    }
    std::string Cell(int row, int column) { return Sheet().Grid1.Text(row, column); }
    QLineEdit& EditCell() { return Find<QLineEdit>(Face(), "EditCell"); }
    QString UndoText() { return Item("mnuExtrasUndo").text(); }
    QString RedoText() { return Item("mnuExtrasRedo").text(); }
    void UndoByKey() { PressInWindow(Qt::Key_Z, Qt::ControlModifier); }
    void RedoByKey() { PressInWindow(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
};

TEST_F(UndoTest, TheKeysTakeCellEditsBackAndForth) {
    NewSheet(3, 2);
    EXPECT_FALSE(Item("mnuExtrasUndo").isEnabled());
    EXPECT_EQ(UndoText(), "&Undo");
    Press(Qt::Key_Right);
    Type("12");
    Press(Qt::Key_Return);
    Type("34");
    Press(Qt::Key_Return);
    EXPECT_EQ(UndoText(), "&Undo Edit Record 2, VAR  1");
    UndoByKey();
    EXPECT_EQ(Cell(2, 2), "0.000");
    UndoByKey();
    EXPECT_EQ(Cell(1, 2), "0.000");
    EXPECT_FALSE(Item("mnuExtrasUndo").isEnabled());
    EXPECT_EQ(RedoText(), "&Redo Edit Record 1, VAR  1");
    RedoByKey();
    RedoByKey();
    EXPECT_EQ(Cell(1, 2), "12.000");
    EXPECT_EQ(Cell(2, 2), "34.000");
    EXPECT_FALSE(Item("mnuExtrasRedo").isEnabled());
}

TEST_F(UndoTest, TheOpenFieldKeepsTheKeyForItself) {
    NewSheet(3, 2);
    Press(Qt::Key_Right);
    Type("5");
    Press(Qt::Key_Return);
    Press(Qt::Key_F2);
    EXPECT_EQ(EditCell().text(), "0.000");
    Type("7");
    EXPECT_EQ(EditCell().text(), "0.0007");
    UndoByKey();
    EXPECT_TRUE(EditCell().isVisible());
    EXPECT_EQ(EditCell().text(), "0.000");
    EXPECT_EQ(Cell(2, 2), "0.000") << "the grid follows the field";
    EXPECT_EQ(Cell(1, 2), "5.000") << "no step of the sheet";
    RedoByKey();
    EXPECT_EQ(EditCell().text(), "0.0007");
}

TEST_F(UndoTest, TheDescriptionKeepsTheKeyForItself) {
    NewSheet(3, 2);
    Press(Qt::Key_Right);
    Type("5");
    Press(Qt::Key_Return);
    auto& description = Find<QPlainTextEdit>(Face(), "OpisText");
    description.setFocus();
    Type("towns");
    UndoByKey();
    EXPECT_NE(description.toPlainText(), "towns");
    EXPECT_EQ(Cell(1, 2), "5.000");
}

TEST_F(UndoTest, AMoveByTheButtonIsNamedAndTakenBack) {
    OpenDiagram();
    const std::string first = Diagram().Siatka.Text(1, 1);
    const std::string second = Diagram().Siatka.Text(2, 1);
    DoubleClickCell(ActiveGrid(), 2, 1);
    Click("toolDiagram.Up");
    EXPECT_EQ(UndoText(), "&Undo Move " + ToQt(second) + " Up");
    UndoByKey();
    EXPECT_EQ(Diagram().Siatka.Text(1, 1), first);
    EXPECT_EQ(Diagram().SelectedRow, 2);
    EXPECT_EQ(Find<QLabel>(*desktop.mainWindow, "StatusText").text(), "Undone: Move " + ToQt(second) + " Up");
    RedoByKey();
    EXPECT_EQ(Diagram().Siatka.Text(1, 1), second);
    EXPECT_EQ(Diagram().SelectedRow, 1);
}

TEST_F(UndoTest, EachWindowHasItsOwnSteps) {
    OpenDiagram();
    ChildWindow* diagram = desktop.session.ActiveWindow;
    Click("mnuExtrasBestOrder");
    EXPECT_EQ(UndoText(), "&Undo Best Order");
    NewSheet(3, 2);
    EXPECT_EQ(UndoText(), "&Undo");
    EXPECT_FALSE(Item("mnuExtrasUndo").isEnabled());
    desktop.dispatch.Run([&] { ActivateChild(desktop.session, *diagram); });
    EXPECT_EQ(UndoText(), "&Undo Best Order");
    EXPECT_TRUE(Item("mnuExtrasUndo").isEnabled());
}

TEST_F(UndoTest, ADeletedRecordComesBackOnTheScreen) {
    NewSheet(3, 2);
    Press(Qt::Key_Down);
    AnswerNext("Yes");
    Click("mnuEditRecDelete");
    EXPECT_EQ(UndoText(), "&Undo Delete Record 2");
    UndoByKey();
    EXPECT_EQ(ActiveGrid().CellReading(2, 1), "Record 2");
    EXPECT_EQ(ActiveGrid().CellReading(3, 0), "3");
}

} // namespace dorvan::test
