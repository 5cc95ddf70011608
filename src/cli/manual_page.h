#pragma once

#include "cli/subcommand.h"

#include <string>
#include <vector>

namespace dorvan::cli {

// The manual page of the program, in roff, from what it says of itself and its subcommands. `date` is that of
// the release, `version` as in "Dorvan 3.3.44".
std::string ManualPage(const std::string& description, const std::vector<Subcommand>& subcommands,
                       const std::string& version, const std::string& date);

} // namespace dorvan::cli
