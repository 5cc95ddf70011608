#include "desktop/bindings.h"

#include "desktop/qt_text.h"
#include "platform/keys.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTextCursor>

#include <algorithm>

namespace dorvan {

namespace {

constexpr int LongestText = 32767;
constexpr int ProgressSteps = 1000;

template <class Box> void MirrorItems(Box* box, const ListBox& control) {
    bool same = box->count() == static_cast<int>(control.List.size());
    for (int item = 0; same && item < box->count(); ++item) {
        const QString text = ToQt(control.List[std::size_t(item)]);
        if constexpr (std::is_same_v<Box, QComboBox>)
            same = box->itemText(item) == text;
        else
            same = box->item(item)->text() == text;
    }
    if (same) return;
    box->clear();
    for (const auto& line : control.List) box->addItem(ToQt(line));
}

Qt::Alignment ToQt(Alignment alignment) {
    switch (alignment) {
    case Alignment::Right: return Qt::AlignRight | Qt::AlignVCenter;
    case Alignment::Centre: return Qt::AlignCenter;
    default: return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

} // namespace

int KeyCodeOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return key::Enter;
    case Qt::Key_Escape: return key::Escape;
    case Qt::Key_Backspace: return key::Backspace;
    case Qt::Key_Space: return key::Space;
    case Qt::Key_Left: return key::Left;
    case Qt::Key_Up: return key::Up;
    case Qt::Key_Right: return key::Right;
    case Qt::Key_Down: return key::Down;
    case Qt::Key_Home: return key::Home;
    case Qt::Key_End: return key::End;
    case Qt::Key_PageUp: return key::PageUp;
    case Qt::Key_PageDown: return key::PageDown;
    case Qt::Key_F2: return key::F2;
    default: return key::None;
    }
}

int CharacterOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return key::Enter;
    case Qt::Key_Escape: return key::Escape;
    case Qt::Key_Backspace: return key::Backspace;
    default: break;
    }
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        // AltGr reports itself as Ctrl+Alt on some keyboards: what makes a printable character is one.
        const bool altGr = (event.modifiers() & Qt::ControlModifier) && (event.modifiers() & Qt::AltModifier);
        if (!altGr) return key::None;
    }
    const auto characters = event.text().toUcs4();
    if (characters.size() != 1 || !QChar::isPrint(characters.front())) return key::None;
    return static_cast<int>(characters.front());
}

namespace {

// Not another program, and not a message box: those leave the focus where it is, as the windows see it.
bool AnotherWindowTookIt(const QWidget& field) {
    const QWidget* active = QApplication::activeWindow();
    return active && active != field.window() && !qobject_cast<const QMessageBox*>(active);
}

} // namespace

Bindings::Bindings(Form& form, EventDispatch& dispatch, QWidget* root)
    : QObject(root), form_(&form), dispatch_(dispatch), root_(root) {
    dispatch_.AddMirror(this, [this] { Mirror(); });
}

void Bindings::Name(QWidget* widget, const Control& control, const QString& accessibleName) {
    widget->setObjectName(dorvan::ToQt(control.Name));
    if (!accessibleName.isEmpty()) widget->setAccessibleName(SpokenName(accessibleName));
    widgets_.emplace_back(widget, &control);
    widget->installEventFilter(this);
    mirrors_.push_back([widget, &control] {
        if (widget->isEnabledTo(widget->parentWidget()) != control.Enabled)
            widget->setEnabled(control.Enabled);
        if (widget->isHidden() == control.Visible) widget->setVisible(control.Visible);
    });
}

void Bindings::Forward(const Handler& handler) {
    if (!form_) return;
    dispatch_.Run([&handler] {
        if (handler) handler();
    });
}

void Bindings::Plain(QWidget* widget, const Control& control, const QString& accessibleName) {
    Name(widget, control, accessibleName);
}

void Bindings::Text(QLabel* label, const Control& control) {
    Name(label, control, {});
    label->setTextFormat(Qt::PlainText);
    mirrors_.push_back([label, &control] {
        if (const QString text = dorvan::ToQt(control.Caption); label->text() != text) label->setText(text);
    });
}

