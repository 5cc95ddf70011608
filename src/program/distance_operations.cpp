#include "distance/making_matrix.h"
#include "program/registering.h"

namespace dorvan {

void RegisterDistanceOperations(Session& session) { Register(session, "MakeMatrix", MakeMatrix); }

} // namespace dorvan
