#include "desktop/main_window_face.h"

#include "desktop/icons.h"
#include "desktop/legend_widget.h"
#include "desktop/qt_text.h"
#include "program/status_line.h"
#include "session/busy.h"
#include "session/menus.h"
#include "session/popup_menus.h"
#include "session/status_bar.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeySequence>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace dorvan {

namespace {

constexpr int SmallScreenWidth = 1500; // pixels; up to here the main window takes all there is
constexpr int ToolIconSize = 22;
constexpr int StatusMargin = 6;       // pixels, at both ends of the status bar
constexpr int LeastStatusWidth = 300; // pixels that the legend leaves to what is told of the cell
constexpr int RecentFileWidth = 420;  // pixels; longer paths are shortened in the middle

// A line between items has no text: some styles would show it.
QString TextOf(const std::string& caption) { return caption == "-" ? QString() : ToQt(caption); }

} // namespace

QRect MainWindowPlace(const QRect& available) {
    if (available.width() <= SmallScreenWidth) return available;
    const QSize size(available.width() * 17 / 20, available.height() * 17 / 20);
    return {available.center() - QPoint(size.width() / 2, size.height() / 2), size};
}

MainWindowFace::MainWindowFace(Session& session, frmMDI& shell, EventDispatch& dispatch)
    : session_(session), shell_(shell), dispatch_(dispatch), area_(new QMdiArea(this)) {
    setObjectName("frmMDI");
    setWindowIcon(ProgramIcon());
    setContextMenuPolicy(Qt::NoContextMenu); // no menu of toolbars beside the program's own
    area_->setObjectName("MDIArea");
    area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area_);
    for (const auto& item : MenuTree(session_.commands.Rows())) {
        QMenu* menu = menuBar()->addMenu(ToQt(item.Caption));
        menu->setObjectName(ToQt(item.Name));
        menu->menuAction()->setObjectName(ToQt(item.Name));
        menu->setToolTipsVisible(true); // of the items that have one: whole paths of recent files
        menus_.emplace_back(item.Name, menu);
        connect(menu, &QMenu::aboutToShow, this,
                [this, name = item.Name] { dispatch_.Run([&] { shell_.MenuOpens(name); }); });
        BuildMenu(*this, *menu, item.Items);
    }
    BuildToolbars();
    BuildStatusBar();
    dispatch_.AddMirror(this, [this] { Mirror(); });
    Mirror();
}

void MainWindowFace::BuildMenu(QWidget& parent, QMenu& menu, const std::vector<MenuItem>& items) {
    for (const auto& item : items) {
        if (item.Items.empty()) {
            if (QAction* action = BuildItem(menu, item); !item.Name.empty())
                items_.emplace_back(item.Name, action);
            continue;
        }
        QMenu* submenu = menu.addMenu(ToQt(item.Caption));
        submenu->setObjectName(ToQt(item.Name));
        submenu->menuAction()->setObjectName(ToQt(item.Name));
        items_.emplace_back(item.Name, submenu->menuAction());
        menus_.emplace_back(item.Name, submenu);
        BuildMenu(parent, *submenu, item.Items);
    }
}

QAction* MainWindowFace::BuildItem(QMenu& menu, const MenuItem& item) {
    QAction* action = menu.addAction(TextOf(item.Caption));
    action->setObjectName(ToQt(item.Name));
    action->setMenuRole(QAction::NoRole);
    if (item.Name.empty()) {
        action->setSeparator(true);
        action->setVisible(!item.Hidden);
        return action;
    }
    if (!item.Shortcut.empty() && !item.Hidden) action->setShortcut(QKeySequence(ToQt(item.Shortcut)));
    action->setCheckable(item.Checkable);
    // The mirroring after the click sets the check mark; Qt's own flip of it does not count.
    connect(action, &QAction::triggered, this,
            [this, name = item.Name] { dispatch_.Run([&] { shell_.MenuClick(name); }); });
    return action;
}

void MainWindowFace::BuildToolbars() {
    for (const auto& toolbar : Toolbars(session_.commands.Rows())) {
        auto* bar = new QToolBar(this);
        bar->setObjectName(ToQt(toolbar.Name));
        bar->setAccessibleName(ToQt(toolbar.Spoken));
        bar->setMovable(false);
        bar->setIconSize({ToolIconSize, ToolIconSize});
        addToolBar(bar);
        toolbars_.emplace_back(toolbar.Name, bar);
        for (const auto& button : toolbar.Buttons) {
            if (button.Gap) bar->addSeparator();
            QAction* action = bar->addAction(ThemedIcon(ToQt(button.Key)), ToQt(button.ToolTip));
            action->setObjectName(ToQt(toolbar.Name + "." + button.Key));
            action->setToolTip(ToQt(button.ToolTip));
            action->setIconVisibleInMenu(false);
            QWidget* widget = bar->widgetForAction(action);
            widget->setObjectName(action->objectName());
            widget->setAccessibleName(ToQt(button.ToolTip));
            connect(action, &QAction::triggered, this, [this, bar = toolbar.Name, key = button.Key] {
                dispatch_.Run([&] { shell_.ButtonClick(bar, key); });
            });
            buttons_.push_back({toolbar.Name, button.Key, action});
        }
    }
}

