#pragma once

#include "export/excel_file.h"
#include "session/session.h"

#include <cstdint>
#include <string>

namespace dorvan {

// Asks for the file of a worksheet; empty when cancelled.
std::string PickWorksheet(Session& session);

// A worksheet with the settings that all documents share. Rows and columns count from 1. The results of its
// operations are not looked at: a cell that cannot be written stays empty.
class Worksheet {
public:
    Worksheet(Session& session, const std::string& path);

    void SetColumnWidth(std::int32_t first, std::int32_t last, std::int16_t width); // characters
    void Text(std::int32_t row, std::int32_t column, const std::string& text);
    void Number(std::int32_t row, std::int32_t column, const std::string& text);
    void Integer(std::int32_t row, std::int32_t column, std::int16_t value);

    // The file stands under its name. Where the disk did not take it, `SilentFailure` tells why.
    void Close();

private:
    Session& session_;
    ExcelFile excel_;
};

} // namespace dorvan
