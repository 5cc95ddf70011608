#include "program/registering.h"

namespace dorvan {

void RegisterExportOperations(Session&) {}

} // namespace dorvan