void Bindings::Field(QLineEdit* field, TextBox& control, const QString& accessibleName, FieldEvents events) {
    Name(field, control, accessibleName);
    const Handler read = [field, &control] {
        const int start = field->hasSelectedText() ? field->selectionStart() : field->cursorPosition();
        control.Text = FromQt(field->text());
        control.SelStart = CharactersBefore(field->text(), start);
        control.SelLength = CharactersBefore(field->selectedText(), int(field->selectedText().size()));
    };
    fields_[field] = {&control, std::move(events), read};
    connect(field, &QLineEdit::textEdited, this, [this, field] {
        auto& entry = fields_[field];
        entry.read();
        Forward(entry.events.change);
    });
    mirrors_.push_back([field, &control] {
        const QSignalBlocker blocker(field);
        const QString text = dorvan::ToQt(control.Text);
        // Even the same length would take the selection away. A longer text that stands there is not cut: the
        // length is the limit of what is typed.
        const int longest =
            std::max(control.MaxLength > 0 ? control.MaxLength : LongestText, int(text.size()));
        if (field->maxLength() != longest) field->setMaxLength(longest);
        if (field->alignment() != ToQt(control.TextAlignment))
            field->setAlignment(ToQt(control.TextAlignment));
        if (field->text() == text) return;
        field->setText(text);
        const int start = UnitsBefore(text, control.SelStart);
        if (control.SelLength > 0)
            field->setSelection(start, UnitsBefore(text.mid(start), control.SelLength));
        else
            field->setCursorPosition(start);
    });
}

void Bindings::Field(QPlainTextEdit* field, TextBox& control, const QString& accessibleName,
                     FieldEvents events) {
    Name(field, control, accessibleName);
    const Handler read = [field, &control] {
        const QTextCursor cursor = field->textCursor();
        const QString text = field->toPlainText();
        control.Text = FromQt(text);
        control.SelStart = CharactersBefore(text, cursor.selectionStart());
        control.SelLength = CharactersBefore(text, cursor.selectionEnd()) - control.SelStart;
    };
    fields_[field] = {&control, std::move(events), read};
    connect(field, &QPlainTextEdit::textChanged, this, [this, field] {
        auto& entry = fields_[field];
        entry.read();
        Forward(entry.events.change);
    });
    mirrors_.push_back([field, &control] {
        const QSignalBlocker blocker(field);
        const QString text = dorvan::ToQt(control.Text);
        if (field->toPlainText() != text) field->setPlainText(text);
    });
}

void Bindings::Button(QPushButton* button, const Control& control, Handler click) {
    Name(button, control, dorvan::ToQt(control.Caption));
    connect(button, &QPushButton::clicked, this, [this, click] { Forward(click); });
    mirrors_.push_back([button, &control] {
        if (const QString text = dorvan::ToQt(control.Caption); button->text() != text) button->setText(text);
    });
}

void Bindings::Option(QRadioButton* button, OptionButton& control, Handler click) {
    Name(button, control, dorvan::ToQt(control.Caption));
    // An option that goes off tells its control before the one that goes on calls its handler.
    connect(button, &QRadioButton::toggled, this, [&control](bool on) { control.Value = on; });
    connect(button, &QRadioButton::clicked, this, [this, click] { Forward(click); });
    mirrors_.push_back([button, &control] {
        if (const QString text = dorvan::ToQt(control.Caption); button->text() != text) button->setText(text);
        if (button->isChecked() == control.Value) return;
        const QSignalBlocker blocker(button);
        const bool exclusive = button->autoExclusive();
        button->setAutoExclusive(false);
        button->setChecked(control.Value);
        button->setAutoExclusive(exclusive);
    });
}

void Bindings::Check(QCheckBox* box, CheckBox& control, Handler click) {
    Name(box, control, dorvan::ToQt(control.Caption));
    connect(box, &QCheckBox::toggled, this, [this, &control, click](bool on) {
        control.Value = on;
        Forward(click);
    });
    mirrors_.push_back([box, &control] {
        if (const QString text = dorvan::ToQt(control.Caption); box->text() != text) box->setText(text);
        const QSignalBlocker blocker(box);
        box->setChecked(control.Value);
    });
}

