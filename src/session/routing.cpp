#include "session/routing.h"

#include "session/documents.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace dorvan {

namespace {

struct MenuCommand {
    std::string_view Item;
    std::string_view Command;
};

constexpr MenuCommand MenuCommands[] = {
    {"mnuFNew", "NewDataSheet"},
    {"mnuFData", "OpenDataFile"},
    {"mnuFDiagram", "OpenDiagramFile"},
    {"mnuFMatrix", "OpenMatrixFile"},
    {"mnuSave", "Save"},
    {"mnuSaveAs", "SaveAs"},
    {"mnuFileClose", "Close"},
    {"mnuImportTextFile", "ImportText"},
    {"mnuImportDBase", "ImportDBase"},
    {"mnuImportMatrix", "ImportMatrix"},
    {"mnuExportText", "ExportText"},
    {"mnuExportExcel", "ExportExcel"},
    {"mnuExportBitmap", "ExportBitmap"},
    {"mnuExportMeta", "ExportMetafile"},
    {"mnuFilePrint", "Print"},
    {"mnuFExit", "Exit"},
    {"mnuEditCell", "EditCell"},
    {"mnuEditVarAdd", "AddVariable"},
    {"mnuEditVarEdit", "EditVariables"},
    {"mnuEditVarDelete", "DeleteVariable"},
    {"mnuEditRecAdd", "AddRecord"},
    {"mnuEditRecDelete", "DeleteRecord"},
    {"mnuEditStandarization", "Standardization"},
    {"mnuEditSelect", "frmDiagram.SelectThisRow"},
    {"mnuEditHome", "frmDiagram.Home"},
    {"mnuEditUp", "frmDiagram.Up"},
    {"mnuEditDown", "frmDiagram.Down"},
    {"mnuEditEnd", "frmDiagram.EndRow"},
    {"mnuEditInsert", "frmDiagram.Insert"},
    {"mnuEditCreateMatrix", "frmDiagram.Matrix"},
    {"mnuEditCreateDataset", "frmDiagram.DataOrder"},
    {"mnuEditHistogram", "frmDiagram.Histogram"},
    {"mnuEditLinear", "frmDiagram.Linear"},
    {"mnuEditDiagramType", "frmDiagram.DiagramType"},
    {"mnuEditCopyClip", "frmBMP.BitmapClip"},
    {"mnuAnalysisMatrix", "MakeMatrix"},
    {"mnuAnalysisDiagram", "MakeDiagram"},
    {"mnuOToolbar", "ToggleToolbar"},
    {"mnuCascade", "Cascade"},
    {"mnuTile", "Tile"},
    {"mnuArrangeIcons", "ArrangeIcons"},
    {"mnuDorvanHelp", "Help"},
    {"mnuDorvanHelpEng", "HelpEnglish"},
    {"mnuHelpContact", "HelpContact"},
    {"mnuAbout", "About"},
};

struct ButtonCommand {
    std::string_view Toolbar;
    std::string_view Key;
    std::string_view Command;
};

// The keys that the dispatchers compare with, exactly. The bar's button for text import has the key
// "ImportTXT", and "CreateDiagram" of toolMatrix is not among them: both buttons do nothing.
constexpr ButtonCommand ButtonCommands[] = {
    {"toolMain", "New", "NewDataSheet"},
    {"toolMain", "Open", "OpenDataFile"},
    {"toolMain", "OpenMatrix", "OpenMatrixFile"},
    {"toolMain", "OpenDiagram", "OpenDiagramFile"},
    {"toolMain", "ImportDBF", "ImportDBase"},
    {"toolMain", "ImportTxt", "ImportText"},
    {"toolMain", "ImportMatrix", "ImportMatrix"},
    {"toolMain", "Save", "Save"},
    {"toolMain", "SaveAs", "SaveAs"},
    {"toolMain", "MakeMatrix", "MakeMatrix"},
    {"toolMain", "MakeDiagram", "MakeDiagram"},
    {"toolMain", "Print", "Print"},
    {"toolMain", "Help", "Help"},
    {"toolData", "Export", "ExportData"},
    {"toolData", "AddRec", "AddRecord"},
    {"toolData", "DelRec", "DeleteRecord"},
    {"toolData", "AddVar", "AddVariable"},
    {"toolData", "DelVar", "DeleteVariable"},
    {"toolData", "EditVar", "EditVariables"},
    {"toolData", "Standarization", "Standardization"},
    {"toolMatrix", "ExportMatrix", "frmMacierz.ExportMatrix"},
    {"toolBitmap", "Copy", "frmBMP.BitmapClip"},
    {"toolDiagram", "Select", "frmDiagram.SelectThisRow"},
    {"toolDiagram", "Home", "frmDiagram.Home"},
    {"toolDiagram", "Up", "frmDiagram.Up"},
    {"toolDiagram", "Down", "frmDiagram.Down"},
    {"toolDiagram", "End", "frmDiagram.EndRow"},
    {"toolDiagram", "Insert", "frmDiagram.Insert"},
    {"toolDiagram", "Bitmap", "frmDiagram.BITMAP"},
    {"toolDiagram", "Metafile", "frmDiagram.Metafile"},
    {"toolDiagram", "Matrix", "frmDiagram.Matrix"},
    {"toolDiagram", "DataOrder", "frmDiagram.DataOrder"},
    {"toolDiagram", "Histogram", "frmDiagram.Histogram"},
    {"toolDiagram", "Linear", "frmDiagram.Linear"},
    {"toolDiagram", "DiagramType", "frmDiagram.DiagramType"},
    {"toolDiagram", "Print", "frmDiagram.PrintDiagram"},
};

constexpr std::string_view OwnCommands[] = {"Close",        "Exit",     "Help",         "HelpEnglish",
                                            "HelpContact",  "About",    "Cascade",      "Tile",
                                            "ArrangeIcons", "EditCell", "ToggleToolbar"};

constexpr std::string_view Kinds[] = {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram,
                                      DocumentKind::Bitmap};

struct Route {
    std::string_view Command;
    std::array<std::string_view, 4> Operations; // in the order of Kinds
};

constexpr Route Routes[] = {
    {"Save", {"SaveData", "frmMacierz.SaveMatrix", "frmDiagram.SaveDiagram", "frmBMP.SaveBMP"}},
    {"SaveAs", {"SaveDataAs", "frmMacierz.SaveMatrix", "frmDiagram.SaveDiagram", "frmBMP.SaveBMP"}},
    {"Print", {"", "frmMacierz.PrintMatrix", "frmDiagram.PrintDiagram", ""}},
    {"ExportText", {"ExportData", "frmMacierz.ExportMatrix", "", ""}},
    {"ExportExcel",
     {"ExportDataToExcel", "frmMacierz.ExportMatrixToExcel", "frmDiagram.ExportDiagramToExcel", ""}},
    {"ExportBitmap", {"", "", "frmDiagram.BITMAP", ""}},
    {"ExportMetafile", {"", "", "frmDiagram.Metafile", ""}},
};

const Route* FindRoute(std::string_view command) {
    const auto* found = std::find_if(std::begin(Routes), std::end(Routes),
                                     [&](const Route& r) { return r.Command == command; });
    return found == std::end(Routes) ? nullptr : found;
}

} // namespace

