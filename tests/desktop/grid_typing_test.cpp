#include "desktop_test.h"

#include "desktop/qt_text.h"
#include "distance/frmCustomized.h"
#include "distance/frmOpcjeMacierzy.h"
#include "export/frmExportOptions.h"
#include "export/frmTextOptions.h"
#include "import/frmImpDBF.h"
#include "import/frmImpMatrix.h"
#include "import/frmImportText.h"
#include "making/frmGenetic.h"
#include "making/frmGeneticUM.h"
#include "making/frmPrzedzal.h"
#include "print/frmOpisDiagramu.h"
#include "print/frmPrintMatrix.h"
#include "session/frmAbout.h"
#include "sheet/add_dialogs.h"
#include "sheet/frmDeleteVar.h"
#include "sheet/frmNowy.h"
#include "sheet/frmStandard.h"
#include "sheet/frmVar.h"
#include "view/frmDiagramType.h"
#include "view/frmHistogram.h"
#include "view/frmLiniowy.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QInputMethodQueryEvent>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>

namespace dorvan::test {

class GridTypingTest : public DesktopTest {
protected:
    GridTypingTest() { NewSheet(3, 3); }

    std::string Cell(int row, int column) { return Sheet().Grid1.Text(row, column); }
    QLineEdit& EditCell() { return Find<QLineEdit>(Face(), "EditCell"); }
    void ExpectCurrent(int row, int column) {
        EXPECT_EQ(Sheet().Grid1.Row(), row);
        EXPECT_EQ(Sheet().Grid1.Column(), column);
    }
    // As the window system hands over what dead keys or an input method have made.
    void Compose(const QString& text, const QString& unfinished = {}) {
        QInputMethodEvent event(unfinished, {});
        event.setCommitString(text);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    void PressMenuKey() {
        QWidget* focus = QApplication::focusWidget();
        const QPoint middle = focus->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, focus->mapToGlobal(middle));
        QCoreApplication::sendEvent(focus, &event);
    }
};

TEST_F(GridTypingTest, TabTakesTheCellAndMovesRightAndTheTypingGoesOn) {
    ClickCell(ActiveGrid(), 2, 2);
    Type("1+1");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Cell(2, 2), "2.000");
    EXPECT_FALSE(EditCell().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &ActiveGrid());
    ExpectCurrent(2, 3);
    Type("3");
    Press(Qt::Key_Tab);
    Type("4");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Cell(2, 3), "3.000");
    EXPECT_EQ(Cell(2, 4), "4.000");
    ExpectCurrent(2, 3);
    EXPECT_EQ(QApplication::focusWidget(), &ActiveGrid());
}

TEST_F(GridTypingTest, TabTakesANameAndStaysAtTheEndOfTheRow) {
    ClickCell(ActiveGrid(), 1, 1);
    Type("Georgia");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Cell(1, 1), "Georgia");
    ExpectCurrent(1, 2);
    ClickCell(ActiveGrid(), 1, 4);
    Type("5");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Cell(1, 4), "5.000");
    ExpectCurrent(1, 4);
    EXPECT_EQ(QApplication::focusWidget(), &ActiveGrid());
}

TEST_F(GridTypingTest, TabMovesAlongTheRowWithoutAnEditAndLeavesTheTableAtItsEnds) {
    ClickCell(ActiveGrid(), 2, 3);
    Press(Qt::Key_Tab);
    ExpectCurrent(2, 4);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    ExpectCurrent(2, 1);
    EXPECT_TRUE(ActiveGrid().hasFocus());
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    ExpectCurrent(2, 1);
    EXPECT_TRUE(Find<QPlainTextEdit>(Face(), "OpisText").hasFocus());
    Press(Qt::Key_Tab);
    EXPECT_TRUE(ActiveGrid().hasFocus());
    ClickCell(ActiveGrid(), 2, 4);
    Press(Qt::Key_Tab);
    EXPECT_FALSE(ActiveGrid().hasFocus());
    ExpectCurrent(2, 4);
}

TEST_F(GridTypingTest, TabDoesNothingInTheTableWhileADiagramIsMade) {
    ClickCell(ActiveGrid(), 2, 2);
    desktop.session.DiagramBusy = 1;
    Press(Qt::Key_Tab);
    ExpectCurrent(2, 2);
    EXPECT_TRUE(ActiveGrid().hasFocus());
    desktop.session.DiagramBusy = 0;
}

