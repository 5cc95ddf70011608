#include "hammer/user.h"

#include "desktop/qt_text.h"
#include "hammer/input.h"
#include "session/command_rows.h"
#include "sheet/frmNotePad.h"

#include <fmt/format.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QPointer>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include <cstdlib>

namespace dorvan::test {

namespace {

constexpr std::size_t MostWindows = 8;

constexpr const char* Files[] = {"Townships.mdt", "USArrests.mdt", "iris.mdt", "towns.mtx",
                                 "towns.dgr",     "one.mdt",       "two.mtx",  "three.dgr",
                                 "table.csv",     "square.txt",    "table.dbf"};

// Every item and button of the program but the one that ends it.
std::vector<std::string> ItemsOf(const std::vector<CommandRow>& rows) {
    std::vector<std::string> items;
    for (const auto& row : rows) {
        if (row.Kind == RowKind::Menu || row.Item == "mnuFExit") continue;
        if (!row.Item.empty()) items.emplace_back(row.Item);
        if (row.Button.Place > 0) items.push_back(fmt::format("{}.{}", row.Button.Toolbar, row.Button.Key));
    }
    return items;
}

constexpr int GridKeys[] = {Qt::Key_Left,    Qt::Key_Up,        Qt::Key_Right,  Qt::Key_Down,
                            Qt::Key_Home,    Qt::Key_End,       Qt::Key_PageUp, Qt::Key_PageDown,
                            Qt::Key_Return,  Qt::Key_Escape,    Qt::Key_F2,     Qt::Key_Tab,
                            Qt::Key_Backtab, Qt::Key_Backspace, Qt::Key_Delete};

constexpr char Characters[] = "0123456789+-*/.,nNaAxB ";

} // namespace

User::User(Desktop& desktop, std::string files, unsigned seed)
    : desktop_(desktop), files_(ToQt(files)), items_(ItemsOf(desktop.session.commands.Rows())),
      random_(seed) {}

QMdiSubWindow* User::Window(int number) const {
    const auto windows = desktop_.mainWindow->Area().subWindowList();
    return windows.isEmpty() ? nullptr : windows[std::abs(number) % windows.size()];
}

QWidget* User::Attention() const {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return desktop_.mainWindow.get();
}

Action User::Next() {
    if (QApplication::activePopupWidget()) {
        static constexpr int keys[] = {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Escape,
                                       Qt::Key_Return};
        return Key(keys[Draw(5)]);
    }
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) return InDialog(*dialog);
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && top->objectName().startsWith("frmWork") && Draw(20) == 0)
            return {"cancel", {}, top->objectName().toStdString()};
    return InMainWindow();
}

Action User::InMainWindow() {
    switch (Draw(10)) {
    case 0:
    case 1:
    case 2:
    case 3: return WithWindows();
    case 4: return WithCommands();
    case 5:
    case 6:
    case 7: return WithKeys();
    default: return WithMouse();
    }
}

Action User::AtTitle(const char* verb) {
    auto* window = Window(Draw(100));
    if (!window) return {"wait", {Draw(5)}, {}};
    const QPoint place =
        window->mapTo(desktop_.mainWindow.get(), QPoint(20 + Draw(std::max(1, window->width() - 90)), 10));
    return {verb, {place.x(), place.y(), 1}, {}};
}

Action User::WithWindows() {
    const int number = Draw(100);
    switch (Draw(16)) {
    case 0: return {"maximize", {number}, {}};
    case 1: return {"minimize", {number}, {}};
    case 2: return {"restore", {number}, {}};
    case 3: return {"activate", {number}, {}};
    case 4:
    case 5: return AtTitle("double");
    case 6: return AtTitle("click");
    case 7: return Key(Qt::Key_Tab, int(Qt::ControlModifier));
    case 8: return Key(Qt::Key_Backtab, int(Qt::ControlModifier | Qt::ShiftModifier));
    case 9: return {"item", {}, "mnuCascade"};
    case 10: return {"item", {}, "mnuTile"};
    case 11: return {"resize", {number, 30 + Draw(900), 30 + Draw(600)}, {}};
    case 12: return {"drag", {Draw(1000), Draw(700), Draw(1000), Draw(700)}, {}};
    case 13: { // the buttons at the end of a title
        auto* window = Window(number);
        if (!window) return {"wait", {Draw(5)}, {}};
        const QPoint place =
            window->mapTo(desktop_.mainWindow.get(), QPoint(window->width() - 12 - 20 * Draw(3), 12));
        return {"click", {place.x(), place.y(), 1}, {}};
    }
    case 14:
        return Draw(4) == 0 ? Action{"size", {500 + Draw(900), 400 + Draw(500)}, {}}
                            : Action{"leave", {Draw(60)}, {}};
    default: return Draw(3) == 0 ? Action{"close", {number}, {}} : Action{"wait", {Draw(300)}, {}};
    }
}

