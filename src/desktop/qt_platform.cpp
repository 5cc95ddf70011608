#include "desktop/qt_platform.h"

#include "desktop/arrangement.h"
#include "desktop/qt_text.h"
#include "desktop/window_tabs.h"
#include "painting/raster_player.h"
#include "platform/twips.h"
#include "session/children.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QStyle>
#include <QTime>
#include <QTreeView>
#include <QUrl>

#include <stdexcept>

namespace dorvan {

namespace {

constexpr qint64 MillisecondsBetweenRuns = 8;
constexpr QSize FileDialogSize(760, 480);
constexpr int CascadeGap = 6; // pixels, below a title

QMessageBox::Icon ToQt(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Critical: return QMessageBox::Critical;
    case MessageIcon::Question: return QMessageBox::Question;
    case MessageIcon::Exclamation: return QMessageBox::Warning;
    case MessageIcon::Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButton ToQt(Answer answer) {
    switch (answer) {
    case Answer::Yes: return QMessageBox::Yes;
    case Answer::No: return QMessageBox::No;
    case Answer::Cancel: return QMessageBox::Cancel;
    default: return QMessageBox::Ok;
    }
}

// A wait cursor does not stand over a question.
class PlainCursor {
public:
    PlainCursor() : hidden_(QGuiApplication::overrideCursor() != nullptr) {
        if (hidden_) QGuiApplication::changeOverrideCursor(Qt::ArrowCursor);
    }
    ~PlainCursor() {
        if (hidden_ && QGuiApplication::overrideCursor())
            QGuiApplication::changeOverrideCursor(Qt::WaitCursor);
    }
    PlainCursor(const PlainCursor&) = delete;
    PlainCursor& operator=(const PlainCursor&) = delete;

private:
    bool hidden_;
};

} // namespace

QWidget* ParentOfDialogs() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frmMDI") return window;
    return nullptr;
}

Answer QtMessages::show(const Message& message) {
    dispatch_.Mirror();
    const PlainCursor cursor;
    QMessageBox box(ParentOfDialogs());
    box.setObjectName("MessageBox");
    box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                       Qt::WindowCloseButtonHint);
    box.setWindowTitle(dorvan::ToQt(message.Title));
    box.setTextFormat(Qt::PlainText);
    box.setText(dorvan::ToQt(message.Text).replace("\r\n", "\n"));
    box.setIcon(ToQt(message.Icon));
    if (message.Buttons == MessageButtons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
        box.exec();
        return Answer::Ok;
    }
    const bool cancels = message.Buttons == MessageButtons::YesNoCancel;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    if (cancels) box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(ToQt(message.Default));
    // A Yes-or-No question has no way around an answer: Esc and the close control stand for No.
    box.setEscapeButton(cancels ? QMessageBox::Cancel : QMessageBox::No);
    switch (box.exec()) {
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::Cancel: return Answer::Cancel;
    default: return Answer::No;
    }
}

