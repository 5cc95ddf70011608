#pragma once

#include "cli/subcommand.h"

// What a diagram is exported as. They draw by themselves and open no dialog.
namespace dorvan::cli {

Subcommand ImageExport();
Subcommand MetafileExport();

} // namespace dorvan::cli
