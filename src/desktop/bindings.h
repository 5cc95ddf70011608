#pragma once

#include "desktop/event_dispatch.h"
#include "platform/form.h"
#include "platform/multi_list_box.h"

#include <QObject>

#include <functional>
#include <map>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QInputMethodEvent;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QWidget;

namespace dorvan {

// What a field's owner wants to hear of. A key handler swallows a key by setting its code to 0, or puts
// another character in its place.
struct FieldEvents {
    std::function<void()> change;
    std::function<void(int& keyAscii)> keyPress;
    std::function<void(int& keyCode)> keyDown;
    std::function<void()> lostFocus;
};

// What the owner of a list of several selected lines wants to hear of.
struct MultiListEvents {
    std::function<void()> doubleClick; // on the line of ListIndex
    std::function<void(int& keyCode)> keyDown;
};

// Ties the widgets of one face to the controls of its form: names, captions, contents, enabled and shown
// state, focus. User input goes into the control, then to the handler; Mirror() brings the controls back into
// the widgets.
class Bindings : public QObject {
public:
    using Handler = std::function<void()>;

    Bindings(Form& form, EventDispatch& dispatch, QWidget* root);

    // Any widget that only has a name, a shown and an enabled state (frames, panels, grids).
    void Plain(QWidget* widget, const Control& control, const QString& accessibleName = {});
    void Text(QLabel* label, const Control& control);
    void Field(QLineEdit* field, TextBox& control, const QString& accessibleName, FieldEvents events = {});
    void Field(QPlainTextEdit* field, TextBox& control, const QString& accessibleName,
               FieldEvents events = {});
    void Button(QPushButton* button, const Control& control, Handler click);
    void Option(QRadioButton* button, OptionButton& control, Handler click = {});
    void Check(QCheckBox* box, CheckBox& control, Handler click = {});
    void Combo(QComboBox* box, ListBox& control, const QString& accessibleName, Handler click = {});
    void List(QListWidget* list, ListBox& control, const QString& accessibleName, Handler click = {});
    void MultiList(QListWidget* list, MultiListBox& control, const QString& accessibleName,
                   MultiListEvents events);

    // A path: shortened in the middle to the label's width, whole in its tool tip and for a screen reader.
    void Path(QLabel* label, const Control& control);

    // `bar` fills as far over its range as its control does over `track`. The widget has the name of `bar`.
    void Progress(QProgressBar* widget, const Bar& track, const Bar& bar, const QString& accessibleName);

    // Run at each mirroring, after the controls.
    void Also(Handler mirror) { mirrors_.push_back(std::move(mirror)); }

    // Of several windows with bindings only the active one may move the focus. Always, if not set.
    void MirrorFocusWhile(std::function<bool()> active) { active_ = std::move(active); }

    void Mirror();

    // The form is about to go: nothing is forwarded or mirrored any more.
    void Detach();
    bool Attached() const { return form_ != nullptr; }

    QWidget* WidgetOf(const Control* control) const;
    EventDispatch& Dispatch() { return dispatch_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Field_ {
        TextBox* control;
        FieldEvents events;
        Handler read; // the widget's text and selection into the control
    };

    void MirrorFocus();
    void Name(QWidget* widget, const Control& control, const QString& accessibleName);
    void Forward(const Handler& handler);
    bool KeyToField(Field_& field, QObject* watched, QKeyEvent& event);
    bool ComposedToField(Field_& field, QObject* watched, const QInputMethodEvent& event);
    bool KeyToList(const std::function<void(int& keyCode)>& keyDown, const QKeyEvent& event);
    void FocusIn(QWidget* widget, Qt::FocusReason reason);
    void FocusOut(QWidget* widget, Qt::FocusReason reason);

    Form* form_;
    EventDispatch& dispatch_;
    QWidget* root_;
    std::function<bool()> active_;
    std::vector<Handler> mirrors_;
    std::map<const QObject*, Field_> fields_;
    std::map<const QObject*, std::function<void(int& keyCode)>> listKeys_;
    std::vector<std::pair<QWidget*, const Control*>> widgets_;
    bool passing_ = false;   // a key on its way into a field after its handler
    bool mirroring_ = false; // focus that moves now follows the form, and not the other way round
};

// The code of a key event as the windows' key down handlers know it; 0 when they know none.
int KeyCodeOf(const QKeyEvent& event);

// The character of a key event: 13, 8 and 27 for Enter, Backspace and Esc; 0 for a key without one.
int CharacterOf(const QKeyEvent& event);

} // namespace dorvan
