#pragma once

#include "desktop/bindings.h"
#include "desktop/grid_widget.h"
#include "platform/child_window.h"

#include <QMdiSubWindow>

#include <memory>

namespace dorvan {

struct Session;

// A child window on the screen. It tells its window place, size and state, and mirrors them where a rule
// changed them.
class ChildFace : public QMdiSubWindow {
public:
    ChildFace(Session& session, ChildWindow& window, EventDispatch& dispatch);

    ChildWindow* Window() { return window_; }

    // To be called once the content has been laid out and the subwindow is in its area.
    void Place();

    // The window has closed: nothing is forwarded any more.
    void Detach();

    void Mirror();
    void MirrorMode();

    // The grid, for who lays out the content and binds it.
    GridWidget& ShowGrid(Grid& grid, const QString& accessibleName);
    Bindings& Binder() { return *bindings_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Bounds {
        int left = 0;
        int top = 0;
        int width = 0;
        int height = 0;
        bool operator==(const Bounds&) const = default;
    };

    Bounds WantedBounds() const;
    void TellBounds();
    void TellBoundsLater();
    void SettleFocus();
    void KeepFocus();
    void MirrorBounds();
    WindowMode ShownMode() const;

    Session& session_;
    ChildWindow* window_;
    EventDispatch& dispatch_;
    Bindings* bindings_;
    GridWidget* grid_ = nullptr;
    Bounds told_; // in twips, as the screen last told or showed them
    WindowMode toldMode_ = WindowMode::Normal;
    bool placed_ = false;
    bool tellsBounds_ = false;              // as soon as the toolkit has settled
    bool resized_ = false;                  // since it told them last
    const Control* settledFocus_ = nullptr; // where the toolkit had left it before its present work
};

} // namespace dorvan
