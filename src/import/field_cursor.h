#pragma once

#include "files/file_fault.h"
#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"

#include <fmt/format.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace dorvan {

// Walks over the fields of one line of text. Fails with a FileFault that names line and field.
class FieldCursor {
public:
    // `wanted` is how many fields the line has to have; it is only told when they are too few.
    FieldCursor(std::string_view line, char separator, std::int64_t lineNumber, std::int64_t wanted)
        : rest_(line), separator_(separator), line_(lineNumber), wanted_(wanted) {}

    std::string_view Next() {
        if (ended_)
            throw FileFault::AtLine(line_,
                                    fmt::format("{} fields stand where {} are needed", field_, wanted_));
        ++field_;
        const std::size_t end = rest_.find(separator_);
        const std::string_view field = rest_.substr(0, end);
        ended_ = end == std::string_view::npos;
        if (!ended_) rest_.remove_prefix(end + 1);
        return field;
    }

    float NextNumber(char decimalSeparator) {
        const std::string_view field = Next();
        try {
            return ParseSheetNumber(field, decimalSeparator);
        } catch (const RuntimeFailure& failure) {
            throw FileFault::AtField(line_, field_, WhyNoNumber(failure, field));
        }
    }

private:
    std::string_view rest_;
    char separator_;
    std::int64_t line_;
    std::int64_t wanted_;
    std::int64_t field_ = 0;
    bool ended_ = false; // no field is left
};

} // namespace dorvan
