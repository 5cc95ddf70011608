#include "session/command_rows.h"
#include "session/open_documents.h"

#include <array>

// The menu "Extras" holds what this program adds of its own. A row of it is a row like any other:
//
//     {.Menu = ExtrasMenu,
//      .Item = "mnuExtrasBestOrder",
//      .Caption = "&Best order",
//      .Calls = {.Diagram = "frmDiagram.BestOrder"}},
//
// Its item is on while a window of a kind is active for which it calls an operation that is registered (see
// src/program); nothing else switches it, unless a window calls MainWindow::EnableMenu. It may have a
// shortcut, a check mark (MainWindow::CheckMenu), or be a submenu with rows of its own.
namespace dorvan {

namespace {

// Captioned at run time.
void AddDocumentItems(std::vector<CommandRow>& rows) {
    static const auto names = [] {
        std::array<std::string, DocumentItems> made;
        for (int number = 1; number <= DocumentItems; ++number)
            made[std::size_t(number - 1)] = DocumentItem(number);
        return made;
    }();
    rows.push_back(
        {.Menu = ExtrasMenu, .Item = DocumentsMenu, .Caption = "&Documents", .Kind = RowKind::Menu});
    for (std::int16_t number = 1; number <= DocumentItems; ++number)
        rows.push_back({.Menu = DocumentsMenu,
                        .Item = names[std::size_t(number - 1)],
                        .Caption = "Document",
                        .Checkable = true,
                        .Calls = {.Any = "ActivateDocument"},
                        .Number = number});
}

} // namespace

std::vector<CommandRow> ExtrasRows() {
    std::vector<CommandRow> rows = {
        // Steps taken back; their captions go on with the step's name (see session/history.h)
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasUndo",
         .Caption = "&Undo",
         .Shortcut = "Ctrl+Z",
         .Calls = {.Any = "Undo"}},
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasRedo",
         .Caption = "&Redo",
         .Shortcut = "Ctrl+Shift+Z",
         .Calls = {.Any = "Redo"}},
        {.Menu = ExtrasMenu, .Caption = "-"},

        // Cells, by the clipboard
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasCopy",
         .Caption = "&Copy",
         .Shortcut = "Ctrl+C",
         .Calls = {.Data = "CopySheetCells",
                   .Matrix = "frmMacierz.CopyCells",
                   .Diagram = "frmDiagram.CopyCells"}},
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasPaste",
         .Caption = "Pas&te",
         .Shortcut = "Ctrl+V",
         .Calls = {.Data = "PasteCells"}},
        {.Menu = ExtrasMenu, .Caption = "-"},

        // Orders of diagrams
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasBestOrder",
         .Caption = "&Best order",
         .Calls = {.Diagram = "frmDiagram.BestOrder"}},
        {.Menu = ExtrasMenu, .Caption = "-"},

        // What a window shows
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasZoomIn",
         .Caption = "Zoom &In",
         .Shortcut = "Ctrl++",
         .Calls = {.Diagram = "frmDiagram.ZoomIn"}},
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasZoomOut",
         .Caption = "Zoom &Out",
         .Shortcut = "Ctrl+-",
         .Calls = {.Diagram = "frmDiagram.ZoomOut"}},
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasZoomActual",
         .Caption = "&Actual Size",
         .Shortcut = "Ctrl+0",
         .Calls = {.Diagram = "frmDiagram.ZoomActual"}},
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasZoomFit",
         .Caption = "&Fit",
         .Calls = {.Diagram = "frmDiagram.ZoomFit"}},
        {.Menu = ExtrasMenu, .Caption = "-"},

        // Pictures
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasSavePicture",
         .Caption = "Save &Picture...",
         .Calls = {.Diagram = "frmDiagram.SavePicture"}},
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasCopyPicture",
         .Caption = "Cop&y Picture...",
         .Calls = {.Diagram = "frmDiagram.CopyPicture"}},
        {.Menu = ExtrasMenu, .Caption = "-"},

        // Documents
        {.Menu = ExtrasMenu,
         .Item = "mnuExtrasReopen",
         .Caption = "R&eopen Closed Document",
         .Shortcut = "Ctrl+Shift+T",
         .Calls = {.Any = "ReopenClosedDocument"}},
    };
    AddDocumentItems(rows);
    return rows;
}

} // namespace dorvan
