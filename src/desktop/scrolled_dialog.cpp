#include "desktop/scrolled_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace dorvan {

namespace {

constexpr int FrameWidth = 16; // pixels, of a window's own frame, both sides
constexpr int FrameHeight = 48;

// As large as its content, so that only a dialog that is cut has scroll bars.
class ContentArea : public QScrollArea {
public:
    explicit ContentArea(QDialog& dialog) : QScrollArea(&dialog) {
        setObjectName("ScrolledContent");
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(new QWidget(viewport()));
    }

    QSize sizeHint() const override {
        const int bar = verticalScrollBar()->sizeHint().width();
        return widget()->sizeHint() + QSize(bar, 0);
    }
    QSize minimumSizeHint() const override { return {0, 0}; }
};

} // namespace

void FitIntoScreen(QDialog& dialog) {
    if (dialog.findChild<ContentArea*>() || !dialog.layout() || !dialog.screen()) return;
    const QSize room = dialog.screen()->availableSize() - QSize(FrameWidth, FrameHeight);
    const QSize wanted = dialog.layout()->totalSizeHint();
    if (wanted.width() <= room.width() && wanted.height() <= room.height()) return;
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    if (buttons) dialog.layout()->removeWidget(buttons);
    auto* area = new ContentArea(dialog); // in the dialog from the start: Tab keeps its order
    dialog.layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
    area->widget()->setLayout(dialog.layout()); // with all that it holds
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(area, 1);
    if (buttons) column->addWidget(buttons);
    dialog.setMaximumSize(room);
    dialog.setMinimumSize(0, 0);
    dialog.resize(column->totalSizeHint().boundedTo(room));
}

} // namespace dorvan
