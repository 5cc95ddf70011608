#include "desktop_test.h"

#include "desktop/qt_text.h"
#include "session/menus.h"

#include <QAction>
#include <QKeySequence>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace dorvan::test {

namespace {

void ExpectMenu(const QMenu& menu, const std::vector<MenuItem>& items) {
    const auto actions = menu.actions();
    ASSERT_EQ(actions.size(), qsizetype(items.size())) << menu.objectName().toStdString();
    for (int place = 0; place < actions.size(); ++place) {
        const QAction& action = *actions[place];
        const MenuItem& item = items[std::size_t(place)];
        EXPECT_EQ(action.objectName().toStdString(), item.Name);
        EXPECT_EQ(action.isSeparator(), item.IsSeparator()) << item.Name;
        if (item.Hidden) {
            EXPECT_FALSE(action.isVisible()) << item.Name;
        }
        if (item.IsSeparator()) {
            EXPECT_EQ(action.text(), ""); // some styles would show it
            continue;
        }
        EXPECT_EQ(FromQt(action.text()), item.Caption);
        const QString shortcut = item.Hidden ? QString() : ToQt(item.Shortcut);
        EXPECT_EQ(FromQt(action.shortcut().toString()), FromQt(shortcut)) << item.Name;
        if (!item.Items.empty()) ExpectMenu(*action.menu(), item.Items);
    }
}

} // namespace

using MainWindowTest = DesktopTest;

TEST_F(MainWindowTest, CarriesTheProgramsCaption) {
    EXPECT_EQ(desktop.mainWindow->windowTitle().toStdString(), "Dorvan 3.3.44");
    EXPECT_EQ(desktop.mainWindow->objectName(), "frmMDI");
}

TEST_F(MainWindowTest, MenusFollowTheMenuTreeItemByItem) {
    const auto actions = desktop.mainWindow->menuBar()->actions();
    const auto tree = MenuTree();
    ASSERT_EQ(actions.size(), qsizetype(tree.size()));
    for (int place = 0; place < actions.size(); ++place) {
        const auto& entry = tree[std::size_t(place)];
        EXPECT_EQ(FromQt(actions[place]->text()), entry.Caption);
        EXPECT_EQ(actions[place]->objectName().toStdString(), entry.Name);
        ExpectMenu(*actions[place]->menu(), entry.Items);
    }
}

TEST_F(MainWindowTest, ToolbarsFollowTheirTablesWithToolTipsIconsAndAccessibleNames) {
    for (const auto& toolbar : Toolbars()) {
        auto& bar = Find<QToolBar>(*desktop.mainWindow, ToQt(toolbar.Name));
        EXPECT_EQ(FromQt(bar.accessibleName()), toolbar.Spoken);
        int place = 0;
        for (const auto& button : toolbar.Buttons) {
            if (button.Gap) {
                EXPECT_TRUE(bar.actions().at(place++)->isSeparator()) << button.Key;
            }
            auto* action = bar.actions().at(place++);
            EXPECT_EQ(FromQt(action->toolTip()), button.ToolTip);
            EXPECT_FALSE(action->icon().isNull()) << button.Key;
            EXPECT_EQ(FromQt(bar.widgetForAction(action)->accessibleName()), button.ToolTip);
        }
        EXPECT_EQ(place, bar.actions().size());
    }
}

TEST_F(MainWindowTest, StartsWithTheMainToolbarAloneAndDocumentCommandsOff) {
    for (const auto& toolbar : Toolbars())
        EXPECT_EQ(Find<QToolBar>(*desktop.mainWindow, ToQt(toolbar.Name)).isVisible(),
                  toolbar.Name == "toolMain")
            << toolbar.Name;
    for (const auto* off :
         {"mnuSave", "mnuSaveAs", "mnuFileClose", "mnuFilePrint", "mnuExport", "mnuEditUp",
          "mnuAnalysisMatrix", "mnuAnalysisDiagram", "toolMain.Save", "toolMain.MakeMatrix"})
        EXPECT_FALSE(Item(off).isEnabled()) << off;
    for (const auto* on : {"mnuFNew", "mnuFData", "mnuFDiagram", "mnuFMatrix", "mnuFExit", "toolMain.New",
                           "toolMain.Open", "toolMain.Help"})
        EXPECT_TRUE(Item(on).isEnabled()) << on;
}

