#include "session/menus.h"

#include "main_window_fixture.h"

#include <fmt/ranges.h>
#include <gtest/gtest.h>

#include <algorithm>

#include <functional>

namespace dorvan::test {
namespace {

// What clicks call with a data sheet, a matrix, a diagram, a bitmap active (each in its slot 2) and with no
// window at all: one name where it is always the same operation, else five.
class Clicks {
public:
    Clicks() {
        for (const auto kind :
             {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram, DocumentKind::Bitmap}) {
            over_.emplace_back().Activate(kind);
            over_.back().SwitchEverythingOn(MenuTree());
        }
        over_.emplace_back();
        for (auto& test : over_)
            for (const auto& operation : test.session.commands.Operations()) test.Record(operation);
    }

    std::string Of(const std::function<std::string(MainWindowTest&)>& click) {
        std::vector<std::string> calls;
        for (auto& test : over_) calls.push_back(Short(click(test)));
        if (std::equal(calls.begin() + 1, calls.end(), calls.begin())) return calls[0];
        return fmt::format("{}", fmt::join(calls, ", "));
    }

private:
    // "SaveData(0, )" becomes "SaveData", "frmDiagram.Up(2, )" "frmDiagram.Up 2".
    static std::string Short(const std::string& call) {
        if (call.empty()) return "-";
        const auto open = call.find('(');
        const std::string slot = call.substr(open + 1, call.find(',') - open - 1);
        return call.substr(0, open) + (slot == "0" ? "" : " " + slot);
    }

