#pragma once

#include "fake_window.h"
#include "session/frmMDI.h"
#include "session/menus.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace dorvan::test {

// A main window over operations that only record their calls, as "name(slot, path)"; those that are its own
// stand. Every command is switched on, whatever window is active.
struct MainWindowTest : FakeWindowSession {
    frmMDI main{session};
    std::vector<std::string> calls;

    MainWindowTest() {
        const auto folder = std::filesystem::current_path();
        main.Form_Load(1, "");
        std::filesystem::current_path(folder);
        for (const auto& name : session.commands.Operations())
            if (!IsOwn(name)) Record(name);
        SwitchEverythingOn(MenuTree());
        for (const auto& toolbar : Toolbars())
            for (const auto& button : toolbar.Buttons)
                session.mainWindow.EnableButton(toolbar.Name, button.Key, true);
    }

    static bool IsOwn(std::string_view operation) {
        static constexpr std::string_view own[] = {
            "Close", "Exit",    "EditCell", "ToggleToolbar", "Help", "HelpEnglish", "HelpContact",
            "About", "Cascade", "Tile",     "ArrangeIcons",  "Save", "SaveAs"};
        return std::find(std::begin(own), std::end(own), operation) != std::end(own);
    }
    void Record(const std::string& operation) {
        session.commands.Set(operation, [this, operation](const CommandCall& call) {
            calls.push_back(fmt::format("{}({}, {})", operation, call.Index, call.Path));
        });
    }

    void SwitchEverythingOn(const std::vector<MenuItem>& items) {
        for (const auto& item : items) {
            if (!item.Name.empty()) session.mainWindow.EnableMenu(item.Name, true);
            SwitchEverythingOn(item.Items);
        }
    }

    // Opens windows until the kind's slot 2 is active, so that an index of 0 or 1 would be seen.
    FakeWindow& Activate(std::string_view kind) {
        Open(kind);
        return Open(kind);
    }

    std::string Click(const std::string& item) {
        calls.clear();
        main.MenuClick(item);
        return Called();
    }
    std::string Click(const std::string& toolbar, const std::string& key) {
        calls.clear();
        main.ButtonClick(toolbar, key);
        return Called();
    }
    std::string Called() const { return calls.empty() ? "" : calls.size() == 1 ? calls[0] : "several"; }
};

} // namespace dorvan::test
