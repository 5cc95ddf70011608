#include "import/text_matrix.h"

#include "files/line_cursor.h"
#include "import/field_cursor.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace dorvan {

namespace {

// The last digit of the smallest 32-bit float stands here: further decimals are zeros.
constexpr std::int16_t MostDecimals = 149;

std::string RoundingPattern(std::int16_t precision) {
    if (precision <= 0) return "#####0";
    return "#0." + std::string(std::size_t(std::min(precision, MostDecimals)), '0');
}

} // namespace

TextMatrix::TextMatrix(std::string_view text, const TextMatrixForm& form)
    : text_(text), form_(form), pattern_(RoundingPattern(form.Precision)) {
    LineCursor lines(text);
    if (lines.Remaining() > 0) {
        const std::string_view line = lines.Next();
        fields_ = 1 + std::count(line.begin(), line.end(), form.Separator);
    }
    size_ = fields_ - (form.FirstColumnNames ? 1 : 0);
}

NamedDistances TextMatrix::Read(char decimalSeparator) const {
    LineCursor lines(text_);
    if (fields_ == 0) lines.Next(); // fails: the text is empty
    if (size_ < 1)
        throw FileFault::AtLine(1, "the record's name is the only field, none is left for a value");
    const auto size = static_cast<std::int32_t>(size_);
    NamedDistances matrix{Names(size), FloatTable(size, size)};
    while (lines.Remaining() > 0) {
        const std::string_view line = lines.Next();
        if (lines.LineNumber() > size_) throw TooManyLines();
        ReadRow(line, static_cast<std::int32_t>(lines.LineNumber()), matrix, decimalSeparator);
    }
    return matrix;
}

void TextMatrix::ReadRow(std::string_view line, std::int32_t row, NamedDistances& matrix,
                         char decimalSeparator) const {
    FieldCursor fields(line, form_.Separator, row, fields_);
    matrix.RecordNames(row) =
        form_.FirstColumnNames ? std::string(fields.Next()) : fmt::format("Record {}", row);
    for (std::int32_t column = 1; column <= size_; ++column) {
        const float value = std::abs(fields.NextNumber(decimalSeparator));
        matrix.Distances(row, column) =
            ParseSheetNumber(FormatPattern(value, pattern_, decimalSeparator), decimalSeparator);
    }
}

} // namespace dorvan
