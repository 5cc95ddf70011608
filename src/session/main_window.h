#pragma once

#include "session/command_table.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace dorvan {

// The state of the main window that a face mirrors: the enabled state of menu items and toolbar buttons,
// which toolbars and buttons show, check marks and the caption. Child windows switch the commands as they
// activate, deactivate and unload (see session/window_switches.h); the last to act wins. A name that nobody
// switched is on, shown and not checked. One that stands in no row of the commands is an error in the code
// and fails with std::logic_error.
class MainWindow {
public:
    explicit MainWindow(const CommandTable& commands) : commands_(commands) {}

    std::string Caption;
    std::string TypeOfForm;

    void EnableMenu(std::string_view item, bool enabled);
    bool MenuEnabled(std::string_view item) const;

    void CheckMenu(std::string_view item, bool checked);
    bool MenuChecked(std::string_view item) const;

    // Items that come and go, and captions that are set at run time: the recent files.
    void ShowMenu(std::string_view item, bool shown);
    bool MenuShown(std::string_view item) const;
    void SetMenuCaption(std::string_view item, std::string caption);
    std::string MenuCaption(std::string_view item) const;

    // Buttons by toolbar and key, such as ("toolMain", "Save").
    void EnableButton(std::string_view toolbar, std::string_view key, bool enabled);
    bool ButtonEnabled(std::string_view toolbar, std::string_view key) const;
    void ShowButton(std::string_view toolbar, std::string_view key, bool shown);
    bool ButtonShown(std::string_view toolbar, std::string_view key) const;

    void ShowToolbar(std::string_view toolbar, bool shown);
    bool ToolbarShown(std::string_view toolbar) const;

private:
    using Switches = std::map<std::string, bool, std::less<>>;
    std::string Button(std::string_view toolbar, std::string_view key) const;

    const CommandTable& commands_;
    Switches menus_;
    Switches checkMarks_;
    Switches shownMenus_;
    std::map<std::string, std::string, std::less<>> captions_;
    Switches buttons_;
    Switches shownButtons_;
    Switches toolbars_;
};

} // namespace dorvan
