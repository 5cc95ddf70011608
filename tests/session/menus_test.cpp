#include "session/menus.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

// One line an item: depth, name, caption, shortcut, and whether it is hidden.
void Draw(const std::vector<MenuItem>& items, int depth, std::string& picture) {
    for (const auto& item : items) {
        picture += std::string(std::size_t(depth) * 2, ' ') + item.Name + "|" + item.Caption;
        if (!item.Shortcut.empty()) picture += "|" + item.Shortcut;
        if (item.Hidden) picture += "|hidden";
        picture += "\n";
        Draw(item.Items, depth + 1, picture);
    }
}

TEST(MenuTree, HoldsEveryItemInOrder) {
    std::string picture;
    Draw(MenuTree(), 0, picture);
    EXPECT_EQ(picture, R"(mnuFile|&File
  mnuFNew|&New|Ctrl+N
  mnuFOpen|&Open
    mnuFData|&Data|Ctrl+O
    mnuFDiagram|D&iagram
    mnuFMatrix|&Matrix
  mnuRaport|Cluster ra&port|hidden
  mnuSave|Save|Ctrl+S
  mnuSaveAs|SaveAs
  mnuFileClose|&Close
  |-
  mnuImport|&Import
    mnuImportTextFile|&Text file
    mnuImportDBase|D&Base III
    |-
    mnuImportMatrix|Matrix
  mnuExport|Export
    mnuExportText|Export text
    mnuExportExcel|Export Excel
    |-
    mnuExportBitmap|Export bitmap
    mnuExportMeta|Export metafile (WMF)
  |-
  mnuFilePrint|Print|Ctrl+P
  |-
  mnuFExit|E&xit
  mnuSeparator|-
  mnuRecentFile(0)|-
  mnuRecentFile(1)|RecentFile1
  mnuRecentFile(2)|RecentFile2
  mnuRecentFile(3)|RecentFile3
  mnuRecentFile(4)|RecentFile4
mnuEdit|&Edit
  mnuEditCell|Edit cell|F2|hidden
  |-|hidden
  mnuEditVarAdd|Add variable
  mnuEditVarEdit|Edit variables
  mnuEditVarDelete|Delete variable
  |-
  mnuEditRecAdd|Add record
  mnuEditRecDelete|Delete record
  |-
  mnuEditStandarization|Standardization
  |-
  mnuEditSelect|&Select
  mnuEditHome|&Home
  mnuEditUp|&Up
  mnuEditDown|&Down
  mnuEditEnd|&End
  mnuEditInsert|Insert
  |-
  mnuEditCreateMatrix|&Create Matrix
  mnuEditCreateDataset|C&reate Dataset
  |-
  mnuEditHistogram|&Histogram
  mnuEditLinear|&Linear
  mnuEditDiagramType|D&iagram Type
  |-
  mnuEditCopyClip|C&opy to Clipboard
mnuAnalysis|&Analysis
  mnuAnalysisMatrix|&Make Matrix|Ctrl+M
  mnuAnalysisDiagram|Make &Diagram|Ctrl+D
mnuOptions|&Options
  mnuOToolbar|&Toolbar
mnuWindow|&Window
  mnuCascade|&Cascade
  mnuTile|&Tile
  mnuArrangeIcons|&Arrange icons
mnuHelp|&Help
  mnuDorvanHelp|&Help (polish)
  mnuDorvanHelpEng|H&elp (english)
  |-
  mnuHelpContact|&Contact
  |-
  mnuAbout|&About
)");
}

TEST(MenuTree, SeparatorsAreKnownByTheirCaption) {
    EXPECT_TRUE(FindMenuItem("mnuFile")->Items.at(6).IsSeparator());
    EXPECT_TRUE(FindMenuItem("mnuSeparator")->IsSeparator());
    EXPECT_FALSE(FindMenuItem("mnuFNew")->IsSeparator());
}

TEST(FindMenuItem, LooksAtEveryDepth) {
    EXPECT_EQ(FindMenuItem("mnuFMatrix")->Caption, "&Matrix");
    EXPECT_EQ(FindMenuItem("mnuNothing"), nullptr);
    EXPECT_EQ(FindMenuItem(""), nullptr);
}

TEST(Toolbars, HoldEveryButtonWithItsToolTip) {
    std::string picture;
    for (const auto& toolbar : Toolbars()) {
        picture += toolbar.Name + "\n";
        for (const auto& button : toolbar.Buttons) picture += "  " + button.Key + "|" + button.ToolTip + "\n";
    }
    EXPECT_EQ(picture, R"(toolMain
  New|New data
  Open|Open data
  OpenMatrix|Open matrix
  OpenDiagram|Open diagram
  ImportDBF|Import data from DBF
  ImportTXT|Import data from text file
  ImportMatrix|Import matrix
  Save|Save
  SaveAs|SaveAs
  MakeMatrix|Create matrix
  MakeDiagram|Create diagram
  Print|Print
  Help|Help
toolData
  Export|Export data
  AddRec|Add record
  DelRec|Delete record
  AddVar|Add variable
  DelVar|Delete variable
  EditVar|Edit variable
  Standarization|Standardization
toolMatrix
  ExportMatrix|Export matrix
  CreateDiagram|Create Diagram
toolBitmap
  Copy|Copy
toolDiagram
  Select|Select
  Home|Home
  Up|Up
  Down|Down
  End|End
  Insert|Insert
  Bitmap|Export bitmap graphic
  Metafile|Export to metafile (WMF)
  Matrix|Matrix with new order
  DataOrder|Data with new order
  Histogram|Histogram
  Linear|Linear
  DiagramType|Diagram type
)");
}

} // namespace
} // namespace dorvan::test
