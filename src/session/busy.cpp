#include "session/busy.h"

#include "session/status_bar.h"

namespace dorvan {

bool IsBusy(const Session& session) { return session.DiagramBusy == 1; }

bool RefusedWhileBusy(Session& session) {
    if (!IsBusy(session)) return false;
    BeepBecause(session, "A diagram is being made: this command has to wait.");
    return true;
}

} // namespace dorvan
