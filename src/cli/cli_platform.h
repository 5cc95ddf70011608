#pragma once

#include "cli/offscreen_drawing.h"
#include "cli/pdf_file_printer.h"
#include "platform/platform.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <typeindex>
#include <utility>
#include <vector>

namespace dorvan::cli {

// What ends a command of the command line with status 1: the program's own message, or what it could not do.
class Refusal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The ports of a run without a screen. Messages are kept; a dialog gets the answer that was left for
// its class; one that stays open after that is a refusal with its last message.
class CliPlatform : public MessageBoxes,
                    public FileChoice,
                    public FormDisplay,
                    public ChildDisplay,
                    public Signals,
                    public PendingEvents,
                    public Keyboard,
                    public Screen,
                    public Clock,
                    public SettingsStore,
                    public HelpViewer,
                    public PictureClipboard {
public:
    bool answersYes = false;           // to a question of Yes or No; any other one is a refusal
    std::vector<std::string> messages; // in one line each
    OffscreenDrawing drawing;
    PdfFilePrinter printer{drawing};
    std::string fileToOpen;                 // what the dialog for opening answers
    std::string fileToSave;                 // and the one for saving
    std::function<void()> onSearch = [] {}; // when a search begins, behind its progress window

    // What is done in a dialog of that class, its OK included; one without an answer is a refusal.
    template <class Dialog> void OnDialog(std::function<void(Dialog&)> answer) {
        answers_[typeid(Dialog)] = [answer = std::move(answer)](Form& form) {
            answer(dynamic_cast<Dialog&>(form));
        };
    }

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
                      .fonts = drawing,
                      .raster = drawing,
                      .clipboard = *this,
                      .printer = printer};

    Answer show(const Message& message) override;
    std::string toOpen(const FileRequest&) override { return fileToOpen; }
    std::string toSave(const FileRequest&) override { return fileToSave; }
    void showModal(Form& form) override;
    void show(Form& form) override;
    void update(Form& form) override;
    void close(Form& form) override;
    void show(ChildWindow&) override {}
    void update(ChildWindow&) override {}
    void close(ChildWindow&) override {}
    void arrange(int) override {}
    void beep() override {}
    void setCursor(Cursor) override {}
    int run() override;
    void send(const std::string&) override {}
    int width() override { return 1366 * 15; }
    int height() override { return 768 * 15; }
    double seconds() override;
    std::string read(const std::string&, const std::string&, const std::string& missing) override {
        return missing;
    }
    void write(const std::string&, const std::string&, const std::string&) override {}
    std::vector<std::pair<std::string, std::string>> readSection(const std::string&) override { return {}; }
    void show(const std::string&, int) override {}
    void clear() override {}
    void put(const Drawing&) override {}

private:
    std::map<std::type_index, std::function<void(Form&)>> answers_;
    Form* running_ = nullptr; // the progress window that is up
    double shownAt_ = 0;      // when its bar was shown last; 0 when there is none
};

} // namespace dorvan::cli
