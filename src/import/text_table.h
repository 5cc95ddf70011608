#pragma once

#include "session/documents.h"

#include <cstdint>
#include <string_view>

namespace dorvan {

// What a table of delimited text says beside its numbers.
struct TextTableForm {
    char Separator = ';'; // or a tab
    bool FirstRowNames = true;
    bool FirstColumnNames = true;
};

// A table of records by variables. Names that a file does not have are empty.
struct TableOfRecords {
    Names RecordNames;
    Names VariableNames;
    FloatTable Values; // (record, variable)
};

// Delimited text (UTF-8) as a table: a line is a record, after one of names where there is such. Reads in two
// passes, so that the size is known, and can be refused, before anything is kept. The text has to outlive it.
class TextTable {
public:
    // Counts lines, and the fields of the line that sets the width: the first, or behind names the second.
    TextTable(std::string_view text, const TextTableForm& form);

    std::int64_t Records() const;   // -1 for an empty text of which a line of names is asked
    std::int64_t Variables() const; // below 1 where no field is left for one

    // Names as they stand; further fields of a line are not looked at. Fails with a FileFault that names line
    // and field: where nothing can be sized, for too few fields and for a field that is no number in either
    // notation of decimals.
    TableOfRecords Read(char decimalSeparator) const;

private:
    void ExpectSize() const;

    std::string_view text_;
    TextTableForm form_;
    std::int64_t lines_ = 0;
    std::int64_t fields_ = 0; // of the line that sets the width; 0 where it is missing
};

} // namespace dorvan