Action User::WithCommands() {
    if (desktop_.session.Children.size() < 4 || Draw(6) == 0) {
        if (desktop_.session.Children.size() >= MostWindows) return {"close", {Draw(100)}, {}};
        return Draw(3) == 0 ? Action{"item", {}, "mnuFNew"} : Action{"open", {}, OneOf(Files)};
    }
    return {"item", {}, items_[std::size_t(Draw(int(items_.size())))]};
}

Action User::WithKeys() {
    if (Draw(3) == 0) return {"type", {Characters[Draw(int(sizeof Characters) - 1)]}, {}};
    if (Draw(12) == 0) {
        static constexpr int keys[] = {Qt::Key_S, Qt::Key_M, Qt::Key_D, Qt::Key_N, Qt::Key_O, Qt::Key_Z,
                                       Qt::Key_Y, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_A};
        return Key(keys[Draw(int(std::size(keys)))], int(Qt::ControlModifier));
    }
    if (Draw(25) == 0) return Key(Qt::Key_F, int(Qt::AltModifier));
    static constexpr Qt::KeyboardModifiers::Int modifiers[] = {
        Qt::ControlModifier, Qt::ShiftModifier, 0, 0, 0, 0, 0, 0};
    return Key(GridKeys[Draw(int(std::size(GridKeys)))], int(modifiers[Draw(8)]));
}

QPoint User::InActiveGrid() {
    const auto* window = desktop_.mainWindow->Area().currentSubWindow();
    auto* grid = window ? window->findChild<GridWidget*>() : nullptr;
    if (!grid) return {Draw(desktop_.mainWindow->width()), Draw(desktop_.mainWindow->height())};
    const QPoint place(Draw(std::max(1, grid->width())), Draw(std::max(1, std::min(300, grid->height()))));
    return grid->mapTo(desktop_.mainWindow.get(), place);
}

Action User::WithMouse() {
    if (Draw(3) == 0) {
        const int x = Draw(desktop_.mainWindow->width());
        const int y = Draw(desktop_.mainWindow->height());
        return {Draw(5) == 0 ? "double" : "click", {x, y, 1}, {}};
    }
    const QPoint place = InActiveGrid();
    if (Draw(6) == 0) {
        const QPoint end = InActiveGrid();
        return {"drag", {place.x(), place.y(), end.x(), end.y()}, {}};
    }
    return {Draw(4) == 0 ? "double" : "click", {place.x(), place.y(), Draw(12) == 0 ? 2 : 1}, {}};
}

Action User::InDialog(QDialog& dialog) {
    if (qobject_cast<QFileDialog*>(&dialog))
        return Draw(3) == 0 ? Key(Qt::Key_Escape) : Action{"file", {}, OneOf(Files)};
    const auto buttons = dialog.findChildren<QAbstractButton*>();
    switch (Draw(8)) {
    case 0: return Key(Qt::Key_Escape);
    case 1: return Key(Qt::Key_Tab);
    case 2: return {"type", {Characters[Draw(10)]}, {}};
    case 3: return {"click", {Draw(dialog.width()), Draw(dialog.height()), 1}, {}};
    default:
        if (buttons.isEmpty() || Draw(3) == 0) return Key(Qt::Key_Return);
        return {"push", {Draw(int(buttons.size()))}, {}};
    }
}

void User::PressKey(int key, int modifiers) {
    QWidget* widget = Attention();
    if (QGuiApplication::focusWindow() != widget->windowHandle()) QApplication::setActiveWindow(widget);
    QWindow* window =
        QGuiApplication::focusWindow() ? QGuiApplication::focusWindow() : widget->windowHandle();
    const bool hasText = key < Qt::Key_Escape && !(modifiers & (Qt::ControlModifier | Qt::AltModifier));
    if (window)
        ClickKey(window, key, Qt::KeyboardModifiers(modifiers), hasText ? QString(QChar(key)) : QString());
}

void User::Mouse(const Action& action) {
    QWidget* widget = Attention();
    QWindow* window = widget->windowHandle();
    if (!window) return;
    const auto button = action.numbers[2] == 2 ? Qt::RightButton : Qt::LeftButton;
    const QPoint place(action.numbers[0], action.numbers[1]);
    ClickButton(window, button, place, action.verb == "double" ? 2 : 1);
}

void User::ChooseFile(const std::string& name) {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog) return;
    if (auto* field = dialog->findChild<QLineEdit*>("fileNameEdit")) {
        field->setText(files_ + "/" + ToQt(name));
        field->setFocus();
        ClickKey(dialog->windowHandle(), Qt::Key_Return, {}, {});
    }
}

