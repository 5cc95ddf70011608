#include "session/frmMDI.h"

#include "fake_window.h"
#include "session/frmAbout.h"
#include "session/routing.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

namespace dorvan::test {
namespace {

constexpr const char* Operations[] = {"NewDataSheet",
                                      "OpenDataFile",
                                      "OpenMatrixFile",
                                      "OpenDiagramFile",
                                      "OpenRecentFile",
                                      "SaveData",
                                      "SaveDataAs",
                                      "ImportText",
                                      "ImportDBase",
                                      "ImportMatrix",
                                      "ExportData",
                                      "ExportDataToExcel",
                                      "MakeMatrix",
                                      "MakeDiagram",
                                      "AddVariable",
                                      "EditVariables",
                                      "DeleteVariable",
                                      "AddRecord",
                                      "DeleteRecord",
                                      "Standardization",
                                      "frmMacierz.SaveMatrix",
                                      "frmMacierz.PrintMatrix",
                                      "frmMacierz.ExportMatrix",
                                      "frmMacierz.ExportMatrixToExcel",
                                      "frmDiagram.SaveDiagram",
                                      "frmDiagram.PrintDiagram",
                                      "frmDiagram.ExportDiagramToExcel",
                                      "frmDiagram.BITMAP",
                                      "frmDiagram.Metafile",
                                      "frmDiagram.SelectThisRow",
                                      "frmDiagram.Home",
                                      "frmDiagram.Up",
                                      "frmDiagram.Down",
                                      "frmDiagram.EndRow",
                                      "frmDiagram.Insert",
                                      "frmDiagram.Matrix",
                                      "frmDiagram.DataOrder",
                                      "frmDiagram.Histogram",
                                      "frmDiagram.Linear",
                                      "frmDiagram.DiagramType",
                                      "frmBMP.SaveBMP",
                                      "frmBMP.BitmapClip"};

// A main window all of whose operations exist and only record their calls, as "name(slot, path)". Every
// command is switched on, whatever window is active.
struct MainWindowTest : FakeWindowSession {
    frmMDI main{session};
    std::vector<std::string> calls;

    MainWindowTest() {
        const auto folder = std::filesystem::current_path();
        main.Form_Load(1, "");
        std::filesystem::current_path(folder);
        for (const std::string name : Operations)
            session.commands.Set(name, [this, name](const CommandCall& call) {
                calls.push_back(fmt::format("{}({}, {})", name, call.Index, call.Path));
            });
        SwitchEverythingOn(MenuTree());
        for (const auto& toolbar : Toolbars())
            for (const auto& button : toolbar.Buttons)
                session.mainWindow.EnableButton(toolbar.Name, button.Key, true);
    }

    void SwitchEverythingOn(const std::vector<MenuItem>& items) {
        for (const auto& item : items) {
            session.mainWindow.EnableMenu(item.Name, true);
            SwitchEverythingOn(item.Items);
        }
    }

    // Opens windows until the kind's slot 2 is active, so that an index of 0 or 1 would be seen.
    FakeWindow& Activate(std::string_view kind) {
        Open(kind);
        return Open(kind);
    }

