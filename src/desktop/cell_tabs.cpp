#include "desktop/cell_tabs.h"

#include "desktop/grid_widget.h"
#include "sheet/frmNotePad.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace dorvan {

namespace {

// `taken` says whether the tab was; else it moves the focus, as everywhere.
class TabFilter : public QObject {
public:
    TabFilter(QWidget& widget, std::function<bool(bool back)> taken)
        : QObject(&widget), taken_(std::move(taken)) {
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto& key = static_cast<QKeyEvent&>(*event);
        const bool back = key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::ShiftModifier);
        const bool isTab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
        if (!isTab || (key.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier))) return false;
        return taken_(back);
    }

private:
    std::function<bool(bool back)> taken_;
};

} // namespace

void BindTabs(GridWidget& grid, QLineEdit& editCell, frmNotePad& window, EventDispatch& dispatch) {
    const auto alive = [&grid] { return grid.Shown() != nullptr; };
    new TabFilter(grid, [&window, &dispatch, alive](bool back) {
        bool moved = false;
        if (alive()) dispatch.Run([&] { moved = window.Grid1_Tab(back); });
        return moved;
    });
    new TabFilter(editCell, [&window, &dispatch, alive](bool back) {
        if (alive()) dispatch.Run([&] { window.EditCell_Tab(back); });
        return true;
    });
}

} // namespace dorvan
