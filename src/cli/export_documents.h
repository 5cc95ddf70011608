#pragma once

#include "cli/subcommand.h"

// What documents are exported as by the program's own commands and dialogs.
namespace dorvan::cli {

Subcommand TextExport();
Subcommand ExcelExport();

} // namespace dorvan::cli
