#include "session/window_switches.h"

#include "session/documents.h"

#include <stdexcept>

namespace dorvan {

namespace {

using enum Switch;

// clang-format off

constexpr CommandSwitch DataSwitches[] = {
    //                        activated  deactivated  unloaded
    {"mnuExport",             On,        Off,         Leave},
    {"mnuExportText",         On,        Off,         Leave},
    {"mnuExportExcel",        On,        Off,         Leave},
    {"mnuExportBitmap",       Off,       Off,         Leave},
    {"mnuExportMeta",         Off,       Off,         Leave},
    {"mnuSave",               On,        Off,         Off},
    {"mnuSaveAs",             On,        Off,         Off},
    {"mnuFileClose",          On,        Off,         Off},
    {"mnuEditCell",           On,        Off,         Off},
    {"mnuEditVarAdd",         On,        Off,         Off},
    {"mnuEditVarEdit",        On,        Off,         Off},
    {"mnuEditVarDelete",      On,        Off,         Off},
    {"mnuEditRecAdd",         On,        Off,         Off},
    {"mnuEditRecDelete",      On,        Off,         Off},
    {"mnuEditStandarization", On,        Off,         Off},
    {"mnuAnalysisMatrix",     On,        Off,         Off},
    {"mnuAnalysisDiagram",    On,        Off,         Off},
    {"toolMain.MakeMatrix",   On,        Off,         Off},
    {"toolMain.MakeDiagram",  On,        Off,         Off},
    {"toolMain.Save",         On,        Off,         Off},
    {"toolMain.SaveAs",       On,        Off,         Off},
    {"toolMain.Print",        Off,       Off,         Off},
    {"toolData",              On,        Off,         Off},
};

constexpr CommandSwitch MatrixSwitches[] = {
    //                        activated  deactivated  unloaded
    {"mnuExport",             On,        Off,         Off},
    {"mnuExportText",         On,        Off,         Off},
    {"mnuExportExcel",        On,        Off,         Off},
    {"mnuExportBitmap",       Off,       Off,         Off},
    {"mnuExportMeta",         Off,       Off,         Off},
    {"mnuSave",               On,        Off,         Off},
    {"mnuSaveAs",             On,        Off,         Off},
    {"mnuFileClose",          On,        Off,         Off},
    {"mnuFilePrint",          On,        Off,         Off},
    {"toolMain.MakeMatrix",   Off,       On,          Off},
    {"toolMain.MakeDiagram",  On,        On,          Off},
    {"toolMain.Save",         On,        Off,         Off},
    {"toolMain.SaveAs",       On,        Off,         Off},
    {"toolMain.Print",        On,        Off,         Off},
    {"toolMatrix",            On,        Off,         Off},
};

// mnuEditCreateDataset is switched on by the window, and the button "DataOrder" shown, where the diagram has
// data. mnuFilePrint stays on after a diagram.
constexpr CommandSwitch DiagramSwitches[] = {
    //                        activated  deactivated  unloaded
    {"mnuExport",             On,        Off,         Leave},
    {"mnuExportText",         Off,       Off,         Leave},
    {"mnuExportExcel",        On,        Off,         Leave},
    {"mnuExportBitmap",       On,        Off,         Leave},
    {"mnuExportMeta",         On,        Off,         Leave},
    {"mnuSave",               On,        Off,         Off},
    {"mnuSaveAs",             On,        Off,         Off},
    {"mnuFileClose",          On,        Off,         Off},
    {"mnuFilePrint",          On,        Leave,       Leave},
    {"mnuEditSelect",         On,        Off,         Off},
    {"mnuEditHome",           On,        Off,         Off},
    {"mnuEditUp",             On,        Off,         Off},
    {"mnuEditDown",           On,        Off,         Off},
    {"mnuEditEnd",            On,        Off,         Off},
    {"mnuEditInsert",         On,        Off,         Off},
    {"mnuEditCreateMatrix",   On,        Off,         Off},
    {"mnuEditCreateDataset",  Off,       Off,         Off},
    {"mnuEditHistogram",      On,        Off,         Off},
    {"mnuEditLinear",         On,        Off,         Off},
    {"mnuEditDiagramType",    On,        Off,         Off},
    {"mnuEditCopyClip",       Off,       Off,         Off},
    {"mnuAnalysisMatrix",     Off,       Leave,       Leave},
    {"mnuAnalysisDiagram",    Off,       Leave,       Leave},
    {"toolMain.MakeMatrix",   Off,       On,          Off},
    {"toolMain.MakeDiagram",  Off,       On,          Off},
    {"toolMain.Save",         On,        Off,         Off},
    {"toolMain.SaveAs",       On,        Off,         Off},
    {"toolMain.Print",        On,        Off,         Off},
    {"toolDiagram",           On,        Off,         Off},
};

constexpr CommandSwitch BitmapSwitches[] = {
    //                        activated  deactivated  unloaded
    {"mnuExport",             Off,       Leave,       Leave},
    {"mnuExportText",         Off,       Leave,       Leave},
    {"mnuExportExcel",        Off,       Leave,       Leave},
    {"mnuExportBitmap",       Off,       Leave,       Leave},
    {"mnuExportMeta",         Off,       Leave,       Leave},
    {"mnuSave",               On,        Off,         Leave},
    {"mnuSaveAs",             On,        Off,         Leave},
    {"mnuEditCopyClip",       On,        Off,         Leave},
    {"toolMain.MakeMatrix",   Off,       On,          Off},
    {"toolMain.MakeDiagram",  Off,       On,          Off},
    {"toolMain.Save",         On,        Off,         Off},
    {"toolMain.SaveAs",       On,        Off,         Off},
    {"toolMain.Print",        Off,       Off,         Off},
    {"toolBitmap",            On,        Off,         Off},
};

// clang-format on

void Put(MainWindow& mainWindow, std::string_view name, bool on) {
    if (const auto dot = name.find('.'); dot != std::string_view::npos)
        mainWindow.EnableButton(name.substr(0, dot), name.substr(dot + 1), on);
    else if (name.starts_with("tool"))
        mainWindow.ShowToolbar(name, on);
    else
        mainWindow.EnableMenu(name, on);
}

Switch At(const CommandSwitch& row, WindowEvent event) {
    switch (event) {
    case WindowEvent::Activated: return row.Activated;
    case WindowEvent::Deactivated: return row.Deactivated;
    case WindowEvent::Unloaded: return row.Unloaded;
    }
    return Leave;
}

} // namespace

std::span<const CommandSwitch> SwitchesOf(std::string_view kind) {
    if (kind == DocumentKind::Data) return DataSwitches;
    if (kind == DocumentKind::Matrix) return MatrixSwitches;
    if (kind == DocumentKind::Diagram) return DiagramSwitches;
    if (kind == DocumentKind::Bitmap) return BitmapSwitches;
    throw std::logic_error("no window has the kind \"" + std::string(kind) + '"');
}

void SwitchCommands(MainWindow& mainWindow, std::string_view kind, WindowEvent event) {
    for (const auto& row : SwitchesOf(kind))
        if (const Switch to = At(row, event); to != Leave) Put(mainWindow, row.Name, to == On);
}

void DisableDocumentCommands(MainWindow& mainWindow) {
    for (const auto kind :
         {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram, DocumentKind::Bitmap})
        for (const auto& row : SwitchesOf(kind)) Put(mainWindow, row.Name, false);
}

} // namespace dorvan
