#pragma once

#include "platform/form.h"
#include "session/session.h"

namespace dorvan {

// The line at the foot of the main window, in which what this program adds of its own tells its outcome.
//
//     StatusText(session) = "...";
class StatusBar : public Form {
public:
    explicit StatusBar(Session&) : Form("StatusBar") {}

    Label Text{"StatusText"};
};

inline std::string& StatusText(Session& session) {
    return session.forms.Load<StatusBar>(session).Text.Caption;
}

} // namespace dorvan
