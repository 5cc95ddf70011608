#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

// The program's commands as data: one row a command says where it stands in the menus and toolbars and what
// it calls for which kind of window.
namespace dorvan {

// What a command calls: an operation, as it is named in the command table. A module's operation carries its
// own name ("MakeMatrix"), a method of the active window that of its class as well ("frmDiagram.Up"). Empty:
// nothing, and then the command is off for that kind of window.
struct CalledOperations {
    std::string_view Any = {}; // whichever window is active, and without one; the others are empty then
    std::string_view Data = {};
    std::string_view Matrix = {};
    std::string_view Diagram = {};
    std::string_view Bitmap = {};

    // For a DocumentKind, that of the active window.
    std::string_view For(std::string_view kind) const;
    bool None() const;
};

struct ButtonPlace {
    std::string_view Toolbar = {}; // "toolMain"; empty: no button
    int Place = 0;                 // in its toolbar, from 1; 0: only a key, which no button has
    std::string_view Key = {};
    std::string_view ToolTip = {};
    bool Gap = false; // it begins a group, with a gap before it
};

enum class RowKind { Command, Menu };

struct CommandRow {
    std::string_view Menu = {};     // the item of the menu that it stands in; empty: the menu bar, or none
    std::string_view Item = {};     // "mnuFNew"; empty for most separator lines
    std::string_view Caption = {};  // "&" marks the access key; "-" is a separator line
    std::string_view Shortcut = {}; // "Ctrl+N"
    RowKind Kind = RowKind::Command;
    bool Hidden = false;    // in the tree, never shown; its shortcut is not bound
    bool Checkable = false; // its check mark is MainWindow::MenuChecked
    ButtonPlace Button = {};
    CalledOperations Calls = {};     // without any the item or button is on and does nothing
    bool PassesPath = false;         // calls with the path of the active window's caption
    std::int16_t Number = 0;         // calls with it, where no window is acted on
    bool ButtonMarksChanged = false; // a click on the button marks the active diagram as changed
};

// The name of the program's own menu, between Window and Help, which shows as soon as an item stands in it.
inline constexpr std::string_view ExtrasMenu = "mnuExtras";

// All of the program's, menus and items in their order; those of the menu "Extras" come last.
const std::vector<CommandRow>& CommandRows();

// What stands in the menu "Extras" (see extras.cpp).
std::vector<CommandRow> ExtrasRows();

} // namespace dorvan
