#include "desktop_test.h"

#include "desktop/workspace_hint.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFile>
#include <QMdiArea>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

namespace dorvan::test {

class ShellTest : public DesktopTest {
protected:
    void Drop(const QStringList& paths) {
        QMimeData files;
        QList<QUrl> urls;
        for (const auto& path : paths) urls << QUrl::fromLocalFile(path);
        files.setUrls(urls);
        QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(desktop.mainWindow.get(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(desktop.mainWindow.get(), &drop);
        EXPECT_TRUE(drop.isAccepted());
        desktop.dispatch.RunWaiting();
    }
    void MakeDiagram() {
        InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command3").click(); });
        Click("mnuAnalysisDiagram");
    }
    QMenu& PopUpOver(QWidget& widget) {
        const QPoint place = widget.rect().center();
        QTest::mouseClick(&widget, Qt::RightButton, Qt::NoModifier, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &event);
        QCoreApplication::processEvents();
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) throw std::runtime_error("no menu has opened");
        return *menu;
    }
    static QStringList Names(const QMenu& menu) {
        QStringList names;
        for (const QAction* action : menu.actions())
            names << (action->isSeparator() ? QString("-") : action->objectName());
        return names;
    }
};

TEST_F(ShellTest, FilesDroppedOnTheWindowOpen) {
    AnswerNext("OK",
               "Only sheets (.mdt), matrices (.mtx) and diagrams (.dgr) open this way; File, Import reads "
               "tables of other programs:\n  /tmp/notes.txt\n  /tmp/a.csv");
    Drop({Sample("Townships.mdt"), "/tmp/notes.txt", Sample("USArrests.mdt"), "/tmp/a.csv"});
    EXPECT_EQ(desktop.session.Children.size(), 2u);
    EXPECT_TRUE(Face().windowTitle().endsWith("usarrests.mdt"));
}

TEST_F(ShellTest, TextDroppedOnTheWindowIsLeftAlone) {
    QMimeData text;
    text.setText("no file");
    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(desktop.mainWindow.get(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(ShellTest, TheEmptyWorkspaceSaysWhatCanBeDone) {
    auto& hint = Find<WorkspaceHint>(*desktop.mainWindow, "WorkspaceHint");
    EXPECT_TRUE(hint.isVisible());
    const QRect room = desktop.mainWindow->Area().geometry();
    EXPECT_TRUE(room.contains(hint.geometry()));
    EXPECT_NEAR(hint.geometry().center().x(), room.center().x(), 2);
    desktop.mainWindow->resize(900, 600);
    QCoreApplication::processEvents();
    EXPECT_NEAR(hint.geometry().center().x(), desktop.mainWindow->Area().geometry().center().x(), 2);
    Find<QPushButton>(hint, "HintSample").click();
    EXPECT_FALSE(hint.isVisible());
    EXPECT_TRUE(Face().windowTitle().endsWith("usarrests.mdt"));
    Click("mnuFileClose");
    EXPECT_TRUE(hint.isVisible());
    ChooseFile(Sample("iris.mdt"));
    Find<QPushButton>(hint, "HintOpen").click();
    EXPECT_TRUE(Face().windowTitle().endsWith("iris.mdt"));
    Click("mnuFileClose");
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command1").click(); });
    Find<QPushButton>(hint, "HintNew").click();
    EXPECT_EQ(Face().windowTitle(), "[DATA]: Untitled:1");
}

TEST_F(ShellTest, ADiagramOpensItsMenuAtThePointer) {
    ChooseFile(Sample("Townships.mdt"));
    Click("mnuFData");
    MakeDiagram();
    QMenu& menu = PopUpOver(*ActiveGrid().viewport());
    const QStringList names = Names(menu);
    EXPECT_EQ(names.first(), "mnuEditSelect");
    EXPECT_EQ(names.last(), "mnuExtrasCopyPicture");
    EXPECT_EQ(names.count("-"), 4);
    for (const QAction* action : menu.actions())
        EXPECT_EQ(action->isEnabled(),
                  !QStringList({"mnuExtrasUndo", "mnuExtrasRedo"}).contains(action->objectName()))
            << action->objectName().toStdString();
    const int row = Diagram().Siatka.Row();
    menu.actions().first()->trigger();
    menu.close();
    EXPECT_EQ(Diagram().SelectedRow, row) << "the row under the pointer";
}

TEST_F(ShellTest, AMatrixAndABitmapOpenTheirMenus) {
    ChooseFile(Sample("Townships.mdt"));
    Click("mnuFData");
    MakeDiagram();
    Click("mnuEditCreateMatrix");
    QMenu& ofMatrix = PopUpOver(*ActiveGrid().viewport());
    EXPECT_EQ(Names(ofMatrix).first(), "toolMain.MakeDiagram");
    for (const QAction* action : ofMatrix.actions())
        EXPECT_TRUE(action->isEnabled()) << action->objectName().toStdString();
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmPrzedzal");
        Find<QPushButton>(dialog, "Command2").click();
    });
    ofMatrix.actions().first()->trigger();
    ofMatrix.close();
    desktop.session.MatrixStates.at(1).Dirty = false;
    Click("mnuFileClose");
    Click("mnuExportBitmap");
    QMenu& ofBitmap = PopUpOver(Find<QWidget>(Face(), "Bmp"));
    EXPECT_EQ(Names(ofBitmap).first(), "mnuEditCopyClip");
    ofBitmap.close();
}

TEST_F(ShellTest, NoMenuOpensWhileADiagramIsMade) {
    ChooseFile(Sample("Townships.mdt"));
    Click("mnuFData");
    MakeDiagram();
    desktop.session.DiagramBusy = 1;
    EXPECT_THROW(PopUpOver(*ActiveGrid().viewport()), std::runtime_error);
    desktop.session.DiagramBusy = 0;
}

TEST_F(ShellTest, TheListOfDocumentsBringsAWindowToTheFront) {
    NewSheet(2, 2);
    NewSheet(3, 3);
    EXPECT_EQ(Item("mnuExtrasDocument(2)").text(), "&2 [DATA]: Untitled:1");
    EXPECT_TRUE(Item("mnuExtrasDocument(1)").isChecked());
    Click("mnuExtrasDocument(2)");
    EXPECT_EQ(Face().windowTitle(), "[DATA]: Untitled:1");
    EXPECT_EQ(desktop.mainWindow->Area().activeSubWindow(), &Face());
    EXPECT_EQ(Item("mnuExtrasDocument(1)").text(), "&1 [DATA]: Untitled:1");
    EXPECT_FALSE(Item("mnuExtrasDocument(3)").isVisible());
}

TEST_F(ShellTest, ControlAndTabGoToTheSecondDocumentOfTheList) {
    for (int sheet = 0; sheet < 4; ++sheet) NewSheet(2, 2);
    Click("mnuExtrasDocument(3)"); // no longer the order in which they were opened
    const auto listed = [this] {
        std::string names;
        for (int number = 1; number <= 4; ++number)
            names += Item(QString("mnuExtrasDocument(%1)").arg(number)).text().right(1).toStdString();
        return names;
    };
    EXPECT_EQ(listed(), "2431");
    for (const char* expected : {"4231", "2431"}) {
        QTest::keyClick(desktop.mainWindow->windowHandle(), Qt::Key_Tab, Qt::ControlModifier);
        QCoreApplication::processEvents();
        EXPECT_EQ(Face().windowTitle().right(1).toStdString(), std::string(expected, 1));
        EXPECT_EQ(listed(), expected);
    }
}

// Held down, Control takes each Tab one window further; the menu lists them in this order when it starts.
TEST_F(ShellTest, ControlHeldGoesThroughTheDocumentsAsTheyAreListed) {
    for (int sheet = 0; sheet < 5; ++sheet) NewSheet(2, 2);
    Click("mnuFileClose"); // the last one that was opened
    Click("mnuExtrasDocument(3)");
    const auto front = [this] { return Face().windowTitle().right(1).toStdString(); };
    int pause = QApplication::keyboardInputInterval() + 50; // no quick press
    const auto send = [](QEvent::Type type, int key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(type, key, modifiers);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    };
    const auto hold = [&](int tabs, int tab, Qt::KeyboardModifiers modifiers) {
        send(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier);
        QTest::qWait(pause);
        for (int press = 0; press < tabs; ++press) {
            send(QEvent::KeyPress, tab, modifiers);
            send(QEvent::KeyRelease, tab, modifiers);
        }
        send(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier);
        QCoreApplication::processEvents();
    };
    ASSERT_EQ(front(), "2"); // listed: 2 4 3 1
    hold(1, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(front(), "4"); // 4 2 3 1
    hold(2, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(front(), "3"); // 3 4 2 1
    hold(3, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(front(), "1"); // 1 3 4 2
    hold(4, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(front(), "1");
    hold(1, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(front(), "2"); // 2 1 3 4
    pause = 0;               // as quick as fingers can
    hold(2, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(front(), "3");
}

} // namespace dorvan::test
