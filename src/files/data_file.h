#pragma once

#include "files/file_text.h"
#include "files/line_cursor.h"
#include "session/documents.h"
#include "sheet/sheet_table.h"

#include <string>
#include <string_view>

// The bytes of a data file (.mdt): a sheet of n records by m variables.
namespace dorvan {

// The first line tells the text format from the older binary one. Fails with a FileFault for an empty file.
bool IsCurrentDataFile(std::string_view bytes);

// Fill `RecordNames` (n, at most 15 characters each), `VariableNames` (m, at most 8) and `DataValues`
// (n by m), and return the description. Fail with a FileFault. A writer leaves an empty field where a cell
// was empty or no number; only where they are taken does such a file read, with EmptyValue in their places.
std::string ParseDataFile(std::string_view bytes, const FileText& text, DocumentTables& tables,
                          EmptyFields empty = EmptyFields::Refused);
std::string ParseOldDataFile(std::string_view bytes, const FileText& text, DocumentTables& tables);

// A cell that is neither a number nor "N/A" gives an empty field.
std::string ComposeDataFile(const SheetTable& sheet, std::string_view description, const FileText& text);

} // namespace dorvan
