#include "program/registering.h"
#include "sheet/new_data_sheet.h"

namespace dorvan {

void RegisterSheetOperations(Session& session) { Register(session, "NewDataSheet", NewDataSheet); }

} // namespace dorvan
