#include "desktop_test.h"

#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolBar>

namespace dorvan::test {

// An edit that its user leaves in every way there is, by the events of the window system.
class OpenEditTest : public DesktopTest {
protected:
    OpenEditTest() {
        NewSheet(3, 3);
        sheet = &Sheet();
        face = &Face();
    }

    std::string Cell(int row, int column) { return sheet->Grid1.Text(row, column); }
    GridWidget& SheetGrid() { return *face->findChild<GridWidget*>(); }
    QLineEdit& EditCell() { return Find<QLineEdit>(*face, "EditCell"); }
    QPlainTextEdit& Description() { return Find<QPlainTextEdit>(*face, "OpisText"); }

    void TypeInto(int row, int column, const QString& text) {
        BackFromDialog();
        ClickOnCell(row, column);
        Type(text);
        ASSERT_TRUE(EditCell().hasFocus());
        ASSERT_TRUE(sheet->Editing);
    }
    // A window manager gives the focus back of its own accord; offscreen there is none.
    void BackFromDialog() {
        if (QGuiApplication::platformName() != "xcb") QApplication::setActiveWindow(desktop.mainWindow.get());
    }
    void ClickOnCell(int row, int column) {
        ClickOn(*SheetGrid().viewport(), PlaceOf(SheetGrid(), row, column));
    }
    void ExpectCommitted(const std::string& text) {
        EXPECT_EQ(Cell(1, 2), text);
        EXPECT_FALSE(sheet->Editing);
        EXPECT_FALSE(EditCell().isVisible());
        EXPECT_EQ(EditCell().text(), "");
    }

    frmNotePad* sheet = nullptr;
    ChildFace* face = nullptr;
};

TEST_F(OpenEditTest, AClickOnAnotherCellWritesTheCellAndTakesTheCurrentOneThere) {
    TypeInto(1, 2, "1+2");
    ClickOnCell(3, 3);
    ExpectCommitted("3.000");
    EXPECT_EQ(Cell(3, 3), "0.000");
    EXPECT_EQ(sheet->Grid1.Row(), 3);
    EXPECT_EQ(sheet->Grid1.Column(), 3);
    EXPECT_TRUE(SheetGrid().hasFocus());
}

TEST_F(OpenEditTest, AMillionLeftByAClickIsRefused) {
    TypeInto(1, 2, "5000000");
    AnswerNext("OK", "Number is way too large!\nEnter a number under 100 000 or so!");
    ClickOnCell(2, 3);
    ExpectCommitted("5000000"); // as it was typed
    TypeInto(1, 2, "999999");
    ClickOnCell(2, 3);
    ExpectCommitted("999999.000");
}

TEST_F(OpenEditTest, TenMillionsLeftByAClickAreRefusedBeforeTheClickMovesTheCurrentCell) {
    TypeInto(1, 2, "10000000");
    AnswerNext("OK", "Number is way too large!\nEnter a number under 100 000 or so!");
    ClickOnCell(2, 3);
    EXPECT_EQ(Cell(1, 2), "10000000");
    EXPECT_EQ(sheet->Grid1.Row(), 2) << "the click takes place all the same";
}

TEST_F(OpenEditTest, TheMarkerOfMissingValuesLeftByAClickStandsAsANumber) {
    TypeInto(1, 2, "-9999999");
    ClickOnCell(2, 2);
    ExpectCommitted("-9999999.000");
    TypeInto(1, 2, "-9999999");
    Press(Qt::Key_Return);
    ExpectCommitted("N/A");
}

TEST_F(OpenEditTest, ANameOfDigitsLeftByAClickStaysAName) {
    TypeInto(2, 1, "007");
    ClickOnCell(3, 3);
    EXPECT_EQ(Cell(2, 1), "007");
    EXPECT_EQ(Cell(3, 3), "0.000");
    TypeInto(1, 2, "4");
    ClickOnCell(3, 1); // a value left for a name
    ExpectCommitted("4.000");
    EXPECT_EQ(Cell(3, 1), "Record 3");
}

TEST_F(OpenEditTest, AClickOnTheSameCellWritesItToo) {
    TypeInto(1, 2, "5000000");
    ClickOnCell(1, 2);
    ExpectCommitted("5000000.000"); // the higher limit: the current cell is still this one
}

TEST_F(OpenEditTest, AnEmptiedFieldLeftByAClickStaysEmpty) {
    ClickOnCell(1, 2);
    Press(Qt::Key_F2);
    for (int character = 0; character < 5; ++character) Press(Qt::Key_Backspace);
    ClickOnCell(2, 2);
    EXPECT_EQ(Cell(1, 2), "");
    EXPECT_FALSE(EditCell().isVisible());
    EXPECT_FALSE(sheet->Editing);
}

TEST_F(OpenEditTest, TheRightButtonCommitsMovesAndOpensTheMenu) {
    TypeInto(1, 2, "8");
    auto* menu = desktop.mainWindow->findChild<QMenu*>("mnuEdit");
    ClickOn(*SheetGrid().viewport(), PlaceOf(SheetGrid(), 2, 3), Qt::RightButton);
    ExpectCommitted("8.000");
    EXPECT_EQ(sheet->Grid1.Row(), 2);
    EXPECT_TRUE(menu->isVisible());
    menu->close();
}

TEST_F(OpenEditTest, AClickIntoTheDescriptionKeepsTheFocusThere) {
    TypeInto(1, 2, "7");
    ClickOn(*Description().viewport());
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), &Description());
    Type("ab");
    ExpectCommitted("7.000");
    EXPECT_EQ(sheet->OpisText.Text, "ab");
}