std::string_view CommandOfMenuItem(std::string_view item) {
    if (item.starts_with("mnuRecentFile(")) return "OpenRecentFile";
    for (const auto& entry : MenuCommands)
        if (entry.Item == item) return entry.Command;
    return {};
}

std::string_view CommandOfButton(std::string_view toolbar, std::string_view key) {
    for (const auto& entry : ButtonCommands)
        if (entry.Toolbar == toolbar && entry.Key == key) return entry.Command;
    return {};
}

bool IsOwnCommand(std::string_view command) {
    return std::find(std::begin(OwnCommands), std::end(OwnCommands), command) != std::end(OwnCommands);
}

bool IsRoutedCommand(std::string_view command) { return FindRoute(command) != nullptr; }

std::string_view RoutedOperation(std::string_view command, std::string_view kind) {
    const auto* route = FindRoute(command);
    const auto* place = std::find(std::begin(Kinds), std::end(Kinds), kind);
    if (!route || place == std::end(Kinds)) return {};
    return route->Operations[std::size_t(place - std::begin(Kinds))];
}

std::string_view KindOfOperation(std::string_view operation) {
    if (operation.starts_with("frmMacierz.")) return DocumentKind::Matrix;
    if (operation.starts_with("frmDiagram.")) return DocumentKind::Diagram;
    if (operation.starts_with("frmBMP.")) return DocumentKind::Bitmap;
    return {};
}

} // namespace dorvan
