#pragma once

#include "session/session.h"

namespace dorvan {

// Registers the two genetic orderings as the methods 3 and 4 of the session: each asks its options in its
// dialog, and runs behind its progress window, from which it can be cancelled. Events run at every yield; the
// window's texts are made and painted at most sixty times a second.
void AddGeneticOrderings(Session& session);

} // namespace dorvan
