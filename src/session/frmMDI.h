#pragma once

#include "session/menus.h"
#include "session/session.h"

#include <cstdint>
#include <string>

namespace dorvan {

// The main window: passes each command on to the active child window or to the module that handles it,
// through the command table. Its state (captions, enabled commands, toolbars) is `Session::mainWindow`.
class frmMDI {
public:
    explicit frmMDI(Session& session) : session_(session) {}

    // The start-up of a run, in its order.
    void Form_Load(std::uint64_t seed, const std::string& programFolder);

    // A click on a menu item, by its name; on an item that is off nothing happens.
    void MenuClick(const std::string& item);

    // A parent menu opens: mnuOptions brings its check mark in line with the toolbar.
    void MenuOpens(const std::string& menu);

    // A click on a toolbar button, dispatched by its key.
    void ButtonClick(const std::string& toolbar, const std::string& key);

    // What a face shows as enabled: the state that the windows set, and off as long as the operation that the
    // command would reach for the active window does not exist.
    bool MenuEnabled(const std::string& item) const;
    bool ButtonEnabled(const std::string& toolbar, const std::string& key) const;

    // The main window's own close control. False keeps it open.
    bool RequestClose();

    // Set when the process has to end; the face's event loop looks at it after each event.
    bool EndOfRun() const { return endOfRun_; }

private:
    Session& session_;
    bool endOfRun_ = false;
};

} // namespace dorvan
