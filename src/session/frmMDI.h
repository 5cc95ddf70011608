#pragma once

#include "session/session.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvan {

// The main window: passes each command on to the active child window or to the module that handles it,
// as the rows of the command table say. Its state (captions, enabled commands, toolbars) is
// `Session::mainWindow`. A name that stands in no row is an error in the code (std::logic_error).
class frmMDI {
public:
    // Registers the operations that are the main window's own, "Save" and "SaveAs" among them, so that a
    // closing window can ask for them.
    explicit frmMDI(Session& session);
    frmMDI(const frmMDI&) = delete;
    frmMDI& operator=(const frmMDI&) = delete;

    // The start-up of a run, in its order. The process's current directory becomes `programFolder` where that
    // can be entered.
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

    // The main window's own close control. False keeps it open: a child window stayed open, or a data slot is
    // still in use.
    bool RequestClose();

    // Set when the process has to end; the face's event loop looks at it after each event.
    bool EndOfRun() const { return endOfRun_; }

private:
    std::string_view ActiveKind() const;
    bool Exists(const CommandRow& row) const;
    bool HasItemOn(const CommandRow& menu) const;
    void Run(const CommandRow& row);
    void RegisterOperations();
    void TellSourceOfDiagram();
    void Close();
    void Exit();
    void EditCell();
    void ToggleToolbar();
    void Arrange(int mode);
    void Help();
    void HelpEnglish();
    void HelpContact();
    void About();

    Session& session_;
    bool endOfRun_ = false;
};

} // namespace dorvan
