#pragma once

#include "session/session.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What the windows of each kind turn on and off in the main window, as its user sees it.
namespace dorvan::test {

enum class WindowPhase { Activated, Deactivated, Unloaded };

// Lets the phase happen over a main window whose commands are all off, and over one whose are all on, and
// expects each menu item, each button of toolMain and each toolbar to be as the table has it for windows of
// the kind.
void ExpectSwitches(Session& session, std::string_view kind, WindowPhase phase,
                    const std::function<void()>& happens);

// The names that the table switches for some kind: "mnuSave", "toolMain.Save", "toolData".
std::vector<std::string> SwitchedNames();

bool IsOn(const MainWindow& mainWindow, const std::string& name);
void SetOn(MainWindow& mainWindow, const std::string& name, bool on);

} // namespace dorvan::test
