#include "desktop/cell_tabs.h"
#include "desktop/child_faces.h"
#include "desktop/qt_text.h"
#include "platform/keys.h"
#include "sheet/frmNotePad.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace dorvan {

namespace {

constexpr int DescriptionLines = 2;
constexpr int EditCellWidth = 150; // pixels
constexpr int TitleWidth = 320;    // pixels; longer ones are shortened in the middle
constexpr int Margin = 6;
constexpr int LeastMargin = 2;

QPlainTextEdit* MakeDescription(QWidget* parent) {
    auto* field = new QPlainTextEdit(parent);
    field->setTabChangesFocus(true);
    const int frame = 2 * (field->frameWidth() + 4);
    field->setFixedHeight(field->fontMetrics().lineSpacing() * DescriptionLines + frame);
    return field;
}

void AddDescription(Bindings& binder, frmNotePad& window, QWidget* panel, QHBoxLayout* row) {
    auto* label = new QLabel(panel);
    binder.Text(label, window.Label1);
    auto* description = MakeDescription(panel);
    label->setBuddy(description);
    binder.Field(description, window.OpisText, "Description",
                 {.change = [&window] { window.OpisText_Change(); },
                  .keyPress = [&window](int& keyAscii) { window.OpisText_KeyPress(keyAscii); },
                  .keyDown = {},
                  .lostFocus = {}});
    row->addWidget(label, 0, Qt::AlignTop);
    row->addWidget(description, 1);
}

// Which cell it is, over the left end of the table.
QLabel* AddCellTitle(Bindings& binder, frmNotePad& window, QWidget* panel) {
    auto* title = new QLabel(panel);
    title->setObjectName("CellTitle");
    title->setTextFormat(Qt::PlainText);
    binder.Also([title, &window] {
        const QString whole = ToQt(window.CellTitle());
        if (title->toolTip() == whole) return;
        title->setToolTip(whole);
        title->setText(title->fontMetrics().elidedText(whole, Qt::ElideMiddle, TitleWidth));
    });
    return title;
}

// Keeps its room while it is hidden, so that the table does not jump.
void AddEditPanel(Bindings& binder, frmNotePad& window, QWidget* panel, QHBoxLayout* row) {
    auto* title = AddCellTitle(binder, window, panel);
    row->addWidget(title);
    auto* editPanel = new QWidget(panel);
    auto* edit = new QHBoxLayout(editPanel);
    edit->setContentsMargins(0, 0, 0, 0);
    QSizePolicy keepsRoom = editPanel->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    editPanel->setSizePolicy(keepsRoom);
    binder.Plain(editPanel, window.EditPanel);
    auto* cell = new QLineEdit(editPanel);
    cell->setFixedWidth(EditCellWidth);
    title->setBuddy(cell);
    edit->addWidget(cell);
    binder.Field(cell, window.EditCell, "Cell",
                 {.change = [&window] { window.EditCell_Change(); },
                  .keyPress = [&window](int& keyAscii) { window.EditCell_KeyPress(keyAscii); },
                  .keyDown = [&window](int& keyCode) { window.EditCell_KeyDown(keyCode); },
                  .lostFocus = [&window] { window.EditCell_LostFocus(); }});
    row->addWidget(editPanel);
    row->addStretch(1);
}

void LayOut(ChildFace& face, frmNotePad& window, const ChildContext& context) {
    auto& binder = face.Binder();
    auto* column = new QVBoxLayout(face.widget());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    auto* topPanel = new QWidget(face.widget());
    auto* top = new QVBoxLayout(topPanel);
    top->setContentsMargins(Margin, Margin, Margin, LeastMargin);
    top->setSpacing(LeastMargin);
    binder.Plain(topPanel, window.TopPanel);
    auto* description = new QHBoxLayout;
    top->addLayout(description);
    AddDescription(binder, window, topPanel, description);
    auto* edit = new QHBoxLayout;
    top->addLayout(edit);
    AddEditPanel(binder, window, topPanel, edit);
    column->addWidget(topPanel);

    auto& grid = face.ShowGrid(window.Grid1, "Data sheet");
    grid.events = {.keyDown = [&window](int& keyCode) { window.Grid1_KeyDown(keyCode); },
                   .keyPress = [&window](int& keyAscii) { window.Grid1_KeyPress(keyAscii); },
                   .doubleClick = [&window] { window.Grid1_DblClick(); },
                   .rightButton =
                       [&window, popUp = context.popUp](QPoint global) {
                           if (window.Grid1_MouseDown(mouse::Right)) popUp("mnuEdit", global);
                       }};
    column->addWidget(&grid, 1);
    BindTabs(grid, *face.findChild<QLineEdit*>(ToQt(window.EditCell.Name)), window, context.dispatch);
    if (!window.ActiveControl) window.SetFocus(window.Grid1);
}

const FaceOfChild<frmNotePad> registered(LayOut);

} // namespace

} // namespace dorvan
