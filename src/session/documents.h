#pragma once

#include "numbers/arrays.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

// The documents of the registry, and the tables in which documents travel.
namespace dorvan {

using FloatTable = Array2<float>;
using Names = Array1<std::string>;
using Flags = Array1<bool>;

// A missing value. Shown and filed as "N/A". A real -9999999 cannot be told from it.
inline constexpr float NaValue = -9999999.0f;
inline constexpr std::string_view NaText = "N/A";

// An empty cell of a sheet on its way from a file; analysis never meets one.
inline constexpr float EmptyValue = std::numeric_limits<float>::quiet_NaN();
inline bool IsEmptyValue(float value) { return std::isnan(value); }

// What `ChildWindow::TypeOfForm` holds.
namespace DocumentKind {
inline constexpr std::string_view Main = "MAIN";
inline constexpr std::string_view Data = "DATA";
inline constexpr std::string_view Matrix = "MATRIX";
inline constexpr std::string_view Diagram = "DIAGRAM";
inline constexpr std::string_view Bitmap = "BITMAP";
} // namespace DocumentKind

struct WindowState {
    bool Deleted = false; // the slot is free for reuse
    bool Dirty = false;   // the document has changes that no file holds
};

// A matrix of distances between n records. The cells are the plain text of 32-bit floats, with the process's
// decimal separator; whoever needs a number parses it again.
struct DistanceMatrix {
    Array1<std::string> Names; // 1..n
    Array2<std::string> Cells; // (1..n, 1..n)
    std::int16_t Size = 0;     // n
};

// The tables in which a document travels, all from 1. A reader fills them part by part; on failure they hold
// what was read so far, the parts that it did not reach as they were.
struct DocumentTables {
    Names RecordNames;
    Names VariableNames;
    FloatTable DataValues;     // (record, variable)
    FloatTable DistanceValues; // (record, record)
    Flags RecordHasNA;
    bool DataHasNA = false;
};

// The record behind one diagram.
struct DiagramDocument {
    std::int16_t RecCount = 0;
    std::int16_t VarCount = 0;
    std::int16_t DistType = 0; // the measure, 1 to 10
    FloatTable Matrix;         // distances in the diagram's order
    FloatTable Data;           // (record, variable) in the order of the making, never permuted by hand
    Array1<std::string> VariableNames; // 1..VarCount
    Array1<std::string> RecordNames;   // 1..RecCount
    Array1<float> SectionLimits{4};    // 1..4
    std::int16_t DiagType = 0;         // 1 greyscale, 2 dots, 3 classic
    Array2<std::int16_t> Classes;      // 5 nearest to 1 farthest, 6 no class, 0 not classified
    std::int16_t Par_P = 0;            // exponent of the customized measure
    std::int16_t Par_R = 0;            // its root
    bool NoData = false;               // made from a matrix: no data behind it
    Flags RecordHasNA;                 // 1..RecCount
};

} // namespace dorvan