// The button of a toolbar that is hidden is not.
bool User::IsInReach(const std::string& item) const {
    const auto dot = item.find('.');
    if (dot == std::string::npos) return true;
    const auto* toolbar = desktop_.mainWindow->findChild<QToolBar*>(ToQt(item.substr(0, dot)));
    return toolbar && toolbar->isVisible();
}

int User::Pause(const Action& action) {
    if (action.verb == "wait") return action.numbers[0];
    return action.verb == "leave" ? action.numbers[0] + 1 : 0;
}

void User::Do(const Action& action) {
    const auto& [first, second, third, fourth] = action.numbers;
    const QPointer<QMdiSubWindow> window = Window(first);
    auto& area = desktop_.mainWindow->Area();
    if (action.verb == "key") return PressKey(first, second);
    if (action.verb == "click" || action.verb == "double") return Mouse(action);
    if (action.verb == "file") return ChooseFile(action.text);
    if (action.verb == "type") {
        if (QWidget* widget = Attention(); QGuiApplication::focusWindow() != widget->windowHandle())
            QApplication::setActiveWindow(widget);
        const QChar character(static_cast<char16_t>(first));
        if (QWindow* focus = QGuiApplication::focusWindow())
            ClickKey(focus, character.toUpper().unicode(), {}, QString(character));
    }
    if (action.verb == "drag") {
        QWindow* screen = desktop_.mainWindow->windowHandle();
        if (Attention() != desktop_.mainWindow.get()) return;
        PressButton(screen, Qt::LeftButton, {first, second});
        MovePointer(screen, Qt::LeftButton, {(first + third) / 2, (second + fourth) / 2});
        MovePointer(screen, Qt::LeftButton, {third, fourth});
        ReleaseButton(screen, Qt::LeftButton, {third, fourth});
    }
    if (action.verb == "push") {
        QWidget* dialog = QApplication::activeModalWidget();
        const auto buttons = dialog ? dialog->findChildren<QAbstractButton*>() : QList<QAbstractButton*>();
        if (buttons.isEmpty() || !dialog->windowHandle()) return;
        const auto* button = buttons[first % buttons.size()];
        if (button->isVisible())
            ClickButton(dialog->windowHandle(), Qt::LeftButton,
                        button->mapTo(dialog, button->rect().center()));
    }
    if (action.verb == "cancel")
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == ToQt(action.text)) {
                top->close();
                break;
            }
    if (QApplication::activeModalWidget()) return;
    if (action.verb == "item") {
        auto* item = desktop_.mainWindow->findChild<QAction*>(ToQt(action.text));
        if (item && item->isEnabled() && item->isVisible() && IsInReach(action.text)) item->trigger();
    }
    if (action.verb == "open") desktop_.Open(FromQt(files_) + "/" + action.text);
    if (action.verb == "leave") {
        QApplication::setActiveWindow(nullptr);
        QTimer::singleShot(first, desktop_.mainWindow.get(),
                           [this] { QApplication::setActiveWindow(desktop_.mainWindow.get()); });
    }
    if (action.verb == "size") desktop_.mainWindow->resize(first, second);
    if (!window) return;
    if (action.verb == "maximize") window->showMaximized();
    if (action.verb == "minimize") window->showMinimized();
    if (action.verb == "restore") window->showNormal();
    if (action.verb == "activate") area.setActiveSubWindow(window);
    if (action.verb == "resize" && !window->isMinimized() && !window->isMaximized()) // it has borders
        window->resize(second, third);
    if (action.verb == "close") window->close();
}

std::string User::Complaint() const {
    if (desktop_.dispatch.Depth() != 0 || QApplication::activeModalWidget() ||
        QApplication::activePopupWidget())
        return {};
    const auto& session = desktop_.session;
    const auto& area = desktop_.mainWindow->Area();
    if (std::size_t(area.subWindowList().size()) != session.Children.size())
        return "windows on the screen and in the session differ";
    for (const auto& child : session.Children) {
        const auto* sheet = dynamic_cast<const frmNotePad*>(child.get());
        if (sheet && sheet->EditPanel.Visible != sheet->Editing)
            return sheet->Editing ? "an edit without its field" : "a field without an edit";
    }
    if (session.Children.empty()) return {};
    if (!session.ActiveWindow) return "no window is the active one";
    const auto* current = dynamic_cast<ChildFace*>(area.currentSubWindow());
    if (!current || const_cast<ChildFace*>(current)->Window() != session.ActiveWindow)
        return "the window in front is not the session's";
    return {};
}

} // namespace dorvan::test
