#pragma once

#include "session/command_rows.h"

#include <string>
#include <vector>

// The main window's menus and toolbars as a face shows them, from the rows of the commands.
namespace dorvan {

struct MenuItem {
    std::string Name;     // "mnuFNew"; empty for most separator lines
    std::string Caption;  // "&" marks the access key; "-" is a separator line
    std::string Shortcut; // "Ctrl+N", or empty
    bool Hidden = false;  // in the tree, never shown; its shortcut is not bound
    bool Checkable = false;
    std::vector<MenuItem> Items; // of a menu

    bool IsSeparator() const { return Caption == "-"; }
};

// The top-level menus, in order, with their items and separators. A menu without items is left out.
std::vector<MenuItem> MenuTree(const std::vector<CommandRow>& rows = CommandRows());

// The recent files are the items "mnuRecentFile(0)" to "mnuRecentFile(4)". They are told apart by index, and
// shown, hidden and captioned at run time (see MainWindow).
inline constexpr int RecentFileItems = 5;
std::string RecentFileItem(int index);

struct ToolButton {
    std::string Key;
    std::string ToolTip;
    bool Gap = false; // before it
};

struct Toolbar {
    std::string Name;   // "toolMain"
    std::string Spoken; // what a screen reader calls it
    std::vector<ToolButton> Buttons;
};

// toolMain, toolData, toolMatrix, toolBitmap, toolDiagram.
std::vector<Toolbar> Toolbars(const std::vector<CommandRow>& rows = CommandRows());

} // namespace dorvan
