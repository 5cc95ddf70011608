#include "program/registering.h"

namespace dorvan {

void RegisterPrintOperations(Session&) {}

} // namespace dorvan
