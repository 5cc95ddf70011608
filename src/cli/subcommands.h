#pragma once

#include "cli/subcommand.h"

#include <vector>

namespace dorvan::cli {

// All of them, in the order of the help.
std::vector<Subcommand> Subcommands();

} // namespace dorvan::cli