void Bindings::Combo(QComboBox* box, ListBox& control, const QString& accessibleName, Handler click) {
    Name(box, control, accessibleName);
    connect(box, &QComboBox::currentIndexChanged, this, [this, &control, click](int index) {
        control.ListIndex = index;
        Forward(click);
    });
    mirrors_.push_back([box, &control] {
        const QSignalBlocker blocker(box);
        MirrorItems(box, control);
        box->setCurrentIndex(control.ListIndex);
    });
}

void Bindings::List(QListWidget* list, ListBox& control, const QString& accessibleName, Handler click) {
    Name(list, control, accessibleName);
    connect(list, &QListWidget::currentRowChanged, this, [this, &control, click](int row) {
        control.ListIndex = row;
        Forward(click);
    });
    mirrors_.push_back([list, &control] {
        const QSignalBlocker blocker(list);
        MirrorItems(list, control);
        list->setCurrentRow(control.ListIndex);
    });
}

void Bindings::MultiList(QListWidget* list, MultiListBox& control, const QString& accessibleName,
                         MultiListEvents events) {
    Name(list, control, accessibleName);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    listKeys_[list] = std::move(events.keyDown);
    const auto read = [list, &control] {
        control.ListIndex = list->currentRow();
        for (std::size_t row = 0; row < control.Selected.size(); ++row)
            control.Selected[row] = list->item(static_cast<int>(row))->isSelected();
    };
    connect(list, &QListWidget::currentRowChanged, this, read);
    connect(list, &QListWidget::itemSelectionChanged, this, read);
    connect(list, &QListWidget::itemDoubleClicked, this,
            [this, list, &control, click = std::move(events.doubleClick)](const QListWidgetItem* item) {
                control.ListIndex = list->row(item);
                Forward(click);
            });
    mirrors_.push_back([list, &control] {
        const QSignalBlocker blocker(list);
        MirrorItems(list, control);
        list->setCurrentRow(control.ListIndex, QItemSelectionModel::NoUpdate);
        for (std::size_t row = 0; row < control.Selected.size(); ++row)
            list->item(static_cast<int>(row))->setSelected(control.Selected[row]);
    });
}

void Bindings::Path(QLabel* label, const Control& control) {
    Name(label, control, {});
    label->setTextFormat(Qt::PlainText);
    mirrors_.push_back([label, &control] {
        const QString path = dorvan::ToQt(control.Caption);
        if (label->toolTip() != path) label->setToolTip(path);
        if (label->accessibleName() != path) label->setAccessibleName(path);
        const QString shown = label->fontMetrics().elidedText(path, Qt::ElideMiddle, label->width());
        if (label->text() != shown) label->setText(shown);
    });
}

void Bindings::Progress(QProgressBar* widget, const Bar& track, const Bar& bar,
                        const QString& accessibleName) {
    Name(widget, bar, accessibleName);
    widget->setRange(0, ProgressSteps);
    mirrors_.push_back([widget, &track, &bar] {
        const double share = track.Width > 0 ? bar.Width / track.Width : 0;
        widget->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * ProgressSteps));
    });
}

QWidget* Bindings::WidgetOf(const Control* control) const {
    for (const auto& [widget, bound] : widgets_)
        if (bound == control) return widget;
    return nullptr;
}

void Bindings::Mirror() {
    if (!form_ || mirroring_) return;
    mirroring_ = true;
    // The focus moves first: a field that goes while it has the focus would pass it on to any other one.
    MirrorFocus();
    for (std::size_t place = 0; form_ && place < mirrors_.size(); ++place) mirrors_[place]();
    MirrorFocus();
    mirroring_ = false;
    QWidget* focus = root_->focusWidget();
    if (form_ && focus && focus->isVisibleTo(root_)) FocusIn(focus, Qt::OtherFocusReason);
}

void Bindings::MirrorFocus() {
    if (!form_ || !form_->ActiveControl || (active_ && !active_())) return;
    QWidget* wanted = WidgetOf(form_->ActiveControl);
    if (wanted && wanted->isVisibleTo(root_) && wanted->isEnabledTo(root_) && root_->focusWidget() != wanted)
        wanted->setFocus(Qt::OtherFocusReason);
}

void Bindings::Detach() {
    form_ = nullptr;
    mirrors_.clear();
    for (const auto& [widget, control] : widgets_) {
        widget->removeEventFilter(this);
        widget->disconnect(this);
    }
}

