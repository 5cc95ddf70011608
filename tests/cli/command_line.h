#pragma once

#include <string>
#include <vector>

namespace dorvan::test {

struct Outcome {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs the built dorvan-cli with its arguments; `environment` holds settings such as "LC_ALL=C".
Outcome runCli(const std::vector<std::string>& arguments, const std::vector<std::string>& environment = {});

// The built program.
std::string programPath();

std::string sample(const std::string& name);

} // namespace dorvan::test
