#pragma once

#include "session/session.h"

#include <QObject>

#include <string>

class QSessionManager;

namespace dorvan {

// The ends of a run that its user did not ask for: a run-time failure, a signal, the end of the desktop
// session. Documents that no file holds are rescued first.
class EndOfRun : public QObject {
public:
    // Listens for SIGTERM, SIGHUP and the end of the desktop session. One at a time.
    explicit EndOfRun(const Session& session);
    ~EndOfRun() override;

    // Names the failure and the rescued copies in a box, and ends the process with a status other than 0.
    [[noreturn]] void OnFailure(const std::string& what);

private:
    void OnSignal();

    // What a message says of the copies; empty when there was nothing to rescue.
    std::string Rescue();

    const Session& session_;
    bool ending_ = false; // a failure on the way out must not begin all over
};

} // namespace dorvan
