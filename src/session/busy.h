#pragma once

#include "session/session.h"

namespace dorvan {

// A diagram is being made. Silent.
bool IsBusy(const Session& session);

// The same for the first line of a command: beeps when it refuses.
//
//     void MakeMatrix(Session& session) {
//         if (RefusedWhileBusy(session)) return;
bool RefusedWhileBusy(Session& session);

} // namespace dorvan
