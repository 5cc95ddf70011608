#include "export/delimited_text.h"

#include "numbers/runtime_failure.h"
#include "numbers/text.h"

namespace dorvan {

namespace {

constexpr std::string_view LineEnd = "\r\n";

std::string LineOfNames(const Grid& sheet, char separator) {
    std::string line;
    for (int column = 2; column < sheet.Columns(); ++column) {
        if (!line.empty()) line += separator;
        line += TrimSpaces(sheet.Text(0, column));
    }
    return line;
}

} // namespace

char SeparatorCharacter(std::int16_t separator) {
    switch (separator) {
    case 1: return ';';
    case 2: return ',';
    case 3: return '\t';
    default: throw RuntimeFailure(Failure::InvalidProcedureCall, "a separator");
    }
}

std::string SheetAsText(const Grid& sheet, char separator, bool names, const CodePage& codes) {
    std::string text;
    if (names) text.append(LineOfNames(sheet, separator)).append(LineEnd);
    for (int row = 1; row < sheet.Rows(); ++row) {
        for (int column = 1; column < sheet.Columns(); ++column) {
            if (column > 1) text += separator;
            text += sheet.Text(row, column);
        }
        text += LineEnd;
    }
    return codes.fromUtf8(text);
}

std::string MatrixAsText(const DistanceMatrix& matrix, char separator, const CodePage& codes) {
    std::string text;
    for (std::int32_t row = 1; row <= matrix.Size; ++row) {
        text += matrix.Names(row);
        for (std::int32_t column = 1; column <= matrix.Size; ++column) {
            text += separator;
            text += matrix.Cells(row, column);
        }
        text += LineEnd;
    }
    return codes.fromUtf8(text);
}

} // namespace dorvan