    std::string Click(const std::string& item) {
        calls.clear();
        main.MenuClick(item);
        return Called();
    }
    std::string Click(const std::string& toolbar, const std::string& key) {
        calls.clear();
        main.ButtonClick(toolbar, key);
        return Called();
    }
    std::string Called() const { return calls.empty() ? "" : calls.size() == 1 ? calls[0] : "several"; }
};

TEST(MainMenu, CallsTheModulesOperations) {
    MainWindowTest test;
    const std::pair<const char*, const char*> expected[] = {
        {"mnuFNew", "NewDataSheet(0, )"},
        {"mnuFData", "OpenDataFile(0, )"},
        {"mnuFDiagram", "OpenDiagramFile(0, )"},
        {"mnuFMatrix", "OpenMatrixFile(0, )"},
        {"mnuImportTextFile", "ImportText(0, )"},
        {"mnuImportDBase", "ImportDBase(0, )"},
        {"mnuImportMatrix", "ImportMatrix(0, )"},
        {"mnuEditVarAdd", "AddVariable(0, )"},
        {"mnuEditVarEdit", "EditVariables(0, )"},
        {"mnuEditVarDelete", "DeleteVariable(0, )"},
        {"mnuEditRecAdd", "AddRecord(0, )"},
        {"mnuEditRecDelete", "DeleteRecord(0, )"},
        {"mnuEditStandarization", "Standardization(0, )"},
        {"mnuAnalysisMatrix", "MakeMatrix(0, )"},
        {"mnuAnalysisDiagram", "MakeDiagram(0, )"},
        {"mnuRecentFile(0)", "OpenRecentFile(0, )"},
        {"mnuRecentFile(4)", "OpenRecentFile(4, )"},
        {"mnuRaport", ""},
        {"mnuFile", ""},
        {"mnuSeparator", ""},
    };
    for (const auto& [item, call] : expected) EXPECT_EQ(test.Click(item), call) << item;
}

TEST(MainMenu, CallsTheMethodsOfTheActiveDiagram) {
    MainWindowTest test;
    test.Activate(DocumentKind::Diagram);
    const std::pair<const char*, const char*> expected[] = {{"mnuEditSelect", "SelectThisRow"},
                                                            {"mnuEditHome", "Home"},
                                                            {"mnuEditUp", "Up"},
                                                            {"mnuEditDown", "Down"},
                                                            {"mnuEditEnd", "EndRow"},
                                                            {"mnuEditInsert", "Insert"},
                                                            {"mnuEditCreateMatrix", "Matrix"},
                                                            {"mnuEditCreateDataset", "DataOrder"},
                                                            {"mnuEditHistogram", "Histogram"},
                                                            {"mnuEditLinear", "Linear"},
                                                            {"mnuEditDiagramType", "DiagramType"}};
    test.SwitchEverythingOn(MenuTree());
    for (const auto& [item, method] : expected)
        EXPECT_EQ(test.Click(item), fmt::format("frmDiagram.{}(2, )", method)) << item;
}

TEST(MainMenu, CopiesTheActiveBitmap) {
    MainWindowTest test;
    test.Activate(DocumentKind::Bitmap);
    EXPECT_EQ(test.Click("mnuEditCopyClip"), "frmBMP.BitmapClip(2, )");
    EXPECT_EQ(test.Click("toolBitmap", "Copy"), "frmBMP.BitmapClip(2, )");
}

struct RoutedItem {
    const char* Item;
    const char* Data;
    const char* Matrix;
    const char* Diagram;
    const char* Bitmap;
};

TEST(MainMenu, RoutesByTheActiveWindow) {
    const RoutedItem expected[] = {
        {"mnuSave", "SaveData(0, )", "frmMacierz.SaveMatrix(2, )", "frmDiagram.SaveDiagram(2, )",
         "frmBMP.SaveBMP(2, )"},
        {"mnuSaveAs", "SaveDataAs(0, )", "frmMacierz.SaveMatrix(2, )", "frmDiagram.SaveDiagram(2, )",
         "frmBMP.SaveBMP(2, )"},
        {"mnuFilePrint", "", "frmMacierz.PrintMatrix(2, )", "frmDiagram.PrintDiagram(2, )", ""},
        {"mnuExportText", "ExportData(0, )", "frmMacierz.ExportMatrix(2, )", "", ""},
        {"mnuExportExcel", "ExportDataToExcel(0, )", "frmMacierz.ExportMatrixToExcel(2, )",
         "frmDiagram.ExportDiagramToExcel(2, )", ""},
        {"mnuExportBitmap", "", "", "frmDiagram.BITMAP(2, )", ""},
        {"mnuExportMeta", "", "", "frmDiagram.Metafile(2, )", ""},
    };
    const std::pair<std::string_view, const char * RoutedItem::*> kinds[] = {
        {DocumentKind::Data, &RoutedItem::Data},
        {DocumentKind::Matrix, &RoutedItem::Matrix},
        {DocumentKind::Diagram, &RoutedItem::Diagram},
        {DocumentKind::Bitmap, &RoutedItem::Bitmap}};
    for (const auto& [kind, call] : kinds) {
        MainWindowTest test;
        test.Activate(kind);
        for (const auto& row : expected) EXPECT_EQ(test.Click(row.Item), row.*call) << kind << row.Item;
    }
    MainWindowTest none;
    for (const auto& row : expected) EXPECT_EQ(none.Click(row.Item), "") << row.Item;
}

TEST(MainToolbar, RoutesSaveAndPrintAsTheMenuDoes) {
    MainWindowTest test;
    test.Activate(DocumentKind::Matrix);
    EXPECT_EQ(test.Click("toolMain", "Save"), "frmMacierz.SaveMatrix(2, )");
    EXPECT_EQ(test.Click("toolMain", "SaveAs"), "frmMacierz.SaveMatrix(2, )");
    EXPECT_EQ(test.Click("toolMain", "Print"), "frmMacierz.PrintMatrix(2, )");
}

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

TEST(MainToolbar, DispatchesByKey) {
    MainWindowTest test;
    const std::pair<const char*, const char*> expected[] = {
        {"New", "NewDataSheet(0, )"},          {"Open", "OpenDataFile(0, )"},
        {"OpenMatrix", "OpenMatrixFile(0, )"}, {"OpenDiagram", "OpenDiagramFile(0, )"},
        {"ImportDBF", "ImportDBase(0, )"},     {"ImportMatrix", "ImportMatrix(0, )"},
        {"MakeMatrix", "MakeMatrix(0, )"}};
    for (const auto& [key, call] : expected) EXPECT_EQ(test.Click("toolMain", key), call) << key;
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

TEST(DataToolbar, DispatchesByKeyAndBeepsWhileADiagramIsMade) {
    const std::pair<const char*, const char*> expected[] = {{"Export", "ExportData(0, )"},
                                                            {"AddRec", "AddRecord(0, )"},
                                                            {"DelRec", "DeleteRecord(0, )"},
                                                            {"AddVar", "AddVariable(0, )"},
                                                            {"DelVar", "DeleteVariable(0, )"},
                                                            {"EditVar", "EditVariables(0, )"},
                                                            {"Standarization", "Standardization(0, )"}};
    MainWindowTest test;
    test.Activate(DocumentKind::Data);
    for (const auto& [key, call] : expected) EXPECT_EQ(test.Click("toolData", key), call) << key;
    EXPECT_EQ(test.signals.beeps, 0);
    test.session.DiagramBusy = 1;
    for (const auto& [key, call] : expected) EXPECT_EQ(test.Click("toolData", key), "") << key;
    EXPECT_EQ(test.signals.beeps, 7);
}

TEST(DiagramToolbar, DispatchesByKey) {
    const std::pair<const char*, const char*> expected[] = {{"Select", "SelectThisRow"},
                                                            {"Home", "Home"},
                                                            {"Up", "Up"},
                                                            {"Down", "Down"},
                                                            {"End", "EndRow"},
                                                            {"Insert", "Insert"},
                                                            {"Bitmap", "BITMAP"},
                                                            {"Metafile", "Metafile"},
                                                            {"Matrix", "Matrix"},
                                                            {"DataOrder", "DataOrder"},
                                                            {"Histogram", "Histogram"},
                                                            {"Linear", "Linear"},
                                                            {"DiagramType", "DiagramType"}};
    MainWindowTest test;
    test.Activate(DocumentKind::Diagram);
    for (const auto& [key, method] : expected)
        EXPECT_EQ(test.Click("toolDiagram", key), fmt::format("frmDiagram.{}(2, )", method)) << key;
    EXPECT_EQ(test.Click("toolDiagram", "Print"), "frmDiagram.PrintDiagram(2, )")
        << "a key that no button has";
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
    EXPECT_FALSE(main.MenuEnabled("mnuUnknown"));
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
    EXPECT_EQ(test.main.MenuCaption("mnuRecentFile(0)"), "-");
    EXPECT_EQ(test.main.MenuCaption("mnuRecentFile(3)"), "RecentFile3");
    test.session.mainWindow.ShowMenu("mnuRecentFile(0)", true);
    test.session.mainWindow.SetMenuCaption("mnuRecentFile(0)", "a.mdt");
    EXPECT_TRUE(test.main.MenuShown("mnuRecentFile(0)"));
    EXPECT_EQ(test.main.MenuCaption("mnuRecentFile(0)"), "a.mdt");
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
    EXPECT_FALSE(mainWindow.ToolbarChecked);
    EXPECT_FALSE(mainWindow.ToolbarShown("toolMain"));
    test.main.MenuClick("mnuOToolbar");
    EXPECT_TRUE(mainWindow.ToolbarChecked);
    EXPECT_TRUE(mainWindow.ToolbarShown("toolMain"));
}

TEST(OptionsMenu, BringsTheCheckMarkInLineWithTheToolbarWhenItOpens) {
    MainWindowTest test;
    auto& mainWindow = test.session.mainWindow;
    mainWindow.ShowToolbar("toolMain", false);
    test.main.MenuOpens("mnuFile");
    EXPECT_TRUE(mainWindow.ToolbarChecked);
    test.main.MenuOpens("mnuOptions");
    EXPECT_FALSE(mainWindow.ToolbarChecked);
    mainWindow.ShowToolbar("toolMain", true);
    test.main.MenuOpens("mnuOptions");
    EXPECT_TRUE(mainWindow.ToolbarChecked);
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
    EXPECT_FALSE(test.messages.shown[0].Text.empty());
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

TEST(RecentFiles, AreOpenedWithoutATestForADiagramInTheMaking) {
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
    EXPECT_EQ(test.session.random.draw(), expected.draw());
    EXPECT_TRUE(test.session.commands.Has("Save"));
    EXPECT_TRUE(test.session.commands.Has("SaveAs"));
}

TEST(Routing, EveryItemAndButtonButTheDeadOnesHasACommand) {
    EXPECT_EQ(CommandOfMenuItem("mnuRaport"), "");
    EXPECT_EQ(CommandOfButton("toolMain", "ImportTXT"), "");
    EXPECT_EQ(CommandOfButton("toolMatrix", "CreateDiagram"), "");
    for (const auto& toolbar : Toolbars())
        for (const auto& [key, toolTip] : toolbar.Buttons) {
            const bool dead = key == "ImportTXT" || key == "CreateDiagram";
            EXPECT_EQ(CommandOfButton(toolbar.Name, key).empty(), dead) << toolbar.Name << key;
        }
}

} // namespace
} // namespace dorvan::test
