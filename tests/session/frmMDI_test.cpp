#include "session/frmMDI.h"

#include "main_window_fixture.h"
#include "session/frmAbout.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <utility>

namespace dorvan::test {
namespace {

TEST(Save, PassesThePathOfTheCaption) {
    MainWindowTest test;
    auto& matrix = test.Open(DocumentKind::Matrix);
    matrix.Caption = "[MATRIX]:  /data/My Stones.mtx ";
    EXPECT_EQ(test.Click("mnuSave"), "frmMacierz.SaveMatrix(1, /data/My Stones.mtx)");
    EXPECT_EQ(test.Click("mnuSaveAs"), "frmMacierz.SaveMatrix(1, )");
    auto& diagram = test.Open(DocumentKind::Diagram);
    diagram.Caption = "[DIAGRAM]:  /data/[MATRIX]: x.dgr ";
    EXPECT_EQ(test.Click("mnuSave"), "frmDiagram.SaveDiagram(1, /data/[MATRIX]: x.dgr)");
    EXPECT_EQ(test.Click("mnuSaveAs"), "frmDiagram.SaveDiagram(1, )");
    auto& bitmap = test.Open(DocumentKind::Bitmap);
    bitmap.Caption = "[BITMAP]: /data/a.png";
    EXPECT_EQ(test.Click("mnuSave"), "frmBMP.SaveBMP(1, /data/a.png)");
    EXPECT_EQ(test.Click("mnuSaveAs"), "frmBMP.SaveBMP(1, )");
}

TEST(Save, PassesNoPathWhereTheCaptionSaysUntitledAnywhere) {
    MainWindowTest test;
    auto& matrix = test.Open(DocumentKind::Matrix);
    matrix.Caption = "[MATRIX]: /Untitled/a.mtx";
    EXPECT_EQ(test.Click("mnuSave"), "frmMacierz.SaveMatrix(1, )");
}

TEST(Save, IsInTheCommandTableForClosingWindows) {
    MainWindowTest test;
    auto& matrix = test.Open(DocumentKind::Matrix);
    matrix.Caption = "[MATRIX]: a.mtx";
    test.session.mainWindow.EnableMenu("mnuSave", false);
    test.session.commands.Call("Save");
    test.session.commands.Call("SaveAs");
    EXPECT_EQ(test.calls,
              (std::vector<std::string>{"frmMacierz.SaveMatrix(1, a.mtx)", "frmMacierz.SaveMatrix(1, )"}));
}

TEST(Save, ActsOnTheActiveWindowWhenAnotherOneCloses) {
    MainWindowTest test;
    test.Open(DocumentKind::Data);
    test.Open(DocumentKind::Matrix).Caption = "[MATRIX]: a.mtx";
    test.session.commands.Call("Save");
    EXPECT_EQ(test.Called(), "frmMacierz.SaveMatrix(1, a.mtx)");
}

TEST(MakeDiagram, TellsWhereTheDiagramComesFrom) {
    MainWindowTest test;
    auto& fromMatrix = test.session.DiagramFromMatrix;
    EXPECT_EQ(test.Click("mnuAnalysisDiagram"), "MakeDiagram(0, )");
    EXPECT_FALSE(fromMatrix);
    test.Open(DocumentKind::Matrix);
    EXPECT_EQ(test.Click("toolMain", "MakeDiagram"), "MakeDiagram(0, )");
    EXPECT_TRUE(fromMatrix);
    for (const auto kind : {DocumentKind::Diagram, DocumentKind::Bitmap}) {
        test.Open(kind);
        EXPECT_EQ(test.Click("mnuAnalysisDiagram"), "MakeDiagram(0, )") << kind;
        EXPECT_TRUE(fromMatrix) << "unchanged by " << kind;
    }
    test.Open(DocumentKind::Data);
    EXPECT_EQ(test.Click("mnuAnalysisDiagram"), "MakeDiagram(0, )");
    EXPECT_FALSE(fromMatrix);
}

TEST(MainToolbar, TheButtonForTextImportDoesNothingAndTheMenuItemWorks) {
    MainWindowTest test;
    EXPECT_TRUE(test.main.ButtonEnabled("toolMain", "ImportTXT"));
    EXPECT_EQ(test.Click("toolMain", "ImportTXT"), "");
    EXPECT_EQ(test.Click("toolMain", "ImportTxt"), "ImportText(0, )") << "the key that the dispatcher knows";
    EXPECT_EQ(test.Click("mnuImportTextFile"), "ImportText(0, )");
}

TEST(MatrixToolbar, ExportsAndItsOtherButtonDoesNothing) {
    MainWindowTest test;
    test.Activate(DocumentKind::Matrix);
    EXPECT_EQ(test.Click("toolMatrix", "ExportMatrix"), "frmMacierz.ExportMatrix(2, )");
    EXPECT_TRUE(test.main.ButtonEnabled("toolMatrix", "CreateDiagram"));
    EXPECT_EQ(test.Click("toolMatrix", "CreateDiagram"), "");
}

TEST(DataToolbar, OnlyBeepsWhileADiagramIsMade) {
    MainWindowTest test;
    test.Activate(DocumentKind::Data);
    test.session.DiagramBusy = 1;
    for (const auto* key : {"Export", "AddRec", "DelRec", "AddVar", "DelVar", "EditVar", "Standarization"})
        EXPECT_EQ(test.Click("toolData", key), "") << key;
    EXPECT_EQ(test.signals.beeps, 7);
}

TEST(DiagramToolbar, AMoveByAButtonMarksTheDiagramAsChangedAndByTheMenuDoesNot) {
    for (const auto* key : {"Home", "Up", "Down", "End", "Insert"}) {
        MainWindowTest test;
        test.Activate(DocumentKind::Diagram);
        test.main.ButtonClick("toolDiagram", key);
        EXPECT_TRUE(test.session.DiagramStates[2].Dirty) << key;
        EXPECT_FALSE(test.session.DiagramStates[1].Dirty) << key;
    }
    MainWindowTest test;
    test.Activate(DocumentKind::Diagram);
    for (const auto* item : {"mnuEditHome", "mnuEditUp", "mnuEditDown", "mnuEditEnd", "mnuEditInsert"})
        test.main.MenuClick(item);
    for (const auto* key : {"Select", "Bitmap", "Matrix", "Histogram", "DiagramType"})
        test.main.ButtonClick("toolDiagram", key);
    EXPECT_FALSE(test.session.DiagramStates[2].Dirty);
}

TEST(MainMenu, ADiagramsMethodIsNotCalledForAnotherKindOfWindow) {
    MainWindowTest test;
    test.Open(DocumentKind::Matrix);
    EXPECT_EQ(test.Click("mnuEditUp"), "");
    EXPECT_EQ(test.Click("toolDiagram", "Up"), "");
    EXPECT_EQ(test.Click("mnuEditCopyClip"), "");
}

TEST(MainMenu, AnItemThatIsOffDoesNothing) {
    MainWindowTest test;
    test.session.mainWindow.EnableMenu("mnuFNew", false);
    test.session.mainWindow.EnableButton("toolMain", "New", false);
    EXPECT_EQ(test.Click("mnuFNew"), "");
    EXPECT_EQ(test.Click("toolMain", "New"), "");
}

TEST(MenuEnabled, IsOffUntilTheOperationExists) {
    FakeWindowSession test;
    frmMDI main(test.session);
    EXPECT_FALSE(main.MenuEnabled("mnuFNew"));
    EXPECT_FALSE(main.ButtonEnabled("toolMain", "New"));
    EXPECT_FALSE(main.MenuEnabled("mnuFOpen"));
    test.session.commands.Set("NewDataSheet", [](const CommandCall&) {});
    test.session.commands.Set("OpenMatrixFile", [](const CommandCall&) {});
    EXPECT_TRUE(main.MenuEnabled("mnuFNew"));
    EXPECT_TRUE(main.ButtonEnabled("toolMain", "New"));
    EXPECT_TRUE(main.MenuEnabled("mnuFOpen")) << "one of its items is on";
    EXPECT_FALSE(main.MenuEnabled("mnuFData"));
    test.session.mainWindow.EnableMenu("mnuFOpen", false);
    EXPECT_FALSE(main.MenuEnabled("mnuFOpen"));
}

TEST(MenuEnabled, LooksAtTheOperationForTheActiveWindow) {
    FakeWindowSession test;
    frmMDI main(test.session);
    test.Open(DocumentKind::Matrix);
    test.session.mainWindow.EnableMenu("mnuSave", true);
    test.session.mainWindow.EnableButton("toolMain", "Save", true);
    test.session.commands.Set("SaveData", [](const CommandCall&) {});
    EXPECT_FALSE(main.MenuEnabled("mnuSave"));
    EXPECT_FALSE(main.ButtonEnabled("toolMain", "Save"));
    test.session.commands.Set("frmMacierz.SaveMatrix", [](const CommandCall&) {});
    EXPECT_TRUE(main.MenuEnabled("mnuSave"));
    EXPECT_TRUE(main.ButtonEnabled("toolMain", "Save"));
}

TEST(MenuEnabled, TheMainWindowsOwnItemsAndTheMenusAreOnFromTheStart) {
    FakeWindowSession test;
    frmMDI main(test.session);
    for (const auto* item : {"mnuFile", "mnuEdit", "mnuAnalysis", "mnuOptions", "mnuWindow", "mnuHelp",
                             "mnuFExit", "mnuOToolbar", "mnuCascade", "mnuTile", "mnuArrangeIcons",
                             "mnuDorvanHelp", "mnuDorvanHelpEng", "mnuHelpContact", "mnuAbout"})
        EXPECT_TRUE(main.MenuEnabled(item)) << item;
    EXPECT_THROW((void)main.MenuEnabled("mnuUnknown"), std::logic_error);
}

TEST(MenuEnabled, WithNoWindowOpenWhatNeedsADocumentIsOffAndTheRestIsOn) {
    MainWindowTest test;
    auto& window = test.Open(DocumentKind::Data);
    CloseChild(test.session, window);
    for (const auto* item : {"mnuSave", "mnuSaveAs", "mnuFilePrint", "mnuFileClose", "mnuExport",
                             "mnuExportText", "mnuExportExcel", "mnuExportBitmap", "mnuExportMeta"})
        EXPECT_FALSE(test.main.MenuEnabled(item)) << item;
    for (const auto* item : {"mnuFNew", "mnuFOpen", "mnuFData", "mnuFDiagram", "mnuFMatrix", "mnuImport",
                             "mnuImportTextFile", "mnuImportDBase", "mnuImportMatrix"})
        EXPECT_TRUE(test.main.MenuEnabled(item)) << item;
}

TEST(MenuEnabled, PrintIsOffForADataSheetEvenWhereADiagramLeftItOn) {
    MainWindowTest test;
    test.Open(DocumentKind::Data);
    test.session.mainWindow.EnableMenu("mnuFilePrint", true);
    EXPECT_FALSE(test.main.MenuEnabled("mnuFilePrint"));
    test.Open(DocumentKind::Diagram);
    test.session.mainWindow.EnableMenu("mnuFilePrint", true);
    EXPECT_TRUE(test.main.MenuEnabled("mnuFilePrint"));
}

TEST(MenuShown, HidesWhatIsNeverSeenAndUnfilledRecentFiles) {
    MainWindowTest test;
    EXPECT_FALSE(test.main.MenuShown("mnuEditCell"));
    EXPECT_FALSE(test.main.MenuShown("mnuRaport"));
    EXPECT_TRUE(test.main.MenuShown("mnuFNew"));
    EXPECT_TRUE(test.main.MenuShown("mnuSeparator"));
    for (int index = 0; index < RecentFileItems; ++index)
        EXPECT_FALSE(test.main.MenuShown(RecentFileItem(index))) << index;
    EXPECT_EQ(test.session.mainWindow.MenuCaption("mnuRecentFile(0)"), "-");
    EXPECT_EQ(test.session.mainWindow.MenuCaption("mnuRecentFile(3)"), "RecentFile3");
    test.session.mainWindow.ShowMenu("mnuRecentFile(0)", true);
    test.session.mainWindow.SetMenuCaption("mnuRecentFile(0)", "a.mdt");
    EXPECT_TRUE(test.main.MenuShown("mnuRecentFile(0)"));
    EXPECT_EQ(test.session.mainWindow.MenuCaption("mnuRecentFile(0)"), "a.mdt");
}

TEST(EditCellItem, OnlyBeepsWhileADiagramIsMade) {
    MainWindowTest test;
    EXPECT_EQ(test.Click("mnuEditCell"), "");
    EXPECT_EQ(test.signals.beeps, 0);
    test.session.DiagramBusy = 1;
    EXPECT_EQ(test.Click("mnuEditCell"), "");
    EXPECT_EQ(test.signals.beeps, 1);
}

TEST(Close, ClosesADataSheetAMatrixAndADiagram) {
    for (const auto kind : {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram}) {
        MainWindowTest test;
        test.Open(kind);
        test.main.MenuClick("mnuFileClose");
        EXPECT_TRUE(test.session.Children.empty()) << kind;
        EXPECT_FALSE(test.main.EndOfRun());
    }
}

TEST(Close, LeavesABitmapOpen) {
    MainWindowTest test;
    test.Open(DocumentKind::Bitmap);
    test.main.MenuClick("mnuFileClose");
    EXPECT_EQ(test.session.Children.size(), 1u);
}

TEST(Close, BeepsWhileADiagramIsMade) {
    MainWindowTest test;
    test.Open(DocumentKind::Data);
    test.session.DiagramBusy = 1;
    test.main.MenuClick("mnuFileClose");
    EXPECT_EQ(test.session.Children.size(), 1u);
    EXPECT_EQ(test.signals.beeps, 1);
}

TEST(Close, WithoutAWindowDoesNothing) {
    MainWindowTest test;
    test.main.MenuClick("mnuFileClose");
    EXPECT_EQ(test.children.log, std::vector<std::string>{});
}

TEST(Exit, ClosesAllWindowsAndEndsTheRun) {
    MainWindowTest test;
    test.Open(DocumentKind::Data);
    test.Open(DocumentKind::Bitmap);
    EXPECT_FALSE(test.main.EndOfRun());
    test.main.MenuClick("mnuFExit");
    EXPECT_TRUE(test.session.Children.empty());
    EXPECT_TRUE(test.main.EndOfRun());
}

TEST(Exit, EndsTheRunEvenAfterACancel) {
    MainWindowTest test;
    auto& window = test.Open(DocumentKind::Data);
    window.Asks = true;
    test.messages.answers = {Answer::Cancel};
    test.main.MenuClick("mnuFExit");
    EXPECT_TRUE(test.main.EndOfRun());
    EXPECT_TRUE(window.Visible) << "its changes are neither saved nor dropped by an answer";
    EXPECT_EQ(test.Called(), "");
    test.expectScriptsUsedUp();
}

TEST(OwnCloseControl, StaysOpenAfterACancel) {
    MainWindowTest test;
    auto& window = test.Open(DocumentKind::Data);
    window.Asks = true;
    test.messages.answers = {Answer::Cancel};
    EXPECT_FALSE(test.main.RequestClose());
    EXPECT_FALSE(test.main.EndOfRun());
    EXPECT_TRUE(window.Visible);
    test.expectScriptsUsedUp();
}

TEST(OwnCloseControl, EndsTheRunOnceNoDataSlotIsInUse) {
    MainWindowTest test;
    test.session.DataStates[1].Deleted = false;
    EXPECT_FALSE(test.main.RequestClose());
    EXPECT_FALSE(test.main.EndOfRun());
    test.session.DataStates[1].Deleted = true;
    test.Open(DocumentKind::Matrix);
    EXPECT_TRUE(test.main.RequestClose());
    EXPECT_TRUE(test.main.EndOfRun());
    EXPECT_TRUE(test.session.Children.empty());
}

TEST(ToolbarItem, TogglesTheMainToolbarByItsCheckMark) {
    MainWindowTest test;
    auto& mainWindow = test.session.mainWindow;
    test.main.MenuClick("mnuOToolbar");
    EXPECT_FALSE(mainWindow.MenuChecked("mnuOToolbar"));
    EXPECT_FALSE(mainWindow.ToolbarShown("toolMain"));
    test.main.MenuClick("mnuOToolbar");
    EXPECT_TRUE(mainWindow.MenuChecked("mnuOToolbar"));
    EXPECT_TRUE(mainWindow.ToolbarShown("toolMain"));
}

TEST(OptionsMenu, BringsTheCheckMarkInLineWithTheToolbarWhenItOpens) {
    MainWindowTest test;
    auto& mainWindow = test.session.mainWindow;
    mainWindow.ShowToolbar("toolMain", false);
    test.main.MenuOpens("mnuFile");
    EXPECT_TRUE(mainWindow.MenuChecked("mnuOToolbar"));
    test.main.MenuOpens("mnuOptions");
    EXPECT_FALSE(mainWindow.MenuChecked("mnuOToolbar"));
    mainWindow.ShowToolbar("toolMain", true);
    test.main.MenuOpens("mnuOptions");
    EXPECT_TRUE(mainWindow.MenuChecked("mnuOToolbar"));
}

TEST(WindowMenu, ArrangesInItsThreeModes) {
    MainWindowTest test;
    for (const auto* item : {"mnuCascade", "mnuTile", "mnuArrangeIcons"}) test.main.MenuClick(item);
    EXPECT_EQ(test.children.log, (std::vector<std::string>{"arrange 0", "arrange 1", "arrange 3"}));
}

TEST(Help, WithoutAHelpFileSaysSo) {
    MainWindowTest test;
    test.main.MenuClick("mnuDorvanHelp");
    const Message expected{.Text = "Nie można wyświetlić pliku pomocy. Brak pliku pomocy skojarzonego z tym "
                                   "programem.",
                           .Icon = MessageIcon::Information,
                           .Title = "Dorvan"};
    EXPECT_EQ(test.messages.shown, std::vector<Message>{expected});
    EXPECT_TRUE(test.help.shown.empty());
}

TEST(Help, ShowsTheIndexPageFromMenuAndButton) {
    MainWindowTest test;
    test.session.HelpFile = "Dorvan.hlp";
    test.main.MenuClick("mnuDorvanHelp");
    test.main.ButtonClick("toolMain", "Help");
    EXPECT_EQ(test.help.shown,
              (std::vector<std::pair<std::string, int>>{{"Dorvan.hlp", 3}, {"Dorvan.hlp", 3}}));
    EXPECT_TRUE(test.messages.shown.empty());
}

TEST(Help, ShowsTheDescriptionOfAnErrorInAPlainBox) {
    MainWindowTest test;
    test.session.HelpFile = "Dorvan.hlp";
    test.help.error = "no viewer";
    test.main.MenuClick("mnuDorvanHelp");
    EXPECT_EQ(test.messages.shown, (std::vector<Message>{{.Text = "no viewer", .Title = "Dorvan"}}));
}

TEST(Help, OnlyBeepsWhileADiagramIsMade) {
    MainWindowTest test;
    test.session.DiagramBusy = 1;
    test.main.MenuClick("mnuDorvanHelp");
    test.main.ButtonClick("toolMain", "Help");
    EXPECT_EQ(test.signals.beeps, 2);
    EXPECT_TRUE(test.messages.shown.empty());
}

TEST(EnglishHelp, IsNotReadyYet) {
    MainWindowTest test;
    test.session.HelpFile = "Dorvan.hlp";
    test.session.DiagramBusy = 1;
    test.main.MenuClick("mnuDorvanHelpEng");
    EXPECT_EQ(test.messages.shown,
              (std::vector<Message>{{.Text = "Sorry, not ready yet!", .Icon = MessageIcon::Exclamation}}));
    EXPECT_TRUE(test.help.shown.empty());
}

TEST(Contact, ShowsABoxOfThatTitle) {
    MainWindowTest test;
    test.main.MenuClick("mnuHelpContact");
    ASSERT_EQ(test.messages.shown.size(), 1u);
    EXPECT_EQ(test.messages.shown[0].Title, "Contact");
    EXPECT_EQ(test.messages.shown[0].Icon, MessageIcon::Information);
    EXPECT_EQ(test.messages.shown[0].Buttons, MessageButtons::Ok);
    EXPECT_EQ(test.messages.shown[0].Text, "Questions, wishes and reports of faults:\r\n"
                                           "maintainers@dorvan.example\r\nhttps://dorvan.example");
}

TEST(About, ShowsTheProgramAndItsVersionUntilOk) {
    MainWindowTest test;
    test.forms.scripts.push_back([](Form& form) {
        auto& about = dynamic_cast<frmAbout&>(form);
        EXPECT_EQ(about.lblTitle.Caption, "Graphical system for cluster analysis");
        EXPECT_EQ(about.lblVersion.Caption, "Dorvan 3.3.44");
        EXPECT_EQ(about.lblLicence.Caption, "This program is FREEWARE");
        EXPECT_EQ(
            about.lblDisclaimer.Caption,
            "This software is provided 'as is', without warranty of any kind. Author does not guarantee "
            "that the all functions of this software will meet your requirements or that the using of "
            "this software will be uninterrupted or error-free.");
        EXPECT_NE(about.lblFreeImage.Caption.find("FreeImage"), std::string::npos);
        EXPECT_NE(about.lblSpreadsheet.Caption.find("spreadsheet"), std::string::npos);
        about.cmdOK_Click();
    });
    test.main.MenuClick("mnuAbout");
    EXPECT_EQ(test.forms.log, std::vector<std::string>{"modal frmAbout"});
    test.expectScriptsUsedUp();
}

TEST(About, OnlyBeepsWhileADiagramIsMade) {
    MainWindowTest test;
    test.session.DiagramBusy = 1;
    test.main.MenuClick("mnuAbout");
    EXPECT_EQ(test.signals.beeps, 1);
    EXPECT_TRUE(test.forms.log.empty());
}

TEST(RecentFileItems, AreOpenedWithoutATestForADiagramInTheMaking) {
    MainWindowTest test;
    test.session.DiagramBusy = 1;
    EXPECT_EQ(test.Click("mnuRecentFile(2)"), "OpenRecentFile(2, )");
    EXPECT_EQ(test.signals.beeps, 0);
}

TEST(FormLoad, EntersTheProgramsFolderAndStartsTheSession) {
    const auto before = std::filesystem::current_path();
    const auto folder = std::filesystem::temp_directory_path();
    FakeWindowSession test;
    frmMDI main(test.session);
    main.Form_Load(5, folder.string());
    const auto entered = std::filesystem::current_path();
    std::filesystem::current_path(before);
    EXPECT_TRUE(std::filesystem::equivalent(entered, folder));
    EXPECT_EQ(test.session.AppPath, folder.string());
    RandomSource expected(5);
    EXPECT_EQ(test.session.random.Draw(), expected.Draw());
    EXPECT_TRUE(test.session.commands.Has("Save"));
    EXPECT_TRUE(test.session.commands.Has("SaveAs"));
}

} // namespace
} // namespace dorvan::test
