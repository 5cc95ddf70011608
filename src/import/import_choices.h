#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What a user says about an import: in the dialogs, or on the command line. What is not said stays as the
// dialogs have it.
namespace dorvan {

struct TextImportChoices {
    std::optional<std::int16_t> Separator = {}; // SemicolonSeparator or TabSeparator
    std::optional<bool> VariableNames = {};     // in the first row
    std::optional<bool> RecordNames = {};       // in the first column
};

struct MatrixImportChoices {
    std::optional<std::int16_t> Separator = {};
    std::optional<bool> RecordNames = {};
    std::optional<std::int16_t> Precision = {}; // decimals that are kept
};

// Fields of the table by their names.
struct DBaseImportChoices {
    std::vector<std::string> Fields = {}; // numeric, in the order of the variables; none: every one
    std::string RecordNames = {};         // the field of the names; empty: the first
};

} // namespace dorvan