TEST_F(MainWindowTest, HiddenItemsAndEmptyRecentFilesAreNotSeen) {
    for (const auto* hidden : {"mnuRaport", "mnuEditCell"}) EXPECT_FALSE(Item(hidden).isVisible()) << hidden;
    for (int index = 0; index < RecentFileItems; ++index)
        EXPECT_FALSE(Item(ToQt(RecentFileItem(index))).isVisible()) << index;
    EXPECT_TRUE(Item("mnuSeparator").isVisible());
    EXPECT_TRUE(Item("mnuSeparator").isSeparator());
}

TEST_F(MainWindowTest, TheExtrasMenuShowsAsSoonAsAnItemStandsInIt) {
    if (ExtrasRows().empty()) {
        EXPECT_EQ(desktop.mainWindow->findChild<QMenu*>("mnuExtras"), nullptr);
    }
    auto& session = desktop.session;
    session.commands.Add({.Menu = ExtrasMenu,
                          .Item = "mnuExtrasMirror",
                          .Caption = "&Mirror",
                          .Shortcut = "Ctrl+Alt+M",
                          .Checkable = true,
                          .Calls = {.Data = "MirrorSheet"}});
    int calls = 0;
    session.commands.Set("MirrorSheet", [&](const CommandCall&) {
        session.mainWindow.CheckMenu("mnuExtrasMirror", ++calls % 2 == 1);
    });
    MainWindowFace face(session, desktop.shell, desktop.dispatch);
    const auto menus = face.menuBar()->actions();
    ASSERT_EQ(menus.size(), 7);
    EXPECT_EQ(FromQt(menus[4]->text()), "&Window");
    EXPECT_EQ(FromQt(menus[5]->text()), "E&xtras");
    EXPECT_EQ(FromQt(menus[6]->text()), "&Help");
    auto& item = Find<QAction>(face, "mnuExtrasMirror");
    EXPECT_TRUE(menus[5]->menu()->actions().contains(&item));
    EXPECT_EQ(FromQt(item.shortcut().toString()), "Ctrl+Alt+M");
    EXPECT_FALSE(item.isEnabled()) << "no sheet is open";
    NewSheet(2, 1);
    EXPECT_TRUE(item.isEnabled());
    item.trigger();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(item.isChecked());
    EXPECT_TRUE(Find<QAction>(face, "mnuOToolbar").isChecked()) << "a mark of its own";
    item.trigger();
    EXPECT_EQ(calls, 2);
    EXPECT_FALSE(item.isChecked());
}

TEST_F(MainWindowTest, ARecentFileShowsItsWholePathAlsoWithAnAmpersand) {
    const std::string item = RecentFileItem(1);
    desktop.session.mainWindow.SetMenuCaption(item, "/home/ann/bread&butter.mdt");
    desktop.session.mainWindow.ShowMenu(item, true);
    desktop.dispatch.Mirror();
    EXPECT_TRUE(Item(ToQt(item)).isVisible());
    EXPECT_EQ(Item(ToQt(item)).text(), "/home/ann/bread&&butter.mdt");
}

TEST_F(MainWindowTest, TheToolbarCommandTogglesTheMainToolbarAndItsCheckMark) {
    auto& bar = Find<QToolBar>(*desktop.mainWindow, "toolMain");
    EXPECT_TRUE(Item("mnuOToolbar").isChecked());
    Click("mnuOToolbar");
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(Item("mnuOToolbar").isChecked());
    Click("mnuOToolbar");
    EXPECT_TRUE(bar.isVisible());
    EXPECT_TRUE(Item("mnuOToolbar").isChecked());
}

TEST_F(MainWindowTest, ASheetTurnsItsCommandsOnAndItsClosingTurnsThemOff) {
    NewSheet(3, 2);
    EXPECT_TRUE(Find<QToolBar>(*desktop.mainWindow, "toolData").isVisible());
    for (const auto* on : {"mnuSave", "mnuSaveAs", "mnuFileClose", "mnuAnalysisMatrix", "mnuAnalysisDiagram",
                           "toolMain.Save", "toolMain.MakeDiagram"})
        EXPECT_TRUE(Item(on).isEnabled()) << on;
    EXPECT_FALSE(Item("toolMain.Print").isEnabled());
    Click("mnuFileClose");
    EXPECT_FALSE(Find<QToolBar>(*desktop.mainWindow, "toolData").isVisible());
    EXPECT_FALSE(Item("mnuSave").isEnabled());
    EXPECT_FALSE(Item("toolMain.MakeDiagram").isEnabled());
}

