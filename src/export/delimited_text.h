#pragma once

#include "files/file_text.h"
#include "platform/grid.h"
#include "session/documents.h"

#include <cstdint>
#include <string>

// Documents as delimited text: lines in the code page, ended by CR LF. Texts go out as they stand: nothing is
// quoted, and no number is converted.
namespace dorvan {

// ';', ',' and tab of the separators 1, 2 and 3.
char SeparatorCharacter(std::int16_t separator);

// A line for each record, of its name and its values. With names, a line of the variables' names before
// them: it has no field for the record's name, and none for the empty names that it would begin with.
std::string SheetAsText(const Grid& sheet, char separator, bool names, const CodePage& codes);

// A line for each record, of its name and its distances; no header.
std::string MatrixAsText(const DistanceMatrix& matrix, char separator, const CodePage& codes);

} // namespace dorvan
