#pragma once

#include "session/main_window.h"

#include <span>
#include <string_view>

// What the windows of each kind do to the main window's commands as they come and go.
namespace dorvan {

enum class Switch { Leave, On, Off };

// A menu item ("mnuSave"), a button ("toolMain.Save"), or a toolbar ("toolData"), which is shown or hidden.
struct CommandSwitch {
    std::string_view Name;
    Switch Activated;
    Switch Deactivated;
    Switch Unloaded;
};

// The table of a DocumentKind.
std::span<const CommandSwitch> SwitchesOf(std::string_view kind);

enum class WindowEvent { Activated, Deactivated, Unloaded };

void SwitchCommands(MainWindow& mainWindow, std::string_view kind, WindowEvent event);

// The state at the start and after the last window: all that stands in a table is off, or hidden.
void DisableDocumentCommands(MainWindow& mainWindow);

} // namespace dorvan
