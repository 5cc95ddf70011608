#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace dorvan {

// What a user says about the measure: in the dialogs, or on the command line. What is not said stays as the
// dialogs have it.
struct MeasureChoices {
    std::optional<std::int16_t> Measure = {}; // its code, 1 to 10
    std::string P = {};                       // exponent and root of the customized measure, as typed
    std::string R = {};
};

} // namespace dorvan