TEST_F(OpenEditTest, AShortcutTakesTheCommandAfterTheCommit) {
    TypeInto(1, 2, "1+2");
    ChooseFile(Path("shortcut.mdt"));
    PressInWindow(Qt::Key_S, Qt::ControlModifier);
    ExpectCommitted("3.000");
    EXPECT_NE(BytesOf(Path("shortcut.mdt")).find("[DATA]\r\n3.000;0.000"), std::string::npos);
    BackFromDialog();
    EXPECT_TRUE(SheetGrid().hasFocus());
}

TEST_F(OpenEditTest, AToolbarButtonTakesTheCommandAfterTheCommit) {
    TypeInto(1, 2, "1+2");
    ChooseFile(Path("button.mdt"));
    ClickOn(Find<QWidget>(Find<QToolBar>(*desktop.mainWindow, "toolMain"), "toolMain.Save"));
    ExpectCommitted("3.000");
    EXPECT_NE(BytesOf(Path("button.mdt")).find("[DATA]\r\n3.000;0.000"), std::string::npos);
}

TEST_F(OpenEditTest, AMenuItemTakesTheCommandAfterTheCommitAndAnOpenMenuCommitsNothing) {
    TypeInto(1, 2, "1+2");
    auto* menu = desktop.mainWindow->findChild<QMenu*>("mnuFile");
    menu->popup(desktop.mainWindow->mapToGlobal(QPoint(10, 30)));
    QCoreApplication::processEvents();
    EXPECT_TRUE(sheet->Editing);
    EXPECT_EQ(Cell(1, 2), "1+2");
    ChooseFile(Path("menu.mdt"));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&Item("mnuSaveAs")).center());
    ExpectCommitted("3.000");
    EXPECT_NE(BytesOf(Path("menu.mdt")).find("[DATA]\r\n3.000;0.000"), std::string::npos);
}

