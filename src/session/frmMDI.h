#pragma once

#include "session/menus.h"
#include "session/session.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvan {

// The main window: passes each command on to the active child window or to the module that handles it,
// through the command table. Its state (captions, enabled commands, toolbars) is `Session::mainWindow`.
class frmMDI {
public:
    explicit frmMDI(Session& session) : session_(session) {}

    // The start-up of a run, in its order. The process's current directory becomes `programFolder` where that
    // can be entered. Puts the main window's own "Save" and "SaveAs" into the command table, so that a
    // closing window can ask for them.
    void Form_Load(std::uint64_t seed, const std::string& programFolder);

    // A click on a menu item, by its name; on an item that is off nothing happens.
    void MenuClick(const std::string& item);

    // A parent menu opens: mnuOptions brings its check mark in line with the toolbar.
    void MenuOpens(const std::string& menu);

    // A click on a toolbar button, dispatched by its key. A moving button of toolDiagram marks the diagram as
    // changed; the menu item of the same command does not.
    void ButtonClick(const std::string& toolbar, const std::string& key);

    // What a face shows as enabled: the state that the windows set, and off as long as the operation that the
    // command would reach for the active window does not exist. A submenu is on while one of its items is.
    bool MenuEnabled(const std::string& item) const;
    bool ButtonEnabled(const std::string& toolbar, const std::string& key) const;

    // What a face shows of a named item: not the hidden ones, and the recent files as far as they are filled.
    bool MenuShown(const std::string& item) const;
    std::string MenuCaption(const std::string& item) const;

    // The main window's own close control. False keeps it open: a child window stayed open, or a data slot is
    // still in use.
    bool RequestClose();

    // Set when the process has to end; the face's event loop looks at it after each event.
    bool EndOfRun() const { return endOfRun_; }

private:
    std::string_view ActiveKind() const;
    bool Exists(std::string_view command) const;
    void Run(std::string_view command);
    void RunOwn(std::string_view command);
    void RunRouted(std::string_view command);
    void CallOperation(std::string_view operation, const std::string& path = {});
    void MakeDiagram();
    void Close();
    void Exit();
    void ToggleToolbar();
    void Help();
    void HelpEnglish();
    void HelpContact();
    void About();
    bool BeepsWhileBusy();

    Session& session_;
    bool endOfRun_ = false;
};

} // namespace dorvan
