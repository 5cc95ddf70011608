#pragma once

#include <string>
#include <string_view>
#include <vector>

// The main window's menus and toolbars as data.
namespace dorvan {

struct MenuItem {
    std::string Name;     // "mnuFNew"; empty for most separator lines
    std::string Caption;  // "&" marks the access key; "-" is a separator line
    std::string Shortcut; // "Ctrl+N", or empty
    bool Hidden = false;  // in the tree, never shown; its shortcut is not bound
    std::vector<MenuItem> Items;

    bool IsSeparator() const { return Caption == "-"; }
};

// The top-level menus, in order, with their items and separators.
const std::vector<MenuItem>& MenuTree();

// The item of that name, at any depth; null when there is none.
const MenuItem* FindMenuItem(std::string_view name);

// The recent files are the items "mnuRecentFile(0)" to "mnuRecentFile(4)". They are told apart by index, and
// shown, hidden and captioned at run time (see MainWindow).
inline constexpr int RecentFileItems = 5;
std::string RecentFileItem(int index);

struct ToolButton {
    std::string Key;
    std::string ToolTip;
};

struct Toolbar {
    std::string Name; // "toolMain"
    std::vector<ToolButton> Buttons;
};

// toolMain, toolData, toolMatrix, toolBitmap, toolDiagram.
const std::vector<Toolbar>& Toolbars();

} // namespace dorvan