TEST_F(GridTypingTest, ATooLargeNumberLeftByTabIsRefused) {
    ClickCell(ActiveGrid(), 2, 2);
    Type("10000000");
    AnswerNext("OK", "Number is way too large!\nEnter a number under 100 000 or so!");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Cell(2, 2), "10000000");
    ExpectCurrent(2, 2);
}

TEST_F(GridTypingTest, AComposedCharacterOpensTheEditAsATypedOneDoes) {
    ClickCell(ActiveGrid(), 2, 1);
    Compose("é");
    EXPECT_TRUE(EditCell().hasFocus());
    EXPECT_EQ(EditCell().text(), "é");
    EXPECT_EQ(Cell(2, 1), "é"); // shown while it is typed
    Compose("łódź");            // in the field from here on
    Type("a");
    EXPECT_EQ(EditCell().text(), "éłódźa");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(2, 1), "éłódźa");
}

TEST_F(GridTypingTest, SeveralComposedCharactersAtOnceAllArrive) {
    ClickCell(ActiveGrid(), 3, 1);
    Compose("東京 12");
    EXPECT_EQ(EditCell().text(), "東京 12");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(3, 1), "東京 12");
}

TEST_F(GridTypingTest, AValueRefusesComposedLettersAsTypedOnes) {
    ClickCell(ActiveGrid(), 1, 2);
    Compose("é");
    EXPECT_EQ(EditCell().text(), "");
    Compose("1.é.5n"); // a second separator is refused, and "n" raised
    EXPECT_EQ(EditCell().text(), "1.5N");
    EXPECT_EQ(Cell(1, 2), "1.5N");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Cell(1, 2), "0.000");
}

TEST_F(GridTypingTest, ANameTakesNoMoreComposedCharactersThanItHasRoomFor) {
    ClickCell(ActiveGrid(), 1, 1);
    Compose("äëïöüäëïöüäëïöüäëïöü");
    EXPECT_EQ(EditCell().text(), "äëïöüäëïöüäëïöü");
    Press(Qt::Key_Escape);
}

TEST_F(GridTypingTest, WhatIsStillBeingComposedWritesNothing) {
    ClickCell(ActiveGrid(), 2, 1);
    Compose("", "´");
    EXPECT_FALSE(EditCell().isVisible());
    EXPECT_EQ(Cell(2, 1), "Record 2");
    desktop.session.DiagramBusy = 1;
    Compose("é");
    EXPECT_FALSE(EditCell().isVisible());
    desktop.session.DiagramBusy = 0;
}

TEST_F(GridTypingTest, WhatIsStillBeingComposedStandsOverItsCell) {
    ClickCell(ActiveGrid(), 2, 1);
    Compose("", "とうk");
    auto& unfinished = Find<QLabel>(*ActiveGrid().viewport(), "Unfinished");
    EXPECT_TRUE(unfinished.isVisible());
    EXPECT_EQ(unfinished.text(), "とうk");
    EXPECT_TRUE(unfinished.font().underline());
    EXPECT_EQ(unfinished.geometry().topLeft(), ActiveGrid().CellRect(2, 1).topLeft());
    EXPECT_GE(unfinished.width(), unfinished.sizeHint().width());
    Compose("", "");
    EXPECT_FALSE(unfinished.isVisible());
    Compose("", "とうきょう");
    EXPECT_EQ(unfinished.text(), "とうきょう");
    Compose("東京");
    EXPECT_FALSE(unfinished.isVisible());
    EXPECT_EQ(EditCell().text(), "東京");
    Press(Qt::Key_Return);
    Compose("", "´");
    ASSERT_TRUE(unfinished.isVisible());
    Find<QPlainTextEdit>(Face(), "OpisText").setFocus();
    EXPECT_FALSE(unfinished.isVisible());
}

TEST_F(GridTypingTest, AnInputMethodLearnsOfTheCurrentCell) {
    ClickCell(ActiveGrid(), 2, 3);
    QInputMethodQueryEvent query(Qt::ImEnabled | Qt::ImCursorRectangle);
    QCoreApplication::sendEvent(&ActiveGrid(), &query);
    EXPECT_TRUE(query.value(Qt::ImEnabled).toBool());
    EXPECT_EQ(query.value(Qt::ImCursorRectangle).toRect(), ActiveGrid().CellRect(2, 3));
}

TEST_F(GridTypingTest, AMatrixComposesNothing) {
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
    Click("mnuAnalysisMatrix");
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(&ActiveGrid(), &query);
    EXPECT_FALSE(query.value(Qt::ImEnabled).toBool());
    ActiveGrid().setFocus();
    Compose("é");
    EXPECT_EQ(Face().windowTitle(), "[MATRIX]: Untitled:1");
}

