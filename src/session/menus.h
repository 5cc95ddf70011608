#pragma once

#include <string>
#include <vector>

// The main window's menus and toolbars as data.
namespace dorvan {

struct MenuItem {
    std::string Name;     // "mnuFNew"; empty for a separator line
    std::string Caption;  // "&" marks the access key
    std::string Shortcut; // "Ctrl+N", or empty
    bool Hidden = false;  // in the tree, never shown
    std::vector<MenuItem> Items;

    bool IsSeparator() const { return Name.empty(); }
};

// The top-level menus, in order, with their items and separators.
const std::vector<MenuItem>& MenuTree();

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
