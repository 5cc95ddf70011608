#pragma once

#include "platform/controls.h"

#include <string>

namespace dorvan {

// A window or dialog without its picture. A face looks its class up by Name, lays the controls out, forwards
// events to the handlers and mirrors the controls after each.
class Form {
public:
    explicit Form(std::string name, std::string caption = {})
        : Name(std::move(name)), Caption(std::move(caption)) {}
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string Name; // "frmPrzedzal"
    std::string Caption;
    bool Visible = false;

    // The control that has the focus: told by the face, or set by a rule that moves the focus.
    const Control* ActiveControl = nullptr;

    virtual void Form_Load() {}              // once, when the form is created
    virtual void Form_Show() {}              // each time it comes up
    virtual void Form_Resize() {}            // with its showing, and when the user sizes it
    virtual void CancelCommand() { Hide(); } // Esc, or the form's own close control

    void SetFocus(const Control& control) { ActiveControl = &control; }
    void Hide() { Visible = false; }
};

} // namespace dorvan
