#pragma once

#include <string>
#include <utility>
#include <vector>

// The smaller ports: what the program needs of the outside world beside forms and message boxes.
namespace dorvan {

class Form;
class ChildWindow;

struct FileFilter {
    std::string Description; // "mdt file (*.mdt)"
    std::string Wildcard;    // "*.mdt"
    bool operator==(const FileFilter&) const = default;
};

struct FileRequest {
    std::string Title;
    std::vector<FileFilter> Filters;
    std::string Extension; // added by the save dialog to a name that has none; empty: nothing is added
    std::string StartFolder;
    bool operator==(const FileRequest&) const = default;
};

struct FileChoice { // paths are UTF-8; an empty path means cancelled
    virtual ~FileChoice() = default;
    virtual std::string toOpen(const FileRequest& request) = 0; // an existing file
    virtual std::string toSave(const FileRequest& request) = 0; // asks before an existing file is overwritten
};

// Forms on the screen. The form's state is the truth: a display mirrors it.
struct FormDisplay {
    virtual ~FormDisplay() = default;
    virtual void showModal(Form& form) = 0; // returns once the form is no longer Visible
    virtual void show(Form& form) = 0;      // does not block; stays above the other windows
    virtual void update(Form& form) = 0;    // a form shown without blocking has changed its controls
    virtual void close(Form& form) = 0;
};

// Child windows on the screen.
struct ChildDisplay {
    virtual ~ChildDisplay() = default;
    virtual void
    show(ChildWindow& window) = 0; // creates the picture at the first call; brings it to the front
    virtual void update(ChildWindow& window) = 0;
    virtual void close(ChildWindow& window) = 0;
    virtual void arrange(int mode) = 0; // 0 cascade, 1 tile, 3 icons
};

enum class Cursor { Default, Wait };

struct Signals {
    virtual ~Signals() = default;
    virtual void beep() = 0;
    virtual void setCursor(Cursor cursor) = 0; // for the whole screen
};

struct PendingEvents {
    virtual ~PendingEvents() = default;
    virtual int run() = 0; // lets pending events run; returns how many windows are open
};

struct Keyboard {
    virtual ~Keyboard() = default;
    virtual void send(const std::string& keys) = 0; // to the focused control: "{TAB}", "{HOME}", "+{END}"
};

struct Screen {
    virtual ~Screen() = default;
    virtual int width() = 0; // twips
    virtual int height() = 0;
};

struct Clock {
    virtual ~Clock() = default;
    virtual double seconds() = 0; // since midnight
};

// Per-user strings by section and key.
struct SettingsStore {
    virtual ~SettingsStore() = default;
    virtual std::string read(const std::string& section, const std::string& key,
                             const std::string& missing) = 0;
    virtual void write(const std::string& section, const std::string& key, const std::string& value) = 0;
    virtual std::vector<std::pair<std::string, std::string>>
    readSection(const std::string& section) = 0; // by key
};

struct HelpViewer { // throws std::runtime_error with a description when it cannot show the page
    virtual ~HelpViewer() = default;
    virtual void show(const std::string& file, int command) = 0;
};

} // namespace dorvan