TEST_F(GridTypingTest, TheMenuKeyOpensTheMenuBelowTheCurrentCell) {
    ClickCell(ActiveGrid(), 2, 3);
    auto* menu = desktop.mainWindow->findChild<QMenu*>("mnuEdit");
    PressMenuKey();
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(menu->pos(), ActiveGrid().viewport()->mapToGlobal(ActiveGrid().CellRect(2, 3).bottomLeft()));
    menu->close();
    desktop.session.DiagramBusy = 1;
    PressMenuKey();
    EXPECT_FALSE(menu->isVisible());
    desktop.session.DiagramBusy = 0;
}

TEST_F(GridTypingTest, F2DoesNothingWhileADiagramIsMadeByADoubleClickEither) {
    ClickCell(ActiveGrid(), 2, 2);
    desktop.session.DiagramBusy = 1;
    Press(Qt::Key_F2);
    DoubleClickCell(ActiveGrid(), 2, 2);
    EXPECT_FALSE(EditCell().isVisible());
    EXPECT_TRUE(ActiveGrid().hasFocus());
    desktop.session.DiagramBusy = 0;
}

// Every dialog, and in it every field that can have the focus.
class EscapeTest : public DesktopTest {
protected:
    EscapeTest() {
        ChooseFile(Sample("Townships.mdt"));
        Click("mnuFData");
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
        sheet = desktop.session.Children.front().get();
    }

    template <class Dialog> void ExpectEscapeClosesIt(bool withSheet = false) {
        if (withSheet) desktop.session.ActiveWindow = sheet;
        auto& form = desktop.session.forms.Load<Dialog>(desktop.session);
        int fields = 1; // found at the first showing
        for (int place = 0; place < fields; ++place) {
            InDialog([&](QDialog& dialog) {
                QList<QWidget*> focusable;
                for (auto* widget : dialog.findChildren<QWidget*>())
                    if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus)
                        focusable += widget;
                fields = int(focusable.size());
                ASSERT_GT(fields, place) << form.Name;
                focusable[place]->setFocus();
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
                EXPECT_FALSE(dialog.isVisible())
                    << form.Name << " " << focusable[place]->objectName().toStdString();
                if (dialog.isVisible()) dialog.reject();
            });
            desktop.ports.forms.showModal(form);
            EXPECT_FALSE(form.Visible) << form.Name;
        }
        EXPECT_GT(fields, 0) << form.Name;
        if (withSheet) desktop.session.ActiveWindow = desktop.session.Children.back().get();
    }

    ChildWindow* sheet = nullptr;
};

TEST_F(EscapeTest, ClosesTheDialogsOfSheets) {
    ExpectEscapeClosesIt<frmNowy>();
    ExpectEscapeClosesIt<frmAddRec>(true);
    ExpectEscapeClosesIt<frmAddVar>(true);
    ExpectEscapeClosesIt<frmVar>(true);
    ExpectEscapeClosesIt<frmDeleteVar>(true);
    ExpectEscapeClosesIt<frmStandard>(true);
}

TEST_F(EscapeTest, ClosesTheDialogsOfMatricesAndDiagrams) {
    ExpectEscapeClosesIt<frmOpcjeMacierzy>();
    ExpectEscapeClosesIt<frmCustomized>();
    ExpectEscapeClosesIt<frmPrzedzal>();
    ExpectEscapeClosesIt<frmGenetic>();
    ExpectEscapeClosesIt<frmGeneticUM>();
    desktop.session.NewWindowIndex = 1;
    ExpectEscapeClosesIt<frmHistogram>();
    ExpectEscapeClosesIt<frmDiagramType>();
    ExpectEscapeClosesIt<frmLiniowy>();
}

TEST_F(EscapeTest, ClosesTheDialogsOfFilesAndPrints) {
    ExpectEscapeClosesIt<frmImportText>();
    ExpectEscapeClosesIt<frmImpMatrix>();
    ExpectEscapeClosesIt<frmImpDBF>();
    ExpectEscapeClosesIt<frmExportOptions>();
    ExpectEscapeClosesIt<frmTextOptions>();
    ExpectEscapeClosesIt<frmPrintMatrix>();
    ExpectEscapeClosesIt<frmOpisDiagramu>();
    ExpectEscapeClosesIt<frmAbout>();
}

} // namespace dorvan::test
