#include "export/worksheet.h"

#include "export/export_files.h"

namespace dorvan {

namespace {

constexpr const char* TypeFace = "Courier New";
constexpr std::int32_t AtTheLeft = 1; // alignments
constexpr std::int32_t AtTheRight = 3;

} // namespace

std::string PickWorksheet(Session& session) {
    return PickFileToSave(session, ExcelFileFilters(), " - Export to Excel", "");
}

Worksheet::Worksheet(Session& session, const std::string& path)
    : session_(session), excel_(FileTextOf(session)) {
    excel_.CreateFile(path);
    excel_.PrintGridLines(true);
    for (const std::int16_t margin : {40, 38, 39, 41}) excel_.SetMargin(margin, 1.5);
    excel_.SetDefaultRowHeight(14);
    for (const std::int32_t attributes : {0, 1, 5, 3}) excel_.SetFont(TypeFace, 10, attributes);
    SetColumnWidth(1, 1, 18);
}

void Worksheet::SetColumnWidth(std::int32_t first, std::int32_t last, std::int16_t width) {
    excel_.SetColumnWidth(first, last, width);
}

void Worksheet::Text(std::int32_t row, std::int32_t column, const std::string& text) {
    excel_.WriteValue(CellType::Text, 0, AtTheLeft, 0, row, column, text);
}

void Worksheet::Number(std::int32_t row, std::int32_t column, const std::string& text) {
    excel_.WriteValue(CellType::Number, 0, AtTheRight, 0, row, column, text);
}

void Worksheet::Integer(std::int32_t row, std::int32_t column, std::int16_t value) {
    excel_.WriteValue(CellType::Integer, 0, AtTheRight, 0, row, column, std::int32_t(value));
}

void Worksheet::Close() {
    excel_.CloseFile();
    session_.Of<FileValues>().SilentFailure = excel_.DiskFailure();
}

} // namespace dorvan
