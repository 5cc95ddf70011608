#include "session/busy.h"

namespace dorvan {

bool IsBusy(const Session& session) { return session.DiagramBusy == 1; }

bool RefusedWhileBusy(Session& session) {
    if (!IsBusy(session)) return false;
    session.platform.signals.beep();
    return true;
}

} // namespace dorvan
