#pragma once

#include "files/file_text.h"
#include "session/documents.h"

#include <cstdint>
#include <string>
#include <string_view>

// The bytes of a diagram file (.dgr): a diagram of n records, with the data of m variables behind it unless
// it was made from a matrix.
namespace dorvan {

// What a diagram file says beside its tables.
struct DiagramHeader {
    std::string Description;
    std::int16_t Type = 0; // 0: with data
    std::int16_t RecCount = 0;
    std::int16_t VarCount = 0;
    Array1<float> SectionLimits{4};
    std::int16_t DistType = 0;
    std::int16_t DiagType = 0; // 0 from the older format, which has none
    std::int16_t Par_R = 0;
    std::int16_t Par_P = 0;
};

// The first line tells the text format from the older binary one. Fails with a FileFault for an empty file.
bool IsCurrentDiagramFile(std::string_view bytes);

// Fills the tables: `RecordNames`, `RecordHasNA` and `DistanceValues`, and with data also `VariableNames` and
// `DataValues`. `DataHasNA` is set for a missing value and never cleared. Fails with a FileFault.
DiagramHeader ParseDiagramFile(std::string_view bytes, const FileText& text, DocumentTables& tables);

// The older format holds data and no distances: fills all tables but `DistanceValues`. `Par_R` and `Par_P`
// stand in the file of a customized measure only; else they are 0. Fails with a FileFault.
DiagramHeader ParseOldDiagramFile(std::string_view bytes, const FileText& text, DocumentTables& tables);

// The diagram of a file, not classified yet. Data and names of the variables are left out where it has none.
DiagramDocument DiagramOf(const DiagramHeader& header, DocumentTables tables);

// Fails with Overflow for a value that is not finite.
std::string ComposeDiagramFile(const DiagramDocument& document, std::string_view description,
                               const FileText& text);

} // namespace dorvan
