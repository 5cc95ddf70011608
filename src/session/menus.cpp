#include "session/menus.h"

#include <fmt/format.h>

namespace dorvan {

namespace {

MenuItem Line(bool hidden = false) { return {"", "-", "", hidden, {}}; }

MenuItem Item(std::string name, std::string caption, std::string shortcut = {}) {
    return {std::move(name), std::move(caption), std::move(shortcut), false, {}};
}

MenuItem HiddenItem(std::string name, std::string caption, std::string shortcut = {}) {
    return {std::move(name), std::move(caption), std::move(shortcut), true, {}};
}

MenuItem Menu(std::string name, std::string caption, std::vector<MenuItem> items) {
    return {std::move(name), std::move(caption), "", false, std::move(items)};
}

MenuItem OpenMenu() {
    return Menu("mnuFOpen", "&Open",
                {Item("mnuFData", "&Data", "Ctrl+O"), Item("mnuFDiagram", "D&iagram"),
                 Item("mnuFMatrix", "&Matrix")});
}

MenuItem ImportMenu() {
    return Menu("mnuImport", "&Import",
                {Item("mnuImportTextFile", "&Text file"), Item("mnuImportDBase", "D&Base III"), Line(),
                 Item("mnuImportMatrix", "Matrix")});
}

MenuItem ExportMenu() {
    return Menu("mnuExport", "Export",
                {Item("mnuExportText", "Export text"), Item("mnuExportExcel", "Export Excel"), Line(),
                 Item("mnuExportBitmap", "Export bitmap"), Item("mnuExportMeta", "Export metafile (WMF)")});
}

MenuItem FileMenu() {
    MenuItem menu =
        Menu("mnuFile", "&File",
             {Item("mnuFNew", "&New", "Ctrl+N"), OpenMenu(), HiddenItem("mnuRaport", "Cluster ra&port"),
              Item("mnuSave", "Save", "Ctrl+S"), Item("mnuSaveAs", "SaveAs"), Item("mnuFileClose", "&Close"),
              Line(), ImportMenu(), ExportMenu(), Line(), Item("mnuFilePrint", "Print", "Ctrl+P"), Line(),
              Item("mnuFExit", "E&xit"), Item("mnuSeparator", "-"), Item(RecentFileItem(0), "-")});
    for (int index = 1; index < RecentFileItems; ++index)
        menu.Items.push_back(Item(RecentFileItem(index), fmt::format("RecentFile{}", index)));
    return menu;
}

MenuItem EditMenu() {
    return Menu("mnuEdit", "&Edit",
                {HiddenItem("mnuEditCell", "Edit cell", "F2"),
                 Line(true),
                 Item("mnuEditVarAdd", "Add variable"),
                 Item("mnuEditVarEdit", "Edit variables"),
                 Item("mnuEditVarDelete", "Delete variable"),
                 Line(),
                 Item("mnuEditRecAdd", "Add record"),
                 Item("mnuEditRecDelete", "Delete record"),
                 Line(),
                 Item("mnuEditStandarization", "Standardization"),
                 Line(),
                 Item("mnuEditSelect", "&Select"),
                 Item("mnuEditHome", "&Home"),
                 Item("mnuEditUp", "&Up"),
                 Item("mnuEditDown", "&Down"),
                 Item("mnuEditEnd", "&End"),
                 Item("mnuEditInsert", "Insert"),
                 Line(),
                 Item("mnuEditCreateMatrix", "&Create Matrix"),
                 Item("mnuEditCreateDataset", "C&reate Dataset"),
                 Line(),
                 Item("mnuEditHistogram", "&Histogram"),
                 Item("mnuEditLinear", "&Linear"),
                 Item("mnuEditDiagramType", "D&iagram Type"),
                 Line(),
                 Item("mnuEditCopyClip", "C&opy to Clipboard")});
}

MenuItem AnalysisMenu() {
    return Menu("mnuAnalysis", "&Analysis",
                {Item("mnuAnalysisMatrix", "&Make Matrix", "Ctrl+M"),
                 Item("mnuAnalysisDiagram", "Make &Diagram", "Ctrl+D")});
}

MenuItem WindowMenu() {
    return Menu("mnuWindow", "&Window",
                {Item("mnuCascade", "&Cascade"), Item("mnuTile", "&Tile"),
                 Item("mnuArrangeIcons", "&Arrange icons")});
}

MenuItem HelpMenu() {
    return Menu("mnuHelp", "&Help",
                {Item("mnuDorvanHelp", "&Help (polish)"), Item("mnuDorvanHelpEng", "H&elp (english)"), Line(),
                 Item("mnuHelpContact", "&Contact"), Line(), Item("mnuAbout", "&About")});
}

Toolbar MainToolbar() {
    return {"toolMain",
            {{"New", "New data"},
             {"Open", "Open data"},
             {"OpenMatrix", "Open matrix"},
             {"OpenDiagram", "Open diagram"},
             {"ImportDBF", "Import data from DBF"},
             {"ImportTXT", "Import data from text file"},
             {"ImportMatrix", "Import matrix"},
             {"Save", "Save"},
             {"SaveAs", "SaveAs"},
             {"MakeMatrix", "Create matrix"},
             {"MakeDiagram", "Create diagram"},
             {"Print", "Print"},
             {"Help", "Help"}}};
}

Toolbar DataToolbar() {
    return {"toolData",
            {{"Export", "Export data"},
             {"AddRec", "Add record"},
             {"DelRec", "Delete record"},
             {"AddVar", "Add variable"},
             {"DelVar", "Delete variable"},
             {"EditVar", "Edit variable"},
             {"Standarization", "Standardization"}}};
}

Toolbar DiagramToolbar() {
    return {"toolDiagram",
            {{"Select", "Select"},
             {"Home", "Home"},
             {"Up", "Up"},
             {"Down", "Down"},
             {"End", "End"},
             {"Insert", "Insert"},
             {"Bitmap", "Export bitmap graphic"},
             {"Metafile", "Export to metafile (WMF)"},
             {"Matrix", "Matrix with new order"},
             {"DataOrder", "Data with new order"},
             {"Histogram", "Histogram"},
             {"Linear", "Linear"},
             {"DiagramType", "Diagram type"}}};
}

const MenuItem* Find(const std::vector<MenuItem>& items, std::string_view name) {
    for (const auto& item : items) {
        if (item.Name == name) return &item;
        if (const auto* inside = Find(item.Items, name)) return inside;
    }
    return nullptr;
}

} // namespace

std::string RecentFileItem(int index) { return fmt::format("mnuRecentFile({})", index); }

const std::vector<MenuItem>& MenuTree() {
    static const std::vector<MenuItem> tree{
        FileMenu(),     EditMenu(),
        AnalysisMenu(), Menu("mnuOptions", "&Options", {Item("mnuOToolbar", "&Toolbar")}),
        WindowMenu(),   HelpMenu()};
    return tree;
}

const MenuItem* FindMenuItem(std::string_view name) {
    return name.empty() ? nullptr : Find(MenuTree(), name);
}

const std::vector<Toolbar>& Toolbars() {
    static const std::vector<Toolbar> toolbars{
        MainToolbar(), DataToolbar(),
        Toolbar{"toolMatrix", {{"ExportMatrix", "Export matrix"}, {"CreateDiagram", "Create Diagram"}}},
        Toolbar{"toolBitmap", {{"Copy", "Copy"}}}, DiagramToolbar()};
    return toolbars;
}

} // namespace dorvan
