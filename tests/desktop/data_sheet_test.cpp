#include "desktop_test.h"

#include "desktop/qt_text.h"

#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QPlainTextEdit>

namespace dorvan::test {

class DataSheetTest : public DesktopTest {
protected:
    DataSheetTest() { NewSheet(3, 2); }

    std::string Cell(int row, int column) { return Sheet().Grid1.Text(row, column); }
    QLineEdit& EditCell() { return Find<QLineEdit>(Face(), "EditCell"); }
};

TEST_F(DataSheetTest, TheGridHasTheFocusAndArrowsMoveTheCurrentCell) {
    EXPECT_EQ(QApplication::focusWidget(), &ActiveGrid());
    Press(Qt::Key_Right);
    Press(Qt::Key_Down);
    EXPECT_EQ(Sheet().Grid1.Row(), 2);
    EXPECT_EQ(Sheet().Grid1.Column(), 2);
    Press(Qt::Key_Left);
    Press(Qt::Key_Left);
    EXPECT_EQ(Sheet().Grid1.Column(), 1); // column 0 is fixed
}

TEST_F(DataSheetTest, TypingReplacesTheCellEvaluatesAndMovesDown) {
    Press(Qt::Key_Right);
    Type("2*3+1");
    EXPECT_TRUE(EditCell().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &EditCell());
    EXPECT_EQ(EditCell().text(), "2*3+1");
    EXPECT_EQ(Cell(1, 2), "2*3+1"); // shown while it is typed
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 2), "7.000");
    EXPECT_FALSE(EditCell().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &ActiveGrid());
    EXPECT_EQ(Sheet().Grid1.Row(), 2);
}

TEST_F(DataSheetTest, LettersOfNotAvailableAreRaisedAndOthersRefused) {
    Press(Qt::Key_Right);
    Type("nx/");
    Type("a");
    EXPECT_EQ(EditCell().text(), "N/A");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 2), "N/A");
}

TEST_F(DataSheetTest, EscRestoresTheTextFromBefore) {
    Press(Qt::Key_Right);
    Type("12");
    EXPECT_EQ(Cell(1, 2), "12");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Cell(1, 2), "0.000");
    EXPECT_FALSE(EditCell().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &ActiveGrid());
}

TEST_F(DataSheetTest, ArrowsAtTheEndsOfTheFieldMoveTheCurrentCell) {
    Press(Qt::Key_Right);
    Type("12");
    Press(Qt::Key_Left); // inside the text: the caret
    EXPECT_TRUE(EditCell().isVisible());
    EXPECT_EQ(EditCell().cursorPosition(), 1);
    Press(Qt::Key_Up); // only from the end
    EXPECT_TRUE(EditCell().isVisible());
    Press(Qt::Key_Right);
    Press(Qt::Key_Right); // at the end
    EXPECT_FALSE(EditCell().isVisible());
    EXPECT_EQ(Cell(1, 2), "12.000");
    EXPECT_EQ(Sheet().Grid1.Column(), 3);
    Type("5");
    Press(Qt::Key_Home);
    Press(Qt::Key_Left); // at the start
    EXPECT_EQ(Cell(1, 3), "5.000");
    EXPECT_EQ(Sheet().Grid1.Column(), 2);
    Press(Qt::Key_Down);
    Type("8");
    Press(Qt::Key_Up); // at the end
    EXPECT_EQ(Cell(2, 2), "8.000");
    EXPECT_EQ(Sheet().Grid1.Row(), 1);
}

TEST_F(DataSheetTest, F2AndEnterEditTheTextThatStandsThere) {
    Press(Qt::Key_F2);
    EXPECT_EQ(EditCell().text(), "Record 1");
    EXPECT_EQ(EditCell().cursorPosition(), 8);
    Type("x");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 1), "Record 1x");
    Press(Qt::Key_Return);
    EXPECT_EQ(EditCell().text(), "Record 2");
    Press(Qt::Key_Escape);
}

TEST_F(DataSheetTest, AFieldTakesNoMoreThanItsLongestText) {
    Press(Qt::Key_Right);
    Type("1234567890123456");
    EXPECT_EQ(EditCell().text(), "123456789012");
    Press(Qt::Key_Escape);
}

TEST_F(DataSheetTest, AClickOnAnotherCellCommitsTheOneThatWasEdited) {
    Press(Qt::Key_Right);
    Type("4");
    ClickCell(ActiveGrid(), 3, 3);
    EXPECT_EQ(Cell(1, 2), "4.000");
    EXPECT_EQ(Cell(3, 3), "0.000");
    EXPECT_EQ(Sheet().Grid1.Row(), 3);
    EXPECT_EQ(Sheet().Grid1.Column(), 3);
    EXPECT_FALSE(EditCell().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &ActiveGrid());
}

TEST_F(DataSheetTest, ATooLargeNumberIsRefusedAndTheCellKeepsWhatWasTyped) {
    Press(Qt::Key_Right);
    Type("10000000");
    AnswerNext("OK", "Number is way too large!\nEnter a number under 100 000 or so!");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 2), "10000000");
}

