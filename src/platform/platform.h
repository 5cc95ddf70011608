#pragma once

#include "platform/drawing_ports.h"
#include "platform/message_boxes.h"
#include "platform/ports.h"

namespace dorvan {

struct Printer;

// All ports of one run. Made by named members, so a new port is a line here and one in each of those that
// make it (the desktop, the command line, the tests' doubles, the benchmarks); the compiler names the ones
// left out.
struct Platform {
    MessageBoxes& messages;
    FileChoice& files;
    FormDisplay& forms;
    ChildDisplay& children;
    Signals& signals;
    PendingEvents& events;
    Keyboard& keyboard;
    Screen& screen;
    Clock& clock;
    SettingsStore& settings;
    HelpViewer& help;
    TextMeasure& fonts;
    Rasterizer& raster;
    PictureClipboard& clipboard;
    Printer& printer;
};

// The wait cursor for as long as it lives.
class WaitCursor {
public:
    explicit WaitCursor(Platform& platform) : platform_(platform) {
        platform_.signals.setCursor(Cursor::Wait);
    }
    ~WaitCursor() { platform_.signals.setCursor(Cursor::Default); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    Platform& platform_;
};

} // namespace dorvan
