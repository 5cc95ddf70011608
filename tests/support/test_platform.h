#pragma once

#include "platform/platform.h"
#include "session/session.h"
#include "support/drawings.h"
#include "support/scripted_printer.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

// Hand-written, scripted doubles of all ports. A question or dialog that no script answers fails the test.
namespace dorvan::test {

class ScriptedMessages : public MessageBoxes {
public:
    std::vector<Message> shown;
    std::deque<Answer> answers; // for questions, in order; a plain message needs none
    Answer show(const Message& message) override;
};

class ScriptedFiles : public FileChoice {
public:
    std::vector<FileRequest> requests;
    std::deque<std::string> paths; // empty: cancelled
    std::string toOpen(const FileRequest& request) override;
    std::string toSave(const FileRequest& request) override;

private:
    std::string next(const FileRequest& request);
};

class ScriptedForms : public FormDisplay {
public:
    // What the user does in a dialog, in the order of the showings. A script has to leave the form hidden.
    std::deque<std::function<void(Form&)>> scripts;
    std::vector<std::string> log; // "modal frmNowy", "show frmWork", "update frmWork", "close frmWork"
    void showModal(Form& form) override;
    void show(Form& form) override;
    void update(Form& form) override;
    void close(Form& form) override;
};

class RecordingChildren : public ChildDisplay {
public:
    std::vector<std::string> log; // "show [DATA]: Untitled:1", "close ...", "arrange 1"
    bool memoryEnds = false;      // at the next showing
    void show(ChildWindow& window) override;
    void update(ChildWindow& window) override;
    void close(ChildWindow& window) override;
    void arrange(int mode) override;
};

class RecordingSignals : public Signals {
public:
    int beeps = 0;
    std::vector<Cursor> cursors;
    void beep() override { ++beeps; }
    void setCursor(Cursor cursor) override { cursors.push_back(cursor); }
};

class ScriptedEvents : public PendingEvents {
public:
    int runs = 0;
    int windows = 1;                     // what a run reports
    std::function<void(int)> onRun = {}; // called with the number of the run, from 1
    int run() override;
};

class RecordingKeyboard : public Keyboard {
public:
    std::vector<std::string> sent;
    std::function<void(const std::string&)> onSend = {};
    void send(const std::string& keys) override;
};

class FixedScreen : public Screen {
public:
    int widthTwips = 20490; // 1366 x 768 pixels
    int heightTwips = 11520;
    int width() override { return widthTwips; }
    int height() override { return heightTwips; }
};

class ManualClock : public Clock {
public:
    double now = 1000.0;
    double step = 0.0; // added at each look
    double seconds() override { return std::exchange(now, now + step); }
};

class MemorySettings : public SettingsStore {
public:
    std::map<std::string, std::map<std::string, std::string>> sections;
    std::function<void()> onRead = {};
    std::function<void(const std::string& key, const std::string& value)> onWrite = {};
    std::string read(const std::string& section, const std::string& key, const std::string& missing) override;
    void write(const std::string& section, const std::string& key, const std::string& value) override;
    std::vector<std::pair<std::string, std::string>> readSection(const std::string& section) override;
};

class RecordingHelp : public HelpViewer {
public:
    std::vector<std::pair<std::string, int>> shown;
    std::string error; // thrown when not empty
    void show(const std::string& file, int command) override;
};

// A white picture of one pixel for 15 twips, or none.
class BlankRasterizer : public Rasterizer {
public:
    bool empty = false;
    PixelImage pixelsOf(const Drawing& drawing) override;
};

class RecordingClipboard : public PictureClipboard {
public:
    std::vector<std::string> log; // "clear", "put"
    Drawing held;
    bool fails = false;
    void clear() override;
    void put(const Drawing& drawing) override;
};

struct TestPlatform {
    ScriptedMessages messages;
    ScriptedFiles files;
    ScriptedForms forms;
    RecordingChildren children;
    RecordingSignals signals;
    ScriptedEvents events;
    RecordingKeyboard keyboard;
    FixedScreen screen;
    ManualClock clock;
    MemorySettings settings;
    RecordingHelp help;
    FixedMeasure fonts;
    BlankRasterizer raster;
    RecordingClipboard clipboard;
    ScriptedPrinter printer;
    Platform platform{.messages = messages,
                      .files = files,
                      .forms = forms,
                      .children = children,
                      .signals = signals,
                      .events = events,
                      .keyboard = keyboard,
                      .screen = screen,
                      .clock = clock,
                      .settings = settings,
                      .help = help,
                      .fonts = fonts,
                      .raster = raster,
                      .clipboard = clipboard,
                      .printer = printer};

    // No script is left over: call at the end of a test that scripts answers.
    void expectScriptsUsedUp() const;
};

// A started session over scripted ports: point separator, windows-1252, seed 1.
struct TestSession : TestPlatform {
    Session session{platform};
    TestSession();
};

} // namespace dorvan::test
