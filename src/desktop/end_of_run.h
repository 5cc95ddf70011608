#pragma once

#include "desktop/crash_guard.h"
#include "program/rescue.h"
#include "session/session.h"

#include <QObject>

#include <memory>
#include <string>

class QSessionManager;

namespace dorvan {

// The ends of a run that its user did not ask for: a run-time failure, a signal, the end of the desktop
// session, a lost connection to the screen, a crash. Documents that no file holds are rescued first.
class EndOfRun : public QObject {
public:
    // Listens for SIGTERM, SIGHUP, SIGINT, SIGQUIT, crashes and the end of the desktop session; SIGPIPE and
    // SIGXFSZ become errors of the write that raised them. One at a time.
    explicit EndOfRun(const Session& session);
    ~EndOfRun() override;

    // Names the failure and the rescued copies in a box, and ends the process with a status other than 0.
    [[noreturn]] void OnFailure(const std::string& what);

private:
    void OnSignal();

    // What a message says of the copies; empty when there was nothing to rescue.
    std::string Rescue();

    const Session& session_;
    RescueFolders folders_;
    std::unique_ptr<char[]> reserve_; // memory for the rescue, should there be no other
    bool ending_ = false;             // a failure on the way out must not begin all over
    CrashGuard crashes_;
};

// Where the program keeps what it needs from one run to the next: "dorvan" in XDG_STATE_HOME.
std::string StateFolder();

} // namespace dorvan
