#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace dorvan::cli {

// The code number of a measure's name or number text; nothing for another text.
std::optional<std::int16_t> MeasureNumber(const std::string& text);

} // namespace dorvan::cli