TEST_F(MainWindowTest, CaptionsAndCascadeTileAndIcons) {
    NewSheet(3, 2);
    ChildFace& first = Face();
    NewSheet(4, 2);
    ChildFace& second = Face();
    EXPECT_EQ(first.windowTitle().toStdString(), "[DATA]: Untitled:1");
    EXPECT_EQ(second.windowTitle().toStdString(), "[DATA]: Untitled:2");
    Click("mnuTile");
    EXPECT_FALSE(first.geometry().intersects(second.geometry()));
    Click("mnuCascade");
    EXPECT_TRUE(first.geometry().intersects(second.geometry()));
    EXPECT_NE(first.pos(), second.pos());
    first.showMinimized();
    second.showMinimized();
    Click("mnuArrangeIcons");
    const int bottom = desktop.mainWindow->Area().viewport()->height();
    EXPECT_EQ(first.geometry().bottom() + 1, bottom);
    EXPECT_EQ(second.geometry().bottom() + 1, bottom);
    EXPECT_FALSE(first.geometry().intersects(second.geometry()));
}

TEST_F(MainWindowTest, ANewWindowFitsIntoTheArea) {
    desktop.mainWindow->resize(700, 500);
    QCoreApplication::processEvents();
    NewSheet(3, 2);
    EXPECT_EQ(Face().pos(), QPoint(0, 0));
    EXPECT_LE(Face().width(), desktop.mainWindow->Area().viewport()->width());
    EXPECT_LE(Face().height(), desktop.mainWindow->Area().viewport()->height());
}

TEST_F(MainWindowTest, ANewWindowIsInItsNormalStateEvenInFrontOfAMaximizedOne) {
    NewSheet(3, 2);
    ChildFace& first = Face();
    first.showMaximized();
    QCoreApplication::processEvents();
    EXPECT_EQ(Sheet().Mode, WindowMode::Maximized);
    NewSheet(4, 2);
    EXPECT_FALSE(Face().isMaximized());
    EXPECT_EQ(Sheet().Mode, WindowMode::Normal);
    EXPECT_EQ(Face().pos(), QPoint(0, 0));
    EXPECT_EQ(Face().height(), desktop.ports.screen.height() * 8 / 10 / 15);
}

// What the toolkit reports on the way from one state to another moved the focus, and so on without an end.
TEST_F(MainWindowTest, SevenWindowsMaximizedSwitchedAndMinimizedInTurnsSettle) {
    for (int number = 0; number < 7; ++number) NewSheet(3, 2);
    auto& area = desktop.mainWindow->Area();
    const auto windows = area.subWindowList();
    for (int round = 0; round < 3; ++round)
        for (int number = 0; number < 7; ++number) {
            auto* window = windows[number];
            area.setActiveSubWindow(window);
            window->showMaximized();
            area.activateNextSubWindow();
            windows[(number + 2) % 7]->showMinimized();
            area.setActiveSubWindow(windows[(number + 2) % 7]);
            QCoreApplication::processEvents();
            Click(number % 2 == 0 ? "mnuCascade" : "mnuTile");
            QTest::mouseDClick(window, Qt::LeftButton, {}, QPoint(60, 10));
            QCoreApplication::processEvents();
            auto* current = dynamic_cast<ChildFace*>(area.currentSubWindow());
            ASSERT_NE(current, nullptr);
            EXPECT_EQ(current->Window(), desktop.session.ActiveWindow);
            EXPECT_EQ(desktop.dispatch.Depth(), 0);
        }
}

// One event that waits for the toolkit's work must not see what another one is about to change.
TEST_F(MainWindowTest, WhatIsReportedLaterRunsInItsOrderAndOnlyWhileItsOwnerLives) {
    std::string order;
    auto owner = std::make_unique<QObject>();
    desktop.dispatch.Later(desktop.mainWindow.get(), [&] { order += 'a'; });
    desktop.dispatch.Later(owner.get(), [&] { order += 'x'; });
    desktop.dispatch.Later(desktop.mainWindow.get(), [&] {
        order += 'b';
        desktop.dispatch.RunWaiting(); // lets events run: the next one is among them
        order += 'd';
    });
    desktop.dispatch.Later(desktop.mainWindow.get(), [&] { order += 'c'; });
    owner.reset();
    EXPECT_EQ(order, "");
    desktop.dispatch.Run([&] { order += 'e'; });
    EXPECT_EQ(order, "abcde");
    desktop.dispatch.Later(desktop.mainWindow.get(), [&] { order += 'f'; });
    QCoreApplication::processEvents();
    EXPECT_EQ(order, "abcdef");
}