// A window that comes to the front has its focus where it was; the toolkit may have chosen another widget.
void Bindings::FocusIn(QWidget* widget, Qt::FocusReason reason) {
    if (mirroring_ || (active_ && !active_() && reason != Qt::MouseFocusReason)) return;
    for (const auto& [bound, control] : widgets_)
        if (bound == widget) form_->ActiveControl = control;
}

void Bindings::FocusOut(QWidget* widget, Qt::FocusReason reason) {
    // An open menu leaves the focus where it is.
    if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason) return;
    const auto field = fields_.find(widget);
    if (field == fields_.end()) return;
    if (!mirroring_) field->second.read();
    dispatch_.Later(this, [this, widget, reason] {
        if (!form_ || widget->hasFocus()) return; // it came back at once
        if (reason == Qt::ActiveWindowFocusReason && !AnotherWindowTookIt(*widget)) return;
        if (const auto& lostFocus = fields_.at(widget).events.lostFocus) lostFocus();
    });
}

bool Bindings::KeyToField(Field_& field, QObject* watched, QKeyEvent& event) {
    // A dialog takes its Esc before any of its fields.
    if (event.key() == Qt::Key_Escape && qobject_cast<QDialog*>(root_)) return false;
    field.read();
    if (int keyCode = KeyCodeOf(event); keyCode != key::None && field.events.keyDown) {
        Forward([&] { field.events.keyDown(keyCode); });
        if (keyCode == key::None || !form_) return true;
    }
    const int character = CharacterOf(event);
    if (character == key::None || !field.events.keyPress) return false;
    int keyAscii = character;
    Forward([&] { field.events.keyPress(keyAscii); });
    if (keyAscii == key::None || !form_) return true;
    if (keyAscii == character) return false;
    QKeyEvent other(QEvent::KeyPress, 0, event.modifiers() & Qt::ShiftModifier,
                    QString::fromUcs4(reinterpret_cast<const char32_t*>(&keyAscii), 1));
    passing_ = true;
    QCoreApplication::sendEvent(watched, &other);
    passing_ = false;
    return true;
}

// Characters that dead keys or an input method have composed pass the field's handler one by one, as typed
// ones do. What is still being composed is the field's own.
bool Bindings::ComposedToField(Field_& field, QObject* watched, const QInputMethodEvent& event) {
    if (!field.events.keyPress || event.commitString().isEmpty()) return false;
    passing_ = true;
    QInputMethodEvent composed; // ends the composing
    QCoreApplication::sendEvent(watched, &composed);
    for (const char32_t character : event.commitString().toUcs4()) {
        if (!form_) break;
        field.read();
        int keyAscii = static_cast<int>(character);
        Forward([&] { field.events.keyPress(keyAscii); });
        if (keyAscii == key::None || !form_) continue;
        QInputMethodEvent taken;
        taken.setCommitString(QString::fromUcs4(reinterpret_cast<const char32_t*>(&keyAscii), 1));
        QCoreApplication::sendEvent(watched, &taken);
    }
    passing_ = false;
    return true;
}

bool Bindings::KeyToList(const std::function<void(int& keyCode)>& keyDown, const QKeyEvent& event) {
    int keyCode = event.modifiers() == Qt::NoModifier ? KeyCodeOf(event) : key::None;
    if (keyCode == key::None || !keyDown) return false;
    Forward([&] { keyDown(keyCode); });
    return keyCode == key::None;
}

bool Bindings::eventFilter(QObject* watched, QEvent* event) {
    if (!form_ || passing_) return false;
    auto* widget = static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::FocusIn: FocusIn(widget, static_cast<QFocusEvent*>(event)->reason()); return false;
    case QEvent::FocusOut: FocusOut(widget, static_cast<QFocusEvent*>(event)->reason()); return false;
    case QEvent::KeyPress: {
        auto& key = static_cast<QKeyEvent&>(*event);
        if (const auto list = listKeys_.find(watched); list != listKeys_.end())
            return KeyToList(list->second, key);
        const auto field = fields_.find(watched);
        return field != fields_.end() && KeyToField(field->second, watched, key);
    }
    case QEvent::InputMethod: {
        const auto field = fields_.find(watched);
        return field != fields_.end() &&
               ComposedToField(field->second, watched, static_cast<QInputMethodEvent&>(*event));
    }
    default: return false;
    }
}

} // namespace dorvan
