#pragma once

#include "desktop/child_faces.h"
#include "desktop/form_faces.h"
#include "desktop/qt_printer.h"
#include "painting/rasterizer.h"
#include "painting/text_measure.h"
#include "platform/platform.h"

#include <QElapsedTimer>
#include <QMdiArea>
#include <QPointer>

#include <map>
#include <memory>
#include <vector>

class QFileDialog;

// The ports on a real screen.
namespace dorvan {

// The window that the user works in: dialogs come up over it.
QWidget* ParentOfDialogs();

class QtMessages : public MessageBoxes {
public:
    explicit QtMessages(EventDispatch& dispatch) : dispatch_(dispatch) {}
    Answer show(const Message& message) override;

private:
    EventDispatch& dispatch_;
};

class QtFiles : public FileChoice {
public:
    explicit QtFiles(EventDispatch& dispatch) : dispatch_(dispatch) {}
    std::string toOpen(const FileRequest& request) override;
    std::string toSave(const FileRequest& request) override;

private:
    std::string Ask(QFileDialog& dialog, const FileRequest& request);
    EventDispatch& dispatch_;
    QString lastFolder_; // of the run; empty until a file was chosen
};

class QtForms : public FormDisplay {
public:
    explicit QtForms(EventDispatch& dispatch) : dispatch_(dispatch) {}
    void showModal(Form& form) override;
    void show(Form& form) override;
    void update(Form& form) override;
    void close(Form& form) override;

    // Set since the last look: a form came up or changed, so the screen should follow at once.
    bool TakeNews() { return std::exchange(news_, false); }

private:
    EventDispatch& dispatch_;
    std::map<Form*, std::unique_ptr<FormFace>> open_; // those shown without blocking
    bool news_ = false;
};

class QtChildren : public ChildDisplay {
public:
    // Before the first window is shown.
    void Attach(ChildContext context, QMdiArea& area);

    void show(ChildWindow& window) override;
    void update(ChildWindow& window) override;
    void close(ChildWindow& window) override;
    void arrange(int mode) override;

    // Null when the window is not on the screen.
    ChildFace* FaceOf(const ChildWindow& window);

private:
    void FollowScreen();
    QList<QMdiSubWindow*> ArrangedWindows(QMdiArea::WindowOrder order) const;
    void Arrange(const QList<QMdiSubWindow*>& windows, const std::vector<QRect>& places);
    void ArrangeIcons();

    std::unique_ptr<ChildContext> context_;
    QPointer<QMdiArea> area_;
    std::map<const ChildWindow*, QPointer<ChildFace>> faces_;
};

class QtSignals : public Signals {
public:
    void beep() override;
    void setCursor(Cursor cursor) override;

private:
    bool waiting_ = false;
};

// Cheap enough to be asked at each step of a search: events run at most every few milliseconds.
class QtEvents : public PendingEvents {
public:
    QtEvents(EventDispatch& dispatch, QtForms& forms) : dispatch_(dispatch), forms_(forms) {}
    int run() override;

private:
    EventDispatch& dispatch_;
    QtForms& forms_;
    QElapsedTimer sinceLast_;
    int windows_ = 1;
};

class QtKeyboard : public Keyboard {
public:
    explicit QtKeyboard(EventDispatch& dispatch) : dispatch_(dispatch) {}
    void send(const std::string& keys) override;

private:
    EventDispatch& dispatch_;
};

class QtScreen : public Screen {
public:
    int width() override;
    int height() override;
};

// Asked at each step of a search, so it is cheap; and it goes on over midnight, so that no time taken is ever
// negative.
class QtClock : public Clock {
public:
    QtClock();
    double seconds() override;

private:
    double start_; // seconds since midnight
    QElapsedTimer sinceStart_;
};

class QtSettings : public SettingsStore {
public:
    std::string read(const std::string& section, const std::string& key, const std::string& missing) override;
    void write(const std::string& section, const std::string& key, const std::string& value) override;
    std::vector<std::pair<std::string, std::string>> readSection(const std::string& section) override;
};

// The desktop's own viewer. Where the help file is not there, the guide is shown instead.
class QtHelp : public HelpViewer {
public:
    void show(const std::string& file, int command) override;

    QString guide; // its first page; empty: there is none
};

class QtClipboard : public PictureClipboard {
public:
    void clear() override;
    void put(const Drawing& drawing) override;
};

// All of them, for one run.
struct QtPlatform {
    explicit QtPlatform(EventDispatch& dispatch)
        : messages(dispatch), files(dispatch), forms(dispatch), events(dispatch, forms), keyboard(dispatch),
          printer(dispatch, files) {}

    QtMessages messages;
    QtFiles files;
    QtForms forms;
    QtChildren children;
    QtSignals signals;
    QtEvents events;
    QtKeyboard keyboard;
    QtScreen screen;
    QtClock clock;
    QtSettings settings;
    QtHelp help;
    painting::QtTextMeasure fonts;
    painting::QtRasterizer raster;
    QtClipboard clipboard;
    QtPrinter printer;
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
};

} // namespace dorvan
