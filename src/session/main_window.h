#pragma once

#include <map>
#include <string>
#include <utility>

namespace dorvan {

// The state of the main window that a face mirrors: the enabled state of menu items and toolbar buttons,
// which toolbars and buttons show, the check mark and the caption. Child windows switch the commands as they
// activate, deactivate and unload; the last to act wins. A name that nobody switched is on, and shown.
class MainWindow {
public:
    std::string Caption;
    std::string TypeOfForm;
    bool ToolbarChecked = false; // check mark of mnuOToolbar

    void EnableMenu(const std::string& item, bool enabled) { menus_[item] = enabled; }
    bool MenuEnabled(const std::string& item) const { return Look(menus_, item); }

    // Items that come and go, and captions that are set at run time: the recent files.
    void ShowMenu(const std::string& item, bool shown) { shownMenus_[item] = shown; }
    bool MenuShown(const std::string& item) const { return Look(shownMenus_, item); }
    void SetMenuCaption(const std::string& item, std::string caption) {
        captions_[item] = std::move(caption);
    }
    std::string MenuCaption(const std::string& item, const std::string& original) const {
        const auto found = captions_.find(item);
        return found == captions_.end() ? original : found->second;
    }

    // Buttons by toolbar and key, such as ("toolMain", "Save").
    void EnableButton(const std::string& toolbar, const std::string& key, bool enabled) {
        buttons_[toolbar + "." + key] = enabled;
    }
    bool ButtonEnabled(const std::string& toolbar, const std::string& key) const {
        return Look(buttons_, toolbar + "." + key);
    }
    void ShowButton(const std::string& toolbar, const std::string& key, bool shown) {
        shownButtons_[toolbar + "." + key] = shown;
    }
    bool ButtonShown(const std::string& toolbar, const std::string& key) const {
        return Look(shownButtons_, toolbar + "." + key);
    }

    void ShowToolbar(const std::string& toolbar, bool shown) { toolbars_[toolbar] = shown; }
    bool ToolbarShown(const std::string& toolbar) const { return Look(toolbars_, toolbar); }

private:
    using Switches = std::map<std::string, bool>;
    static bool Look(const Switches& switches, const std::string& name) {
        const auto found = switches.find(name);
        return found == switches.end() || found->second;
    }

    Switches menus_;
    Switches shownMenus_;
    std::map<std::string, std::string> captions_;
    Switches buttons_;
    Switches shownButtons_;
    Switches toolbars_;
};

} // namespace dorvan
