#include "support/command_switches.h"

#include "session/documents.h"

#include <gtest/gtest.h>

#include <set>

namespace dorvan::test {

namespace {

// Three signs a kind, for its activation, deactivation and unloading: "+" on, "-" off, "." as it was. For
// mnuEditCreateDataset the diagram has data.
struct ExpectedSwitch {
    const char* Name;
    const char* Data;
    const char* Matrix;
    const char* Diagram;
    const char* Bitmap;
};

// clang-format off
constexpr ExpectedSwitch Table[] = {
    //                        DATA   MATRIX DIAGRAM BITMAP
    {"mnuExport",             "+-.", "+--", "+-.", "-.."},
    {"mnuExportText",         "+-.", "+--", "--.", "-.."},
    {"mnuExportExcel",        "+-.", "+--", "+-.", "-.."},
    {"mnuExportBitmap",       "--.", "---", "+-.", "-.."},
    {"mnuExportMeta",         "--.", "---", "+-.", "-.."},
    {"mnuSave",               "+--", "+--", "+--", "+-."},
    {"mnuSaveAs",             "+--", "+--", "+--", "+-."},
    {"mnuFileClose",          "+--", "+--", "+--", "..."},
    {"mnuFilePrint",          "...", "+--", "+..", "..."},
    {"mnuEditCell",           "+--", "...", "...", "..."},
    {"mnuEditVarAdd",         "+--", "...", "...", "..."},
    {"mnuEditVarEdit",        "+--", "...", "...", "..."},
    {"mnuEditVarDelete",      "+--", "...", "...", "..."},
    {"mnuEditRecAdd",         "+--", "...", "...", "..."},
    {"mnuEditRecDelete",      "+--", "...", "...", "..."},
    {"mnuEditStandarization", "+--", "...", "...", "..."},
    {"mnuAnalysisMatrix",     "+--", "...", "-..", "..."},
    {"mnuAnalysisDiagram",    "+--", "...", "-..", "..."},
    {"mnuEditCopyClip",       "...", "...", "---", "+-."},
    {"mnuEditSelect",         "...", "...", "+--", "..."},
    {"mnuEditHome",           "...", "...", "+--", "..."},
    {"mnuEditUp",             "...", "...", "+--", "..."},
    {"mnuEditDown",           "...", "...", "+--", "..."},
    {"mnuEditEnd",            "...", "...", "+--", "..."},
    {"mnuEditInsert",         "...", "...", "+--", "..."},
    {"mnuEditCreateMatrix",   "...", "...", "+--", "..."},
    {"mnuEditCreateDataset",  "...", "...", "+--", "..."},
    {"mnuEditHistogram",      "...", "...", "+--", "..."},
    {"mnuEditLinear",         "...", "...", "+--", "..."},
    {"mnuEditDiagramType",    "...", "...", "+--", "..."},
    {"toolMain.MakeMatrix",   "+--", "-+-", "-+-", "-+-"},
    {"toolMain.MakeDiagram",  "+--", "++-", "-+-", "-+-"},
    {"toolMain.Save",         "+--", "+--", "+--", "+--"},
    {"toolMain.SaveAs",       "+--", "+--", "+--", "+--"},
    {"toolMain.Print",        "---", "+--", "+--", "---"},
    {"toolData",              "+--", "...", "...", "..."},
    {"toolMatrix",            "...", "+--", "...", "..."},
    {"toolDiagram",           "...", "...", "+--", "..."},
    {"toolBitmap",            "...", "...", "...", "+--"},
};
// clang-format on

const char* SignsOf(const ExpectedSwitch& row, std::string_view kind) {
    return kind == DocumentKind::Data      ? row.Data
           : kind == DocumentKind::Matrix  ? row.Matrix
           : kind == DocumentKind::Diagram ? row.Diagram
                                           : row.Bitmap;
}

char SignOf(const std::string& name, std::string_view kind, WindowPhase phase) {
    for (const auto& row : Table)
        if (row.Name == name) return SignsOf(row, kind)[static_cast<int>(phase)];
    return '.';
}

// All items, all buttons of toolMain and all toolbars. (The buttons of the other toolbars come and go with
// their bar; diagrams switch some of theirs by the selection. Items of the menu "Extras" have rules of their
// own.)
std::set<std::string> AllNames(const Session& session) {
    std::set<std::string> names;
    for (const auto& row : session.commands.Rows()) {
        if (!row.Item.empty() && row.Menu != ExtrasMenu) names.emplace(row.Item);
        if (row.Button.Toolbar.empty()) continue;
        names.emplace(row.Button.Toolbar);
        if (row.Button.Toolbar == "toolMain") names.insert(ButtonName("toolMain", row.Button.Key));
    }
    return names;
}

} // namespace

std::vector<std::string> SwitchedNames() {
    std::vector<std::string> names;
    for (const auto& row : Table) names.push_back(row.Name);
    return names;
}

bool IsOn(const MainWindow& mainWindow, const std::string& name) {
    if (const auto dot = name.find('.'); dot != std::string::npos)
        return mainWindow.ButtonEnabled(name.substr(0, dot), name.substr(dot + 1));
    return name.starts_with("tool") ? mainWindow.ToolbarShown(name) : mainWindow.MenuEnabled(name);
}

void SetOn(MainWindow& mainWindow, const std::string& name, bool on) {
    if (const auto dot = name.find('.'); dot != std::string::npos)
        mainWindow.EnableButton(name.substr(0, dot), name.substr(dot + 1), on);
    else if (name.starts_with("tool"))
        mainWindow.ShowToolbar(name, on);
    else
        mainWindow.EnableMenu(name, on);
}

void ExpectSwitches(Session& session, std::string_view kind, WindowPhase phase,
                    const std::function<void()>& happens) {
    const auto names = AllNames(session);
    for (const bool before : {false, true}) {
        for (const auto& name : names) SetOn(session.mainWindow, name, before);
        happens();
        for (const auto& name : names) {
            const char sign = SignOf(name, kind, phase);
            const bool expected = sign == '.' ? before : sign == '+';
            EXPECT_EQ(IsOn(session.mainWindow, name), expected)
                << name << " of " << kind << ", before: " << before;
        }
    }
}

} // namespace dorvan::test
