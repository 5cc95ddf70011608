#pragma once

#include "platform/controls.h"
#include "session/documents.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The measures of distance between two records: one table, from which the dialogs, the command line, the
// computing and the tests take all that differs between them.
namespace dorvan {

// By the code numbers that documents file.
enum class DistanceType : std::int16_t {
    Henzel = 1,
    Czekanowski = 2,
    Euclidean = 3,
    Manhattan = 4,
    Chebychev = 5,
    Customized = 6,
    DfDD = 7,
    LanceAndWilliams = 8,
    Jaccard = 9,
    YulesQ = 10,
};

// Sessions and documents hold the code number, which may be that of no measure.
constexpr bool operator==(std::int16_t code, DistanceType type) { return code == std::int16_t(type); }

// The data that a measure is meant for, in the order of the dialogs' list. Nothing holds a sheet to it.
enum class DataKind { Numerical, NumericalWithNA, Binary };

// A measure with the parameters of the customized one.
struct Measure {
    DistanceType Type{}; // one that is not in the table gives distance 0
    std::int16_t Par_P = 0;
    std::int16_t Par_R = 0;
};

// Two records of M values each.
struct RecordPair {
    const float* X;
    const float* Y;
    std::int32_t M;
};

struct MeasureRow {
    // Fails as DistanceBetween does.
    using Between = float (*)(const RecordPair& pair, const Measure& measure);
    // Many pairs at once (see side_by_side.h).
    using SideBySide = void (*)(FloatTable& distances, const FloatTable& values, std::int32_t m,
                                const Measure& measure);

    DistanceType Code;
    DataKind Kind;
    const char* ListText;    // in the dialogs
    const char* Name;        // on the command line
    bool KnowsMissingValues; // skips them; a measure that does not takes the marker for a number
    Between Distance;
    SideBySide FastDistances; // null: the measure has no fast kernel
};

// In the order of their codes, which within a data kind is the order of the dialogs' list.
std::span<const MeasureRow> Measures();

// Null when there is none.
const MeasureRow* FindMeasure(std::int16_t code);
const MeasureRow* FindMeasure(std::string_view nameOrNumber); // "henzel" or "1"

// A code of no measure is taken for one that knows them where it lies below the table's.
bool KnowsMissingValues(std::int16_t code);

// The two drop-down lists of the options dialogs: "numerical data", "numerical data with NA", "binary", and
// the texts of the measures of a data kind, both counted from 0.
const std::vector<std::string>& DataKinds();
const std::vector<std::string>& MeasuresOfKind(int dataKind);

// The code number of the measure at a position of a data kind's list.
std::int16_t MeasureCode(int dataKind, int position);

// Where a code number stands: {data kind, position}. Fails with InvalidProcedureCall for that of no measure.
struct MeasurePlace {
    int DataKind = 0;
    int Position = 0;
};
MeasurePlace PlaceOfMeasure(std::int16_t code);

// Selects it in the lists of a dialog, as a user would.
void SelectMeasure(std::int16_t code, ComboBox& kinds, ComboBox& measures);

} // namespace dorvan
