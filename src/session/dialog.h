#pragma once

#include "platform/form.h"
#include "session/session.h"

#include <cstdint>
#include <string>
#include <utility>

namespace dorvan {

// What `DialogOutcome` and `OutputDialogOutcome` hold once a dialog has closed.
namespace DialogResult {
inline constexpr std::int16_t Accepted = 1;
inline constexpr std::int16_t Cancelled = -99;
inline constexpr std::int16_t PrintCancelled = 0;
} // namespace DialogResult

// A modal dialog of the session that reports through `DialogOutcome`.
//
//     class frmImportText : public Dialog {
//     public:
//         explicit frmImportText(Session& session) : Dialog("frmImportText", "Import text", session) {}
//         CommandButton Command1{"Command1", "Cancel"};
//         void Command1_Click() { Close(DialogResult::Cancelled); }
//         void CancelCommand() override { Command1_Click(); }
//     };
//
//     if (!Accepted<frmImportText>(session)) return;
class Dialog : public Form {
public:
    Dialog(std::string name, std::string caption, Session& session)
        : Form(std::move(name), std::move(caption)), session_(session) {}

protected:
    void Close(std::int16_t outcome) {
        session_.DialogOutcome = outcome;
        Hide();
    }

    Session& session_;
};

// Shows the window of that class modally, loaded when it is not yet.
template <class Window> Window& ShowModally(Session& session) {
    Window& window = session.forms.Load<Window>(session);
    session.platform.forms.showModal(window);
    return window;
}

// Shows the dialog of that class modally; false when it was cancelled.
template <class Window> bool Accepted(Session& session) {
    ShowModally<Window>(session);
    return session.DialogOutcome != DialogResult::Cancelled;
}

// The same for the dialogs of export and print, which report through `OutputDialogOutcome`.
template <class Window> bool AcceptedForOutput(Session& session) {
    ShowModally<Window>(session);
    return session.OutputDialogOutcome == DialogResult::Accepted;
}

} // namespace dorvan
