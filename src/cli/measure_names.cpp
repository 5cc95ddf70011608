#include "cli/measure_names.h"

#include "distance/measures.h"

namespace dorvan::cli {

std::optional<std::int16_t> MeasureNumber(const std::string& text) {
    const MeasureRow* row = FindMeasure(text);
    return row ? std::optional(std::int16_t(row->Code)) : std::nullopt;
}

} // namespace dorvan::cli
