#pragma once

#include "platform/form.h"
#include "session/session.h"

#include <string>
#include <utility>

namespace dorvan {

// The line at the foot of the main window, in which what this program adds of its own tells its outcome, and
// what the user looks at is told (see program/status_line.h).
//
//     StatusText(session) = "...";
class StatusBar : public Form {
public:
    explicit StatusBar(Session&) : Form("StatusBar") {}

    Label Text{"StatusText"};       // until the next command
    Label Cell{"StatusCell"};       // the cell under the pointer, else the current one
    Label Window{"StatusWindow"};   // what the active window shows
    Label Unsaved{"StatusUnsaved"}; // its document stands in no file; empty: it does, or nobody knows
};

inline std::string& StatusText(Session& session) {
    return session.forms.Load<StatusBar>(session).Text.Caption;
}

// A refusal that sounds alone: the reason stands in the line.
inline void BeepBecause(Session& session, std::string reason) {
    session.platform.signals.beep();
    StatusText(session) = std::move(reason);
}

} // namespace dorvan
