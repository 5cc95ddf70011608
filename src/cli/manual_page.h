#pragma once

#include <string>

namespace CLI {
class App;
}

namespace dorvan::cli {

// The manual page of the program, in roff, from what it says of its own subcommands and options. `date` is
// that of the release, `version` as in "Dorvan 3.3.44".
std::string ManualPage(const CLI::App& program, const std::string& version, const std::string& date);

} // namespace dorvan::cli
