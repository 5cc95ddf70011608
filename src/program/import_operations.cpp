#include "program/registering.h"

namespace dorvan {

void RegisterImportOperations(Session&) {}

} // namespace dorvan
