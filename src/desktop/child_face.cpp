#include "desktop/child_face.h"

#include "desktop/column_borders.h"
#include "desktop/grid_hover.h"
#include "desktop/grid_marking.h"
#include "desktop/grid_typing.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"
#include "platform/twips.h"
#include "program/status_line.h"
#include "session/busy.h"
#include "session/children.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>

#include <utility>

namespace dorvan {

ChildFace::ChildFace(Session& session, ChildWindow& window, EventDispatch& dispatch)
    : session_(session), window_(&window), dispatch_(dispatch) {
    setObjectName(ToQt(window.Name + window.Tag));
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowIcon(ProgramIcon());
    auto* content = new QWidget;
    content->setObjectName(ToQt(window.Name));
    setWidget(content);
    bindings_ = new Bindings(window, dispatch, content);
    // A focus that moved into a window behind would bring it to the front.
    bindings_->MirrorFocusWhile([this] {
        return session_.ActiveWindow == window_ && mdiArea() && mdiArea()->currentSubWindow() == this;
    });
    dispatch_.AddMirror(this, [this] { Mirror(); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && isAncestorOf(now)) dispatch_.Later(this, [this] { SettleFocus(); });
    });
}

void ChildFace::SettleFocus() {
    if (window_) settledFocus_ = window_->ActiveControl;
}

GridWidget& ChildFace::ShowGrid(Grid& grid, const QString& accessibleName) {
    grid_ = new GridWidget(grid, dispatch_, widget());
    new GridTyping(*grid_, dispatch_);
    new GridMarking(*grid_, grid, dispatch_);
    new ColumnBorders(*grid_, grid, dispatch_);
    bindings_->Plain(grid_, grid, accessibleName);
    bindings_->Also([shown = grid_] { shown->Mirror(); });
    // A computation reads the sheet by way of its current cell; what the user looks at stays in view then.
    grid_->follows = [this] { return session_.ActiveWindow == window_ && !IsBusy(session_); };
    // The window behind it goes before its face does.
    grid_->words = [this](int row, int column) {
        return window_ ? ToQt(CellWords(session_, *window_, row, column)) : QString();
    };
    new GridHover(*grid_, grid_->words, [this](int row, int column) {
        dispatch_.Run([&] {
            if (row >= 0 && window_)
                PointAt(session_, *window_, row, column);
            else
                PointAway(session_);
        });
    });
    return *grid_;
}

ChildFace::Bounds ChildFace::WantedBounds() const {
    return {window_->Left, window_->Top, window_->Width, window_->Height};
}

void ChildFace::Place() {
    const QSize room = mdiArea()->viewport()->size();
    QRect place(PixelsOf(window_->Left), PixelsOf(window_->Top), PixelsOf(window_->Width),
                PixelsOf(window_->Height));
    if (place.width() <= 0 || place.height() <= 0) place.setSize(room * 4 / 5);
    place.setSize(place.size().boundedTo(room));
    setGeometry(place);
    placed_ = true;
    MirrorMode();
    TellBounds();
    dispatch_.Later(this, [this] {
        if (window_) window_->Form_Resize();
    });
}

WindowMode ChildFace::ShownMode() const {
    return isMinimized() ? WindowMode::Minimized : isMaximized() ? WindowMode::Maximized : WindowMode::Normal;
}

// Place and size are those of the normal state, as long as that is the one shown.
void ChildFace::TellBounds() {
    if (!window_ || !placed_) return;
    window_->Mode = toldMode_ = ShownMode();
    window_->ScaleWidth = widget()->width() * TwipsPerPixel;
    window_->ScaleHeight = widget()->height() * TwipsPerPixel;
    if (window_->Mode == WindowMode::Normal) {
        window_->Left = x() * TwipsPerPixel;
        window_->Top = y() * TwipsPerPixel;
        window_->Width = width() * TwipsPerPixel;
        window_->Height = height() * TwipsPerPixel;
    }
    told_ = WantedBounds();
}

void ChildFace::MirrorMode() {
    if (window_->Mode == ShownMode()) return;
    switch (window_->Mode) {
    case WindowMode::Normal: showNormal(); break;
    case WindowMode::Minimized: showMinimized(); break;
    case WindowMode::Maximized: showMaximized(); break;
    }
}

void ChildFace::MirrorBounds() {
    if (!placed_) return;
    if (window_->Mode != toldMode_) {
        toldMode_ = window_->Mode;
        MirrorMode();
    }
    if (WantedBounds() == told_ || window_->Mode != WindowMode::Normal) return;
    told_ = WantedBounds();
    setGeometry(PixelsOf(told_.left), PixelsOf(told_.top), PixelsOf(told_.width), PixelsOf(told_.height));
}

void ChildFace::Mirror() {
    if (!window_) return;
    if (const QString title = ToQt(window_->Caption); windowTitle() != title) {
        setWindowTitle(title);
        widget()->setAccessibleName(title);
    }
    MirrorBounds();
    bindings_->Mirror();
    SettleFocus();
}

void ChildFace::Detach() {
    window_ = nullptr;
    bindings_->Detach();
    if (grid_) grid_->Detach();
}

void ChildFace::closeEvent(QCloseEvent* event) {
    event->ignore(); // when the window closes, its display removes this face
    if (window_) dispatch_.Run([this] { CloseChild(session_, *window_); });
}

// The sizes on the way from one state to another tell nothing.
void ChildFace::TellBoundsLater() {
    if (!window_ || !placed_ || std::exchange(tellsBounds_, true)) return;
    dispatch_.Later(this, [this] {
        tellsBounds_ = false;
        if (!window_) return;
        TellBounds();
        if (std::exchange(resized_, false)) window_->Form_Resize();
    });
}

void ChildFace::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    resized_ = placed_;
    TellBoundsLater();
}

void ChildFace::moveEvent(QMoveEvent* event) {
    QMdiSubWindow::moveEvent(event);
    TellBoundsLater();
}

void ChildFace::changeEvent(QEvent* event) {
    QMdiSubWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) return;
    TellBoundsLater();
    KeepFocus();
}

// The toolkit hides a window on its way to another state, and passes its focus on to any other field.
void ChildFace::KeepFocus() {
    if (!window_ || !settledFocus_) return;
    dispatch_.Later(this, [this, before = settledFocus_] {
        if (!window_ || session_.ActiveWindow != window_ || window_->ActiveControl == before) return;
        window_->ActiveControl = before;
        bindings_->Mirror();
    });
}

} // namespace dorvan
