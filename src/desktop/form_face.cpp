#include "desktop/form_face.h"

#include "desktop/qt_text.h"
#include "desktop/scrolled_dialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace dorvan {

namespace {

constexpr int PathWidth = 300;  // pixels
constexpr int NoteWidth = 380;  // pixels, of a text that wraps
constexpr int TitleMargin = 24; // pixels, of the frame's edges and around its buttons

// What a frame needs to show the whole title, in a bold font and between a menu's button and that which
// closes.
int TitleWidth(const QString& title, const QWidget& window) {
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    font.setBold(true);
    const int button = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return QFontMetrics(font).horizontalAdvance(title) + 2 * button + TitleMargin;
}

} // namespace

FormFace::FormFace(Form& form, EventDispatch& dispatch, QWidget* parent)
    : QDialog(parent), form_(form), dispatch_(dispatch), bindings_(new Bindings(form, dispatch, this)),
      column_(new QVBoxLayout(this)), titleRoom_(new QSpacerItem(0, 0)) {
    setObjectName(ToQt(form.Name));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint); // nothing to minimize or maximize
    column_->setSizeConstraint(QLayout::SetFixedSize);
    column_->addItem(titleRoom_);
    dispatch_.AddMirror(this, [this] { Mirror(); });
}

void FormFace::Mirror() {
    if (retired_) return;
    MirrorTitle();
    if (!form_.Visible && isVisible()) hide();
}

void FormFace::MirrorTitle() {
    const QString title = ToQt(form_.Caption);
    if (windowTitle() == title) return;
    setWindowTitle(title);
    titleRoom_->changeSize(std::max(titleRoom_->sizeHint().width(), TitleWidth(title, *this)), 0);
    column_->invalidate();
}

void FormFace::RunModal() {
    setWindowModality(Qt::ApplicationModal);
    form_.Visible = true;
    QEventLoop loop;
    dispatch_.AddMirror(&loop, [this, &loop] {
        if (!form_.Visible) loop.quit();
    });
    // A dialog has the size that its contents ask: the resize of its showing is the only one.
    dispatch_.Run([this] {
        form_.Form_Show();
        form_.Form_Resize();
    });
    if (!form_.Visible) return;
    FitIntoScreen(*this);
    show();
    dispatch_.Mirror();
    if (form_.Visible) loop.exec();
    hide();
}

void FormFace::Retire() {
    retired_ = true;
    bindings_->Detach();
    hide();
    deleteLater();
}

QFormLayout* FormFace::AddRows() {
    auto* rows = new QFormLayout;
    column_->addLayout(rows);
    return rows;
}

QLineEdit* FormFace::AddField(QFormLayout* rows, const Label& label, TextBox& control, FieldEvents events) {
    auto* field = new QLineEdit(this);
    AddRow(rows, label, field);
    bindings_->Field(field, control, ToQt(label.Caption), std::move(events));
    return field;
}

void FormFace::AddRow(QFormLayout* rows, const Label& label, QWidget* widget) {
    auto* shown = new QLabel(this);
    bindings_->Text(shown, label);
    shown->setBuddy(widget);
    rows->addRow(shown, widget);
}

QLabel* FormFace::AddLabel(const Control& control) {
    auto* label = new QLabel(this);
    label->setWordWrap(true);
    label->setMinimumWidth(NoteWidth);
    column_->addWidget(label);
    bindings_->Text(label, control);
    return label;
}

QGroupBox* FormFace::AddFrame(const Frame& frame) {
    auto* box = new QGroupBox(ToQt(frame.Caption), this);
    bindings_->Plain(box, frame, box->title());
    column_->addWidget(box);
    return box;
}

void FormFace::AddFile(const Frame& frame, const Label& path, const CommandButton& browse,
                       Bindings::Handler click) {
    auto* box = AddFrame(frame);
    auto* row = new QHBoxLayout(box);
    auto* label = new QLabel(box);
    label->setFixedWidth(PathWidth);
    bindings_->Path(label, path);
    row->addWidget(label);
    auto* button = new QPushButton(box);
    button->setAutoDefault(false);
    bindings_->Button(button, browse, std::move(click));
    row->addWidget(button);
}

QLabel* FormFace::AddNote(const QString& text) {
    auto* label = new QLabel(text, this);
    label->setWordWrap(true);
    label->setMinimumWidth(NoteWidth);
    column_->addWidget(label);
    return label;
}

void FormFace::AddButtons(const std::vector<std::pair<const CommandButton*, Bindings::Handler>>& buttons) {
    auto* box = new QDialogButtonBox(this);
    column_->addSpacing(6);
    column_->addWidget(box);
    for (std::size_t place = 0; place < buttons.size(); ++place) {
        auto* button = new QPushButton(ToQt(buttons[place].first->Caption), this);
        box->addButton(button, place == 0 ? QDialogButtonBox::AcceptRole : QDialogButtonBox::RejectRole);
        button->setAutoDefault(true);
        button->setDefault(place == 0);
        bindings_->Button(button, *buttons[place].first, buttons[place].second);
    }
}

void FormFace::reject() {
    if (!retired_) dispatch_.Run([this] { form_.CancelCommand(); });
}

void FormFace::closeEvent(QCloseEvent* event) {
    event->ignore();
    reject();
}

} // namespace dorvan