TEST_F(MainWindowTest, AWindowThatIsMadeTooSmallSnapsBack) {
    NewSheet(3, 2);
    Face().resize(50, 60);
    QCoreApplication::processEvents();
    EXPECT_GE(Face().width(), 3000 / 15);
    EXPECT_GE(Face().height(), 2500 / 15);
}

TEST_F(MainWindowTest, BringingAWindowToTheFrontSwitchesTheCommands) {
    NewSheet(3, 2);
    ChildWindow* sheet = desktop.session.ActiveWindow;
    InDialog([this](QDialog& dialog) { Find<QPushButton>(dialog, "Command2").click(); });
    Click("mnuAnalysisMatrix");
    EXPECT_TRUE(Find<QToolBar>(*desktop.mainWindow, "toolMatrix").isVisible());
    EXPECT_FALSE(Find<QToolBar>(*desktop.mainWindow, "toolData").isVisible());
    desktop.mainWindow->Area().setActiveSubWindow(desktop.ports.children.FaceOf(*sheet));
    QCoreApplication::processEvents();
    EXPECT_EQ(desktop.session.ActiveWindow, sheet);
    EXPECT_FALSE(Find<QToolBar>(*desktop.mainWindow, "toolMatrix").isVisible());
    EXPECT_TRUE(Find<QToolBar>(*desktop.mainWindow, "toolData").isVisible());
}

TEST_F(MainWindowTest, TheAboutBoxSaysWhatItIsAndCloses) {
    InDialog([this](QDialog& dialog) {
        EXPECT_EQ(Find<QLabel>(dialog, "lblVersion").text().toStdString(), "Dorvan 3.3.44");
        EXPECT_EQ(Find<QLabel>(dialog, "lblLicence").text().toStdString(), "This program is FREEWARE");
        Find<QPushButton>(dialog, "cmdOK").click();
    });
    Click("mnuAbout");
}

TEST_F(MainWindowTest, HelpSaysThatThereIsNone) {
    AnswerNext("OK", "Nie można wyświetlić pliku pomocy. Brak pliku pomocy skojarzonego z tym programem.");
    Click("mnuDorvanHelp");
    AnswerNext("OK", "Sorry, not ready yet!");
    Click("mnuDorvanHelpEng");
}

TEST_F(MainWindowTest, ClosingAsksForAChangedSheetAndCancelKeepsAllOpen) {
    NewSheet(3, 2);
    desktop.session.DataStates.at(1).Dirty = true;
    AnswerNext("Cancel", "The data in [[DATA]: Untitled:1] has changed.\nDo you want to save the changes?");
    EXPECT_FALSE(desktop.mainWindow->close());
    EXPECT_FALSE(desktop.shell.EndOfRun());
    EXPECT_EQ(desktop.session.Children.size(), 1u);
    AnswerNext("No");
    EXPECT_TRUE(desktop.mainWindow->close());
    EXPECT_TRUE(desktop.shell.EndOfRun());
}

TEST_F(MainWindowTest, ExitEndsTheRunEvenAfterCancel) {
    NewSheet(3, 2);
    desktop.session.DataStates.at(1).Dirty = true;
    AnswerNext("Cancel");
    Click("mnuFExit");
    EXPECT_TRUE(desktop.shell.EndOfRun());
}

TEST_F(MainWindowTest, EscInASaveQuestionIsCancel) {
    NewSheet(3, 2);
    desktop.session.DataStates.at(1).Dirty = true;
    InDialog([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    Click("mnuFileClose");
    EXPECT_EQ(desktop.session.Children.size(), 1u);
}

TEST(MainWindowPlaceTest, TakesAllOfASmallScreenAndMostOfALargeOne) {
    EXPECT_EQ(MainWindowPlace({0, 0, 1366, 768}), QRect(0, 0, 1366, 768));
    const QRect large(0, 0, 3840, 2160);
    const QRect place = MainWindowPlace(large);
    EXPECT_TRUE(large.contains(place));
    EXPECT_EQ(place.size(), QSize(3264, 1836));
}

} // namespace dorvan::test