TEST_F(DataSheetTest, WhileADiagramIsMadeNoKeyOfTheGridDoesAnything) {
    ClickCell(ActiveGrid(), 2, 2);
    desktop.session.DiagramBusy = 1;
    for (const auto pressed :
         {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp,
          Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2, Qt::Key_Escape, Qt::Key_Space,
          Qt::Key_Backspace, Qt::Key_7, Qt::Key_X}) {
        Press(pressed);
        EXPECT_EQ(Sheet().Grid1.Row(), 2) << pressed;
        EXPECT_EQ(Sheet().Grid1.Column(), 2) << pressed;
        EXPECT_EQ(Cell(2, 2), "0.000") << pressed;
        EXPECT_FALSE(EditCell().isVisible()) << pressed;
    }
    desktop.session.DiagramBusy = 0;
    Press(Qt::Key_Up);
    EXPECT_EQ(Sheet().Grid1.Row(), 1);
}

TEST_F(DataSheetTest, ADoubleClickEditsAndMarksTheSheetAsChanged) {
    DoubleClickCell(ActiveGrid(), 2, 2);
    EXPECT_TRUE(EditCell().isVisible());
    EXPECT_EQ(EditCell().text(), "0.000");
    EXPECT_TRUE(desktop.session.DataStates.at(1).Dirty);
    Press(Qt::Key_Escape);
}

TEST_F(DataSheetTest, KeysAloneDoNotMarkTheSheetAsChanged) {
    Press(Qt::Key_Right);
    Type("1");
    Press(Qt::Key_Return);
    Click("mnuFileClose"); // no question
    EXPECT_TRUE(desktop.session.Children.empty());
}

TEST_F(DataSheetTest, TheDescriptionMarksTheSheetAsChanged) {
    auto& description = Find<QPlainTextEdit>(Face(), "OpisText");
    description.setFocus();
    Type("ab");
    EXPECT_EQ(Sheet().OpisText.Text, "ab");
    EXPECT_TRUE(desktop.session.DataStates.at(1).Dirty);
}

TEST_F(DataSheetTest, TheRightButtonOpensTheEditMenu) {
    auto* menu = desktop.mainWindow->findChild<QMenu*>("mnuEdit");
    QTest::mouseClick(ActiveGrid().viewport(), Qt::RightButton, {}, ActiveGrid().CellRect(1, 2).center());
    EXPECT_TRUE(menu->isVisible());
    menu->close();
}

TEST_F(DataSheetTest, SavesUnderAChosenNameAndReadsItBack) {
    Press(Qt::Key_Right);
    Type("1.5");
    Press(Qt::Key_Return);
    ChooseFile(Path("sheet"));
    Click("mnuSave");
    const QString path = Path("sheet.mdt");
    const std::string bytes =
        "Dorvan DATA 3.3\r\n\r\n[HEADER]\r\nDescription=\r\nRecCount=3\r\nVarCount=2\r\n\r\n"
        "[RECORD_LABEL]\r\nRecord 1\r\nRecord 2\r\nRecord 3\r\n\r\n"
        "[VARIABLE_LABEL]\r\nVAR  1\r\nVAR  2\r\n\r\n"
        "[DATA]\r\n1.500;0.000\r\n0.000;0.000\r\n0.000;0.000\r\n";
    EXPECT_EQ(BytesOf(path), bytes);
    EXPECT_EQ(FromQt(Face().windowTitle()), "[DATA]: " + FromQt(path.toLower()));
    Click("mnuFileClose");
    ChooseFile(path);
    Click("mnuFData");
    EXPECT_EQ(Cell(1, 2), "1.500");
    EXPECT_FALSE(desktop.session.DataStates.at(1).Dirty);
}

TEST_F(DataSheetTest, YesInTheQuestionSavesAndCloses) {
    desktop.session.DataStates.at(1).Dirty = true;
    AnswerNext("Yes");
    ChooseFile(Path("kept.mdt"));
    Face().close();
    QCoreApplication::processEvents();
    EXPECT_TRUE(desktop.session.Children.empty());
    EXPECT_EQ(BytesOf(Path("kept.mdt")).substr(0, 11), "Dorvan DATA");
}

TEST_F(DataSheetTest, TheWindowsOwnCloseControlAsks) {
    desktop.session.DataStates.at(1).Dirty = true;
    AnswerNext("Cancel");
    Face().close();
    QCoreApplication::processEvents();
    EXPECT_EQ(desktop.session.Children.size(), 1u);
    EXPECT_TRUE(Face().isVisible());
    AnswerNext("No");
    Face().close();
    QCoreApplication::processEvents();
    EXPECT_TRUE(desktop.session.Children.empty());
    EXPECT_TRUE(desktop.mainWindow->Area().subWindowList().isEmpty());
}

} // namespace dorvan::test
