#pragma once

#include "cli/picture.h"
#include "cli/requests.h"

#include <string>

// The subcommands of dorvan-cli. Each gives the exit status: 0 done, 1 refused or failed, with one line on
// standard error. Nothing is written on failure.
namespace dorvan::cli {

int RunMatrix(const std::string& sheet, const std::string& out, const Choices& choices,
              const Surroundings& surroundings);
int RunDiagram(const std::string& input, const std::string& out, const Choices& choices,
               const Surroundings& surroundings);
int RunConvert(const std::string& in, const std::string& out, const Surroundings& surroundings);
int RunInfo(const std::string& file, const Surroundings& surroundings);
int RunPicture(const std::string& diagram, const std::string& out, const PictureChoices& choices,
               const Surroundings& surroundings);

} // namespace dorvan::cli
