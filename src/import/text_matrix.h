#pragma once

#include "session/documents.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dorvan {

// What a matrix of delimited text says beside its numbers.
struct TextMatrixForm {
    char Separator = ';'; // or a tab
    bool FirstColumnNames = true;
    std::int16_t Precision = 3; // decimals that are kept; 0 and below: none
};

struct NamedDistances {
    Names RecordNames;
    FloatTable Distances; // square
};

// A line beyond the width of the matrix.
struct TooManyLines {};

// Delimited text (UTF-8) as a square matrix, a line a row. The text has to outlive it.
class TextMatrix {
public:
    // The first line sets the size.
    TextMatrix(std::string_view text, const TextMatrixForm& form);

    std::int64_t Size() const { return size_; } // below 1 where no field is left for a value

    // The values without their signs, rounded to the precision, halves away from zero. Rows that the text
    // does not have stay 0, without a name. Throws TooManyLines at the line behind the last row; fails with a
    // FileFault that names line and field where nothing can be sized, for too few fields and for a field that
    // is no number in either notation of decimals.
    NamedDistances Read(char decimalSeparator) const;

private:
    void ReadRow(std::string_view line, std::int32_t row, NamedDistances& matrix,
                 char decimalSeparator) const;

    std::string_view text_;
    TextMatrixForm form_;
    std::int64_t fields_ = 0; // of the first line
    std::int64_t size_ = 0;
    std::string pattern_; // of the rounding
};

} // namespace dorvan
