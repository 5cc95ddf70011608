#pragma once

#include "platform/platform.h"
#include "platform/printer.h"
#include "session/session.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

// Ports that do nothing, for benchmarks: no face, no files, no settings. A modal dialog is answered by
// `answerDialog`.
namespace dorvan::bench {

struct SilentPorts : MessageBoxes,
                     FileChoice,
                     FormDisplay,
                     ChildDisplay,
                     Signals,
                     PendingEvents,
                     Keyboard,
                     Screen,
                     Clock,
                     SettingsStore,
                     HelpViewer,
                     TextMeasure,
                     Rasterizer,
                     PictureClipboard,
                     Printer {
    using Section = std::vector<std::pair<std::string, std::string>>;

    std::function<void(Form&)> answerDialog = [](Form& form) { form.CancelCommand(); };

    Answer show(const Message&) override { return Answer::No; }
    std::string toOpen(const FileRequest&) override { return {}; }
    std::string toSave(const FileRequest&) override { return {}; }
    void showModal(Form& form) override {
        form.Visible = true;
        form.Form_Show();
        answerDialog(form);
    }
    void show(Form&) override {}
    void update(Form&) override {}
    void close(Form&) override {}
    void show(ChildWindow&) override {}
    void update(ChildWindow&) override {}
    void close(ChildWindow&) override {}
    void arrange(int) override {}
    void beep() override {}
    void setCursor(Cursor) override {}
    int run() override { return 1; }
    void send(const std::string&) override {}
    int width() override { return 20490; }
    int height() override { return 11520; }
    double seconds() override { return 0; }
    std::string read(const std::string&, const std::string&, const std::string& missing) override {
        return missing;
    }
    void write(const std::string&, const std::string&, const std::string&) override {}
    Section readSection(const std::string&) override { return {}; }
    void show(const std::string&, int) override {}
    TextExtent extentOf(const std::string&, const drawing::Font&) override { return {}; }
    PixelImage pixelsOf(const Drawing&) override { return {}; }
    void clear() override {}
    void put(const Drawing&) override {}
    std::string deviceName() override { return {}; }
    std::vector<std::string> deviceNames() override { return {}; }
    void choose(const std::string&) override {}
    int value(PrinterValue) override { return 0; }
    void setValue(PrinterValue, int) override {}
    bool showSetup(PrinterSetup&) override { return false; }
    std::vector<std::string> fontNames() override { return {}; }
    std::string fontName() override { return {}; }
    void setFontName(const std::string&) override {}
    double printableWidth() override { return 0; }
    double printableHeight() override { return 0; }
    void print(const Drawing&, const std::string&) override {}
};

// A started session over silent ports.
struct SilentSession : SilentPorts {
    Platform platform{.messages = *this,
                      .files = *this,
                      .forms = *this,
                      .children = *this,
                      .signals = *this,
                      .events = *this,
                      .keyboard = *this,
                      .screen = *this,
                      .clock = *this,
                      .settings = *this,
                      .help = *this,
                      .fonts = *this,
                      .raster = *this,
                      .clipboard = *this,
                      .printer = *this};
    Session session{platform};

    SilentSession() {
        StartSession(session, 1, {});
        session.DecimalSeparator = '.';
    }
};

} // namespace dorvan::bench