namespace {

// Behind each description the pattern itself, which is not shown: "*.*" means files without a dot too.
QStringList NameFilters(const FileRequest& request) {
    QStringList filters;
    for (const auto& [description, wildcard] : request.Filters)
        filters += QString("%1 (%2)").arg(dorvan::ToQt(description),
                                          wildcard == "*.*" ? "*" : dorvan::ToQt(wildcard));
    return filters;
}

// The names take what the other columns leave.
void FitColumns(QFileDialog& dialog) {
    dialog.resize(FileDialogSize);
    auto* files = dialog.findChild<QTreeView*>("treeView"); // not there in a desktop's own dialog
    if (!files) return;
    files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

} // namespace

std::string QtFiles::Ask(QFileDialog& dialog, const FileRequest& request) {
    dispatch_.Mirror();
    const PlainCursor cursor;
    dialog.setObjectName("FileDialog");
    dialog.setWindowTitle(dorvan::ToQt(request.Title));
    dialog.setNameFilters(NameFilters(request));
    dialog.setOption(QFileDialog::HideNameFilterDetails); // the descriptions name their patterns
    const QString folder = lastFolder_.isEmpty() ? dorvan::ToQt(request.StartFolder) : lastFolder_;
    if (!folder.isEmpty()) dialog.setDirectory(folder);
    FitColumns(dialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    const QString chosen = dialog.selectedFiles().first();
    lastFolder_ = QFileInfo(chosen).absolutePath();
    return FromQt(chosen);
}

std::string QtFiles::toOpen(const FileRequest& request) {
    QFileDialog dialog(ParentOfDialogs());
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Ask(dialog, request);
}

std::string QtFiles::toSave(const FileRequest& request) {
    QFileDialog dialog(ParentOfDialogs());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    QString extension = dorvan::ToQt(request.Extension);
    dialog.setDefaultSuffix(extension.mid(extension.lastIndexOf('.') + 1)); // "*.mtx" stands for "mtx"
    return Ask(dialog, request);
}

void QtForms::showModal(Form& form) {
    dispatch_.Mirror();
    const PlainCursor cursor;
    const auto face = MakeFormFace(form, dispatch_, ParentOfDialogs());
    face->RunModal();
}

void QtForms::show(Form& form) {
    form.Visible = true;
    form.Form_Show();
    auto& face = open_[&form];
    if (!face) face = MakeFormFace(form, dispatch_, ParentOfDialogs());
    face->setWindowFlag(Qt::WindowStaysOnTopHint);
    face->setWindowModality(Qt::NonModal);
    face->show();
    news_ = true;
}

// The screen follows at the next run of events.
void QtForms::update(Form& form) {
    if (open_.contains(&form) && form.Visible) return;
    close(form);
}

void QtForms::close(Form& form) {
    form.Visible = false;
    const auto found = open_.find(&form);
    if (found == open_.end()) return;
    FormFace* face = found->second.release(); // its own event may be the one that closes it
    open_.erase(found);
    face->Retire();
    news_ = true;
}

void QtChildren::Attach(ChildContext context, QMdiArea& area) {
    context_ = std::make_unique<ChildContext>(std::move(context));
    area_ = &area;
    QObject::connect(&area, &QMdiArea::subWindowActivated, &area,
                     [this](QMdiSubWindow*) { context_->dispatch.Later(area_, [this] { FollowScreen(); }); });
}

// The window in front is the active one, whichever others were there on the way.
void QtChildren::FollowScreen() {
    auto* face = dynamic_cast<ChildFace*>(area_->currentSubWindow());
    if (face && face->Window()) ActivateChild(context_->session, *face->Window());
}

ChildFace* QtChildren::FaceOf(const ChildWindow& window) {
    const auto found = faces_.find(&window);
    return found == faces_.end() ? nullptr : found->second.data();
}

void QtChildren::show(ChildWindow& window) {
    ChildFace* face = FaceOf(window);
    const bool isNew = !face;
    if (isNew) {
        face = MakeChildFace(window, *context_);
        faces_[&window] = face;
        area_->addSubWindow(face);
        WindowTabs::ComeFirst(*area_);
        face->Place();
        face->show();
    }
    face->Mirror();
    area_->setActiveSubWindow(face);
    // In front of a maximized window the toolkit maximizes it as well.
    if (isNew) face->MirrorMode();
}

void QtChildren::update(ChildWindow& window) {
    if (ChildFace* face = FaceOf(window)) face->Mirror();
}

void QtChildren::close(ChildWindow& window) {
    ChildFace* face = FaceOf(window);
    faces_.erase(&window);
    if (!face) return;
    face->Detach();
    face->hide();
    area_->removeSubWindow(face);
    face->deleteLater();
}

// Those that are no icons.
QList<QMdiSubWindow*> QtChildren::ArrangedWindows(QMdiArea::WindowOrder order) const {
    QList<QMdiSubWindow*> windows = area_->subWindowList(order);
    windows.removeIf([](const QMdiSubWindow* window) { return window->isMinimized(); });
    return windows;
}

void QtChildren::Arrange(const QList<QMdiSubWindow*>& windows, const std::vector<QRect>& places) {
    for (int window = 0; window < windows.size(); ++window) {
        if (windows[window]->isMaximized()) windows[window]->showNormal();
        windows[window]->setGeometry(places[std::size_t(window)]);
    }
}

void QtChildren::arrange(int mode) {
    const QSize room = area_->viewport()->size();
    if (mode == 0) {
        const auto windows = ArrangedWindows(QMdiArea::StackingOrder);
        const int step = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight) + CascadeGap;
        Arrange(windows, CascadePlaces(room, int(windows.size()), step));
    }
    if (mode == 1) {
        const auto windows = ArrangedWindows(QMdiArea::CreationOrder);
        Arrange(windows, TilePlaces(room, int(windows.size())));
    }
    if (mode == 3) ArrangeIcons();
}

// The minimized windows side by side along the lower edge, row upon row.
void QtChildren::ArrangeIcons() {
    const QSize room = area_->viewport()->size();
    int left = 0;
    int bottom = room.height();
    for (QMdiSubWindow* window : area_->subWindowList(QMdiArea::CreationOrder)) {
        if (!window->isMinimized()) continue;
        if (left > 0 && left + window->width() > room.width()) {
            left = 0;
            bottom -= window->height();
        }
        window->move(left, bottom - window->height());
        left += window->width();
    }
}

void QtSignals::beep() { QApplication::beep(); }

void QtSignals::setCursor(Cursor cursor) {
    const bool wait = cursor == Cursor::Wait;
    if (wait == waiting_) return;
    waiting_ = wait;
    if (wait)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

int QtEvents::run() {
    dispatch_.RunWaiting();
    if (!forms_.TakeNews() && sinceLast_.isValid() && sinceLast_.elapsed() < MillisecondsBetweenRuns)
        return windows_;
    dispatch_.Mirror();
    QCoreApplication::processEvents();
    sinceLast_.start();
    windows_ = 0;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() != Qt::ToolTip) ++windows_;
    return windows_;
}

namespace {

struct NamedKey {
    const char* name;
    int key;
};

constexpr NamedKey NamedKeys[] = {
    {"{TAB}", Qt::Key_Tab},    {"{HOME}", Qt::Key_Home},    {"{END}", Qt::Key_End}, {"{F2}", Qt::Key_F2},
    {"{LEFT}", Qt::Key_Left},  {"{RIGHT}", Qt::Key_Right},  {"{UP}", Qt::Key_Up},   {"{DOWN}", Qt::Key_Down},
    {"{ESC}", Qt::Key_Escape}, {"{ENTER}", Qt::Key_Return},
};

void SendKey(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QWidget* target = QApplication::focusWidget();
    if (QWidget* modal = QApplication::activeModalWidget();
        modal && (!target || !modal->isAncestorOf(target)))
        target = modal->focusWidget() ? modal->focusWidget() : modal;
    if (!target) return;
    const QPointer<QWidget> alive = target;
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    if (alive) QCoreApplication::sendEvent(target, &release);
}

} // namespace

void QtKeyboard::send(const std::string& keys) {
    dispatch_.Mirror(); // a focus that a rule has just moved
    const bool shift = keys.starts_with('+') && keys.size() > 1;
    const std::string name = shift ? keys.substr(1) : keys;
    const auto modifiers = shift ? Qt::ShiftModifier : Qt::NoModifier;
    for (const auto& named : NamedKeys)
        if (name == named.name) {
            SendKey(named.key, modifiers, {});
            return;
        }
    for (const QChar character : dorvan::ToQt(keys)) SendKey(0, Qt::NoModifier, character);
}

int QtScreen::width() {
    return QGuiApplication::primaryScreen()->availableGeometry().width() * TwipsPerPixel;
}

int QtScreen::height() {
    return QGuiApplication::primaryScreen()->availableGeometry().height() * TwipsPerPixel;
}

QtClock::QtClock() : start_(QTime::currentTime().msecsSinceStartOfDay() / 1000.0) { sinceStart_.start(); }

double QtClock::seconds() { return start_ + double(sinceStart_.nsecsElapsed()) / 1e9; }

namespace {

// Per user, in a text file under the user's configuration folder.
class Section : public QSettings {
public:
    explicit Section(const std::string& name)
        : QSettings(QSettings::IniFormat, QSettings::UserScope, "Dorvan", "Dorvan") {
        beginGroup(dorvan::ToQt(name));
    }
};

} // namespace

std::string QtSettings::read(const std::string& section, const std::string& key, const std::string& missing) {
    Section store(section);
    return FromQt(store.value(dorvan::ToQt(key), dorvan::ToQt(missing)).toString());
}

void QtSettings::write(const std::string& section, const std::string& key, const std::string& value) {
    Section store(section);
    store.setValue(dorvan::ToQt(key), dorvan::ToQt(value));
}

std::vector<std::pair<std::string, std::string>> QtSettings::readSection(const std::string& section) {
    Section store(section);
    QStringList keys = store.childKeys();
    keys.sort();
    std::vector<std::pair<std::string, std::string>> values;
    for (const auto& key : keys) values.emplace_back(FromQt(key), FromQt(store.value(key).toString()));
    return values;
}

void QtHelp::show(const std::string& file, int) {
    const QFileInfo own(ToQt(file));
    const QString shown = own.exists() ? own.absoluteFilePath() : guide;
    if (shown.isEmpty()) throw std::runtime_error("There is no help file " + file + ".");
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(shown)))
        throw std::runtime_error("No program here shows pages like " + FromQt(shown) + ".");
}

void QtClipboard::clear() { QGuiApplication::clipboard()->clear(); }

void QtClipboard::put(const Drawing& drawing) {
    QGuiApplication::clipboard()->setImage(painting::ImageOf(drawing));
}

} // namespace dorvan
