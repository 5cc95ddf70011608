#pragma once

#include "import/modDBF.h"
#include "import/text_table.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dorvan {

// What is taken out of a table: numeric fields as variables, and a field as the source of the records' names.
struct DBaseSelection {
    std::vector<std::string> Variables; // names of fields
    std::optional<std::string> RecordName;
};

struct DBaseRecords {
    TableOfRecords Table;
    std::int32_t Deleted = 0; // records that are marked as deleted
};

// The first `count` records of an opened table; a variable's name is cut to 8 characters. A deleted record,
// and one with neither mark (for which `unreadable` is called, with its number), stays at zero and without a
// name. The names of the records are judged together as to how they are written. Fails with a FileFault that
// names record and field for a value that is no number, and where nothing can be sized (count below 1).
DBaseRecords ReadDBaseRecords(modDBF& table, std::string_view file, const DBaseSelection& selection,
                              std::int32_t count, char decimalSeparator, const TextCodes& codes,
                              const std::function<void(std::int32_t)>& unreadable);

} // namespace dorvan
