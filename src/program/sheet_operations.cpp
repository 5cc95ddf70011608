#include "program/registering.h"
#include "sheet/new_data_sheet.h"
#include "sheet/sheet_clipboard.h"
#include "sheet/standardization.h"
#include "sheet/structure_commands.h"

namespace dorvan {

void RegisterSheetOperations(Session& session) {
    Register(session, "NewDataSheet", NewDataSheet);
    Register(session, "AddRecord", AddRecord);
    Register(session, "DeleteRecord", DeleteRecord);
    Register(session, "AddVariable", AddVariable);
    Register(session, "EditVariables", EditVariables);
    Register(session, "DeleteVariable", DeleteVariable);
    Register(session, "Standardization", Standardization);
    Register(session, "CopySheetCells", CopySheetCells);
    Register(session, "PasteCells", PasteCells);
}

} // namespace dorvan