void MainWindowFace::BuildStatusBar() {
    const auto label = [this](const char* name, const char* spoken) {
        auto* made = new QLabel(statusBar());
        made->setObjectName(name);
        made->setAccessibleDescription(spoken); // its name is what it says
        made->setTextFormat(Qt::PlainText);
        made->setMinimumWidth(1); // a narrow window cuts it
        return made;
    };
    status_ = label("StatusText", "Status");
    cell_ = label("StatusCell", "Cell");
    legend_ = new LegendWidget(statusBar());
    window_ = label("StatusWindow", "Window");
    unsaved_ = label("StatusUnsaved", "Unsaved");
    statusBar()->setObjectName("StatusBar");
    statusBar()->setContentsMargins(StatusMargin, 0, StatusMargin, 0);
    statusBar()->addWidget(status_, 1);
    statusBar()->addWidget(cell_, 1);
    statusBar()->addPermanentWidget(legend_);
    statusBar()->addPermanentWidget(window_);
    statusBar()->addPermanentWidget(unsaved_);
}

void MainWindowFace::MirrorStatusBar() {
    RefreshStatusBar(session_);
    const auto& bar = session_.forms.Load<StatusBar>(session_);
    const auto show = [](QLabel* label, const std::string& caption) {
        if (const QString text = ToQt(caption); label->text() != text) label->setText(text);
    };
    show(status_, bar.Text.Caption);
    show(cell_, bar.Cell.Caption);
    show(window_, bar.Window.Caption);
    show(unsaved_, bar.Unsaved.Caption);
    cell_->setVisible(bar.Text.Caption.empty());
    status_->setVisible(!bar.Text.Caption.empty());
    window_->setVisible(!bar.Window.Caption.empty());
    unsaved_->setVisible(!bar.Unsaved.Caption.empty());
    const ChildWindow* active = session_.ActiveWindow;
    legend_->Show(active ? LegendOf(session_, *active) : std::vector<LegendEntry>());
    const int others = window_->sizeHint().width() + unsaved_->sizeHint().width() + LeastStatusWidth;
    legend_->setVisible(legend_->sizeHint().width() > 0 &&
                        legend_->sizeHint().width() + others < statusBar()->width());
}

void MainWindowFace::MirrorToolbars() {
    for (const auto& [name, bar] : toolbars_)
        if (const bool shown = session_.mainWindow.ToolbarShown(name); bar->isHidden() == shown)
            bar->setVisible(shown);
    for (const auto& button : buttons_) {
        button.action->setEnabled(shell_.ButtonEnabled(button.toolbar, button.key));
        button.action->setVisible(session_.mainWindow.ButtonShown(button.toolbar, button.key));
    }
}

// A maximized child window has no title of its own.
QString MainWindowFace::Title() const {
    const QString caption = ToQt(session_.mainWindow.Caption);
    const ChildWindow* active = session_.ActiveWindow;
    if (!active || active->Mode != WindowMode::Maximized) return caption;
    return caption + " - [" + ToQt(active->Caption) + "]"; // as the toolkit writes it
}

void MainWindowFace::Mirror() {
    if (const QString title = Title(); windowTitle() != title) setWindowTitle(title);
    for (const auto& [name, action] : items_) {
        action->setEnabled(shell_.MenuEnabled(name));
        action->setVisible(shell_.MenuShown(name));
        const std::string caption = session_.mainWindow.MenuCaption(name);
        action->setSeparator(caption == "-");
        QString text = TextOf(caption);
        if (name.starts_with("mnuRecentFile(")) {
            if (action->toolTip() != text) action->setToolTip(text);
            text = fontMetrics().elidedText(text, Qt::ElideMiddle, RecentFileWidth);
            text.replace("&", "&&"); // a path has no access key
        }
        if (action->text() != text) action->setText(text);
        if (action->isCheckable()) action->setChecked(session_.mainWindow.MenuChecked(name));
    }
    MirrorToolbars();
    MirrorStatusBar();
}

// The name of a menu, or the kind of a window with a menu of its own.
void MainWindowFace::PopUp(const std::string& menu, QPoint global) {
    for (const auto& [name, entry] : menus_)
        if (name == menu) entry->popup(global);
    const auto wanted = PopUpItems(menu);
    if (wanted.empty() || IsBusy(session_)) return;
    auto* made = new QMenu(this);
    made->setObjectName("PopUp");
    made->setAttribute(Qt::WA_DeleteOnClose);
    for (const auto item : wanted) {
        if (item == "-") made->addSeparator();
        for (const auto& [name, action] : items_)
            if (name == item) made->addAction(action);
        for (const auto& button : buttons_)
            if (button.toolbar + "." + button.key == item) made->addAction(button.action);
    }
    made->popup(global);
}

void MainWindowFace::closeEvent(QCloseEvent* event) {
    event->ignore();
    dispatch_.Run([&] {
        if (shell_.RequestClose()) event->accept();
    });
}

} // namespace dorvan
