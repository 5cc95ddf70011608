#pragma once

#include "session/documents.h"

namespace dorvan {

// A data sheet of n records by m variables as values: what its grid says, cell by cell, as text.
struct SheetTable {
    Names RecordNames;         // n
    Names VariableNames;       // m
    Array2<std::string> Cells; // (record, variable); a number or "N/A", or whatever the user left there

    SheetTable() = default;
    SheetTable(std::int32_t records, std::int32_t variables)
        : RecordNames(records), VariableNames(variables), Cells(records, variables) {}

    std::int32_t RecordCount() const { return Cells.Rows(); }
    std::int32_t VariableCount() const { return Cells.Columns(); }
};

} // namespace dorvan
