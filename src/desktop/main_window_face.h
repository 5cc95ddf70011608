#pragma once

#include "desktop/event_dispatch.h"
#include "session/frmMDI.h"

#include <QMainWindow>

#include <string>
#include <utility>
#include <vector>

class QAction;
class QLabel;
class QMdiArea;
class QMenu;
class QToolBar;

namespace dorvan {

class LegendWidget;
struct MenuItem;

// The main window on the screen: menus and toolbars from their tables, the area of the child windows.
class MainWindowFace : public QMainWindow {
public:
    MainWindowFace(Session& session, frmMDI& shell, EventDispatch& dispatch);

    QMdiArea& Area() { return *area_; }

    // The menu of that name opens at a place of the screen; it does not block.
    void PopUp(const std::string& menu, QPoint global);

    void Mirror();
    QString Title() const;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenu(QWidget& parent, QMenu& menu, const std::vector<MenuItem>& items);
    QAction* BuildItem(QMenu& menu, const MenuItem& item);
    void BuildToolbars();
    void BuildStatusBar();
    void MirrorToolbars();

    Session& session_;
    frmMDI& shell_;
    EventDispatch& dispatch_;
    QMdiArea* area_;
    void MirrorStatusBar();

    QLabel* status_ = nullptr; // the outcome of a command
    QLabel* cell_ = nullptr;   // in its place where there is none
    LegendWidget* legend_ = nullptr;
    QLabel* window_ = nullptr;
    QLabel* unsaved_ = nullptr;
    std::vector<std::pair<std::string, QAction*>> items_;
    std::vector<std::pair<std::string, QMenu*>> menus_;

    struct Button {
        std::string toolbar;
        std::string key;
        QAction* action;
    };
    std::vector<Button> buttons_;
    std::vector<std::pair<std::string, QToolBar*>> toolbars_;
};

// A size for the main window on a screen with that much room: all of a small one, most of a large one.
QRect MainWindowPlace(const QRect& available);

} // namespace dorvan