    std::deque<MainWindowTest> over_;
};

// The menu "Extras" is this program's own and left to the tests of its items. One line an item: name,
// caption, shortcut, whether it is hidden or has a check mark, and what it calls.
void Draw(const std::vector<MenuItem>& items, int depth, Clicks& clicks, std::string& picture) {
    for (const auto& item : items) {
        if (item.Name == ExtrasMenu) continue;
        picture += std::string(std::size_t(depth) * 2, ' ') + item.Name + "|" + item.Caption;
        if (!item.Shortcut.empty()) picture += "|" + item.Shortcut;
        if (item.Hidden) picture += "|hidden";
        if (item.Checkable) picture += "|checkable";
        if (!item.Name.empty() && item.Items.empty())
            picture += ": " + clicks.Of([&](MainWindowTest& test) { return test.Click(item.Name); });
        picture += "\n";
        Draw(item.Items, depth + 1, clicks, picture);
    }
}

TEST(MenuTree, HoldsEveryItemInOrderAndEachCallsItsOperation) {
    Clicks clicks;
    std::string picture;
    Draw(MenuTree(), 0, clicks, picture);
    EXPECT_EQ(picture, R"(mnuFile|&File
  mnuFNew|&New|Ctrl+N: NewDataSheet
  mnuFOpen|&Open
    mnuFData|&Data|Ctrl+O: OpenDataFile
    mnuFDiagram|D&iagram: OpenDiagramFile
    mnuFMatrix|&Matrix: OpenMatrixFile
  mnuRaport|Cluster ra&port|hidden: -
  mnuSave|Save|Ctrl+S: SaveData, frmMacierz.SaveMatrix 2, frmDiagram.SaveDiagram 2, frmBMP.SaveBMP 2, -
  mnuSaveAs|SaveAs: SaveDataAs, frmMacierz.SaveMatrix 2, frmDiagram.SaveDiagram 2, frmBMP.SaveBMP 2, -
  mnuFileClose|&Close: Close
  |-
  mnuImport|&Import
    mnuImportTextFile|&Text file: ImportText
    mnuImportDBase|D&Base III: ImportDBase
    |-
    mnuImportMatrix|Matrix: ImportMatrix
  mnuExport|Export
    mnuExportText|Export text: ExportData, frmMacierz.ExportMatrix 2, -, -, -
    mnuExportExcel|Export Excel: ExportDataToExcel, frmMacierz.ExportMatrixToExcel 2, frmDiagram.ExportDiagramToExcel 2, -, -
    |-
    mnuExportBitmap|Export bitmap: -, -, frmDiagram.BITMAP 2, -, -
    mnuExportMeta|Export metafile (WMF): -, -, frmDiagram.Metafile 2, -, -
  |-
  mnuFilePrint|Print|Ctrl+P: -, frmMacierz.PrintMatrix 2, frmDiagram.PrintDiagram 2, -, -
  |-
  mnuFExit|E&xit: Exit
  mnuSeparator|-: -
  mnuRecentFile(0)|-: OpenRecentFile
  mnuRecentFile(1)|RecentFile1: OpenRecentFile 1
  mnuRecentFile(2)|RecentFile2: OpenRecentFile 2
  mnuRecentFile(3)|RecentFile3: OpenRecentFile 3
  mnuRecentFile(4)|RecentFile4: OpenRecentFile 4
mnuEdit|&Edit
  mnuEditCell|Edit cell|F2|hidden: EditCell
  |-|hidden
  mnuEditVarAdd|Add variable: AddVariable
  mnuEditVarEdit|Edit variables: EditVariables
  mnuEditVarDelete|Delete variable: DeleteVariable
  |-
  mnuEditRecAdd|Add record: AddRecord
  mnuEditRecDelete|Delete record: DeleteRecord
  |-
  mnuEditStandarization|Standardization: Standardization
  |-
  mnuEditSelect|&Select: -, -, frmDiagram.SelectThisRow 2, -, -
  mnuEditHome|&Home: -, -, frmDiagram.Home 2, -, -
  mnuEditUp|&Up: -, -, frmDiagram.Up 2, -, -
  mnuEditDown|&Down: -, -, frmDiagram.Down 2, -, -
  mnuEditEnd|&End: -, -, frmDiagram.EndRow 2, -, -
  mnuEditInsert|Insert: -, -, frmDiagram.Insert 2, -, -
  |-
  mnuEditCreateMatrix|&Create Matrix: -, -, frmDiagram.Matrix 2, -, -
  mnuEditCreateDataset|C&reate Dataset: -, -, frmDiagram.DataOrder 2, -, -
  |-
  mnuEditHistogram|&Histogram: -, -, frmDiagram.Histogram 2, -, -
  mnuEditLinear|&Linear: -, -, frmDiagram.Linear 2, -, -
  mnuEditDiagramType|D&iagram Type: -, -, frmDiagram.DiagramType 2, -, -
  |-
  mnuEditCopyClip|C&opy to Clipboard: -, -, -, frmBMP.BitmapClip 2, -
mnuAnalysis|&Analysis
  mnuAnalysisMatrix|&Make Matrix|Ctrl+M: MakeMatrix
  mnuAnalysisDiagram|Make &Diagram|Ctrl+D: MakeDiagram
mnuOptions|&Options
  mnuOToolbar|&Toolbar|checkable: ToggleToolbar
mnuWindow|&Window
  mnuCascade|&Cascade: Cascade
  mnuTile|&Tile: Tile
  mnuArrangeIcons|&Arrange icons: ArrangeIcons
mnuHelp|&Help
  mnuDorvanHelp|&Help (polish): Help
  mnuDorvanHelpEng|H&elp (english): HelpEnglish
  |-
  mnuHelpContact|&Contact: HelpContact
  |-
  mnuAbout|&About: About
)");
}

TEST(MenuTree, SeparatorsAreKnownByTheirCaption) {
    const auto file = MenuTree().front().Items;
    EXPECT_TRUE(file.at(6).IsSeparator());
    EXPECT_FALSE(file.at(0).IsSeparator());
}

TEST(Toolbars, HoldEveryButtonWithItsToolTipAndEachCallsItsOperation) {
    Clicks clicks;
    std::string picture;
    for (const auto& toolbar : Toolbars()) {
        picture += toolbar.Name + " \"" + toolbar.Spoken + "\"\n";
        for (const auto& button : toolbar.Buttons) {
            const auto calls =
                clicks.Of([&](MainWindowTest& test) { return test.Click(toolbar.Name, button.Key); });
            picture += (button.Gap ? "  | " : "  ") + button.Key + "|" + button.ToolTip + ": " + calls + "\n";
        }
    }
    EXPECT_EQ(picture, R"(toolMain "Main toolbar"
  New|New data: NewDataSheet
  Open|Open data: OpenDataFile
  OpenMatrix|Open matrix: OpenMatrixFile
  OpenDiagram|Open diagram: OpenDiagramFile
  | ImportDBF|Import data from DBF: ImportDBase
  ImportTXT|Import data from text file: -
  ImportMatrix|Import matrix: ImportMatrix
  | Save|Save: SaveData, frmMacierz.SaveMatrix 2, frmDiagram.SaveDiagram 2, frmBMP.SaveBMP 2, -
  SaveAs|SaveAs: SaveDataAs, frmMacierz.SaveMatrix 2, frmDiagram.SaveDiagram 2, frmBMP.SaveBMP 2, -
  | MakeMatrix|Create matrix: MakeMatrix
  MakeDiagram|Create diagram: MakeDiagram
  | Print|Print: -, frmMacierz.PrintMatrix 2, frmDiagram.PrintDiagram 2, -, -
  | Help|Help: Help
toolData "Data toolbar"
  Export|Export data: ExportData
  | AddRec|Add record: AddRecord
  DelRec|Delete record: DeleteRecord
  | AddVar|Add variable: AddVariable
  DelVar|Delete variable: DeleteVariable
  EditVar|Edit variable: EditVariables
  | Standarization|Standardization: Standardization
toolMatrix "Matrix toolbar"
  ExportMatrix|Export matrix: -, frmMacierz.ExportMatrix 2, -, -, -
  | CreateDiagram|Create Diagram: -
toolBitmap "Bitmap toolbar"
  Copy|Copy: -, -, -, frmBMP.BitmapClip 2, -
toolDiagram "Diagram toolbar"
  Select|Select: -, -, frmDiagram.SelectThisRow 2, -, -
  Home|Home: -, -, frmDiagram.Home 2, -, -
  Up|Up: -, -, frmDiagram.Up 2, -, -
  Down|Down: -, -, frmDiagram.Down 2, -, -
  End|End: -, -, frmDiagram.EndRow 2, -, -
  Insert|Insert: -, -, frmDiagram.Insert 2, -, -
  | Bitmap|Export bitmap graphic: -, -, frmDiagram.BITMAP 2, -, -
  Metafile|Export to metafile (WMF): -, -, frmDiagram.Metafile 2, -, -
  | Matrix|Matrix with new order: -, -, frmDiagram.Matrix 2, -, -
  DataOrder|Data with new order: -, -, frmDiagram.DataOrder 2, -, -
  | Histogram|Histogram: -, -, frmDiagram.Histogram 2, -, -
  Linear|Linear: -, -, frmDiagram.Linear 2, -, -
  | DiagramType|Diagram type: -, -, frmDiagram.DiagramType 2, -, -
)");
}

TEST(Toolbars, KeysThatNoButtonHasAreDispatched) {
    Clicks clicks;
    EXPECT_EQ(clicks.Of([](MainWindowTest& test) { return test.Click("toolMain", "ImportTxt"); }),
              "ImportText");
    EXPECT_EQ(clicks.Of([](MainWindowTest& test) { return test.Click("toolDiagram", "Print"); }),
              "-, -, frmDiagram.PrintDiagram 2, -, -");
}

constexpr CommandRow Extra{.Menu = ExtrasMenu,
                           .Item = "mnuExtrasMirror",
                           .Caption = "&Mirror",
                           .Shortcut = "Ctrl+Alt+M",
                           .Checkable = true,
                           .Calls = {.Data = "MirrorSheet", .Diagram = "frmDiagram.Mirror"}};

TEST(ExtrasMenu, StandsBetweenWindowAndHelpOnceAnItemStandsInIt) {
    CommandTable commands;
    const auto namesOf = [](const std::vector<MenuItem>& items) {
        std::vector<std::string> names;
        for (const auto& item : items) names.push_back(item.Name);
        return names;
    };
    using List = std::vector<std::string>;
    if (ExtrasRows().empty()) {
        EXPECT_EQ(namesOf(MenuTree(commands.Rows())),
                  (List{"mnuFile", "mnuEdit", "mnuAnalysis", "mnuOptions", "mnuWindow", "mnuHelp"}));
    }
    const auto extras = ExtrasRows();
    const auto before = std::size_t(
        std::count_if(extras.begin(), extras.end(), [](const auto& row) { return row.Menu == ExtrasMenu; }));
    commands.Add(Extra);
    const auto tree = MenuTree(commands.Rows());
    EXPECT_EQ(namesOf(tree),
              (List{"mnuFile", "mnuEdit", "mnuAnalysis", "mnuOptions", "mnuWindow", "mnuExtras", "mnuHelp"}));
    EXPECT_EQ(tree.at(5).Caption, "E&xtras");
    ASSERT_EQ(tree.at(5).Items.size(), before + 1);
    const auto& item = tree.at(5).Items.back();
    EXPECT_EQ(item.Name, "mnuExtrasMirror");
    EXPECT_EQ(item.Caption, "&Mirror");
    EXPECT_EQ(item.Shortcut, "Ctrl+Alt+M");
    EXPECT_TRUE(item.Checkable);
}

TEST(ExtrasMenu, AnItemIsOnForTheKindsOfWindowThatItHasAnOperationFor) {
    FakeWindowSession test;
    test.session.commands.Add(Extra);
    frmMDI main(test.session);
    std::vector<std::string> calls;
    for (const std::string name : {"MirrorSheet", "frmDiagram.Mirror"})
        test.session.commands.Set(name, [&calls, name](const CommandCall& call) {
            calls.push_back(fmt::format("{} {}", name, call.Index));
        });
    const auto click = [&] {
        const bool enabled = main.MenuEnabled("mnuExtrasMirror");
        main.MenuClick("mnuExtrasMirror");
        return enabled;
    };
    EXPECT_FALSE(click()) << "no window";
    test.Open(DocumentKind::Matrix);
    EXPECT_FALSE(click());
    test.Open(DocumentKind::Bitmap);
    EXPECT_FALSE(click());
    test.Open(DocumentKind::Data);
    EXPECT_TRUE(click());
    test.Open(DocumentKind::Diagram);
    test.Open(DocumentKind::Diagram);
    EXPECT_TRUE(click());
    EXPECT_EQ(calls, (std::vector<std::string>{"MirrorSheet 0", "frmDiagram.Mirror 2"}));
    test.session.mainWindow.EnableMenu("mnuExtrasMirror", false);
    EXPECT_FALSE(click()) << "a window may switch it as well";
    EXPECT_EQ(calls.size(), 2u);
}

TEST(ExtrasMenu, ItsItemsAreNamedForIt) {
    for (const auto& row : ExtrasRows())
        EXPECT_TRUE(row.Item.empty() || row.Item.starts_with("mnuExtras")) << row.Item;
}

} // namespace
} // namespace dorvan::test