TEST_F(OpenEditTest, TheAnalysisReadsTheCommittedValue) {
    TypeInto(1, 2, "10/4");
    InDialog([this](QDialog& dialog) {
        ExpectCommitted("2.500"); // before the dialog is up
        Find<QPushButton>(dialog, "Command2").click();
    });
    PressInWindow(Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(Face().windowTitle(), "[MATRIX]: Untitled:1");
    EXPECT_EQ(desktop.session.MatrixDocuments.at(1).Cells(1, 2), "2.5");
    ExpectCommitted("2.500");
}

TEST_F(OpenEditTest, TheDiagramReadsTheCommittedValueToo) {
    TypeInto(1, 2, "10/4");
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
    PressInWindow(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(desktop.session.DiagramDocuments.at(1).Matrix(1, 2), 2.5f);
}

TEST_F(OpenEditTest, NewAndOpenCommit) {
    TypeInto(1, 2, "1+2");
    InDialog([this](QDialog& dialog) {
        ExpectCommitted("3.000");
        dialog.reject();
    });
    PressInWindow(Qt::Key_N, Qt::ControlModifier);
    TypeInto(1, 2, "2+2");
    ChooseFile(Sample("Townships.mdt"));
    PressInWindow(Qt::Key_O, Qt::ControlModifier);
    ExpectCommitted("4.000");
    EXPECT_NE(desktop.session.ActiveWindow, sheet);
}

TEST_F(OpenEditTest, AClickIntoAnotherWindowCommits) {
    NewSheet(2, 2);
    ChildFace* other = &Face();
    Click("mnuTile");
    desktop.mainWindow->Area().setActiveSubWindow(face);
    QCoreApplication::processEvents();
    TypeInto(1, 2, "1+2");
    auto& otherGrid = *other->findChild<GridWidget*>();
    ClickOn(*otherGrid.viewport(), PlaceOf(otherGrid, 2, 2));
    QCoreApplication::processEvents();
    ExpectCommitted("3.000");
    EXPECT_EQ(&Face(), other);
    EXPECT_TRUE(otherGrid.hasFocus());
    EXPECT_EQ(Sheet().Grid1.Row(), 2);
}

TEST_F(OpenEditTest, ControlAndTabCommitAndTheGridHasTheFocusOnTheWayBack) {
    NewSheet(2, 2);
    desktop.mainWindow->Area().setActiveSubWindow(face);
    QCoreApplication::processEvents();
    TypeInto(1, 2, "1+2");
    const auto switchWindows = [this] {
        QWindow* window = desktop.mainWindow->windowHandle();
        QTest::keyPress(window, Qt::Key_Control);
        QTest::keyClick(window, Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyRelease(window, Qt::Key_Control);
        QCoreApplication::processEvents();
    };
    switchWindows();
    ExpectCommitted("3.000");
    EXPECT_NE(desktop.session.ActiveWindow, sheet);
    switchWindows();
    EXPECT_EQ(desktop.session.ActiveWindow, sheet);
    EXPECT_TRUE(SheetGrid().hasFocus());
}

TEST_F(OpenEditTest, ClosingTheWindowCommitsBeforeItsQuestion) {
    TypeInto(1, 2, "1+2");
    desktop.session.DataStates.at(1).Dirty = true;
    AnswerNext("Yes");
    ChooseFile(Path("closed.mdt"));
    face->close();
    EXPECT_NE(BytesOf(Path("closed.mdt")).find("[DATA]\r\n3.000;0.000"), std::string::npos);
}

TEST_F(OpenEditTest, ADialogThatNoCommandOpenedTakesTheFocusToo) {
    TypeInto(1, 2, "1+2");
    QDialog dialog(desktop.mainWindow.get());
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QCoreApplication::processEvents();
    ExpectCommitted("3.000");
}

TEST_F(OpenEditTest, AnotherProgramInFrontLeavesItOpen) {
    TypeInto(1, 2, "1+2");
    QApplication::setActiveWindow(nullptr);
    QCoreApplication::processEvents();
    EXPECT_TRUE(sheet->Editing);
    EXPECT_EQ(Cell(1, 2), "1+2");
    QApplication::setActiveWindow(desktop.mainWindow.get());
    Press(Qt::Key_Return);
    ExpectCommitted("3.000");
}

TEST_F(OpenEditTest, ALongNameEditedAfterAValueIsNotCut) {
    sheet->Grid1.SetText(2, 1, "Fifteen letters");
    sheet->Grid1.SetText(3, 1, "A name longer than can be typed");
    TypeInto(1, 2, "1");
    Press(Qt::Key_Return);
    ClickOnCell(2, 1);
    Press(Qt::Key_F2);
    EXPECT_EQ(EditCell().text(), "Fifteen letters");
    Press(Qt::Key_X); // no room
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(2, 1), "Fifteen letters");
    Press(Qt::Key_F2); // moved down
    EXPECT_EQ(EditCell().text(), "A name longer than can be typed");
    Press(Qt::Key_X);
    EXPECT_EQ(EditCell().text(), "A name longer than can be typed");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(3, 1), "A name longer than can be typed");
    ClickOnCell(1, 1);
    Type("1234567890123456");
    EXPECT_EQ(EditCell().text(), "123456789012345");
    Press(Qt::Key_Escape);
}

} // namespace dorvan::test
