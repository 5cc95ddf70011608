#pragma once

#include "desktop/bindings.h"
#include "platform/form.h"

#include <QDialog>

#include <memory>

class QFormLayout;
class QGroupBox;
class QSpacerItem;
class QVBoxLayout;

namespace dorvan {

// A dialog on the screen. Esc and its close control are the form's CancelCommand; it goes when the form is no
// longer Visible.
class FormFace : public QDialog {
public:
    FormFace(Form& form, EventDispatch& dispatch, QWidget* parent);

    // Comes up, and returns once the form is hidden.
    void RunModal();

    // Off the screen for good, and deleted once no event of its own is under way.
    void Retire();

    Form& Shown() { return form_; }
    Bindings& Binder() { return *bindings_; }

    // The helpers of who lays the dialog out.
    QVBoxLayout& Column() { return *column_; }
    QFormLayout* AddRows();
    // Lines of rows, with the form's own label before the field or widget.
    QLineEdit* AddField(QFormLayout* rows, const Label& label, TextBox& control, FieldEvents events);
    void AddRow(QFormLayout* rows, const Label& label, QWidget* widget);
    QLabel* AddLabel(const Control& control);
    QGroupBox* AddFrame(const Frame& frame);
    // A frame with a chosen path and the button that chooses it.
    void AddFile(const Frame& frame, const Label& path, const CommandButton& browse, Bindings::Handler click);
    QLabel* AddNote(const QString& text);
    // The row of buttons at the bottom; the first one is the default.
    void AddButtons(const std::vector<std::pair<const CommandButton*, Bindings::Handler>>& buttons);

    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void Mirror();
    void MirrorTitle();

    Form& form_;
    EventDispatch& dispatch_;
    bool retired_ = false;
    Bindings* bindings_;
    QVBoxLayout* column_;
    QSpacerItem* titleRoom_; // has no height
};

} // namespace dorvan
