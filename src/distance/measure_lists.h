#pragma once

#include "platform/controls.h"

#include <cstdint>
#include <string>
#include <vector>

// The two drop-down lists of the options dialogs: data kinds, and the measures of each.
namespace dorvan {

// "numerical data", "numerical data with NA", "binary".
const std::vector<std::string>& DataKinds();

// The texts of the measures of a data kind, both counted from 0.
const std::vector<std::string>& MeasuresOfKind(int dataKind);

// The code number (1 to 10) of the measure at a position of a data kind's list.
std::int16_t MeasureCode(int dataKind, int position);

// Where a code number stands: {data kind, position}. Fails with InvalidProcedureCall outside 1 to 10.
struct MeasurePlace {
    int DataKind = 0;
    int Position = 0;
};
MeasurePlace PlaceOfMeasure(std::int16_t code);

// Selects it in the lists of a dialog, as a user would.
void SelectMeasure(std::int16_t code, ComboBox& kinds, ComboBox& measures);

} // namespace dorvan
