#pragma once

#include <cstdint>
#include <optional>

namespace dorvan {

// What a user says about a text export: in the dialogs, or on the command line. What is not said stays as the
// dialogs have it.
struct TextChoices {
    std::optional<std::int16_t> Separator = {}; // 1 semicolon, 2 comma, 3 tab
    std::optional<bool> VariableNames = {};     // as a first line, of a sheet
};

} // namespace dorvan
