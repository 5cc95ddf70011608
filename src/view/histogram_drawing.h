#pragma once

#include "platform/drawing_ports.h"
#include "view/section_counts.h"

#include <array>
#include <cstdint>

namespace dorvan {

inline constexpr int HistogramWidth = 4095; // twips
inline constexpr int HistogramHeight = 2655;

// The bars' heights in twips. Fails with Overflow when there are no pairs.
std::array<std::int16_t, 5> BarHeights(const SectionCounts& counts);

// The chart. `cumulative` adds the dots that mark it as such; they do not follow the bars.
Drawing HistogramDrawing(const std::array<std::int16_t, 5>& heights, bool cumulative, TextMeasure& measure);

} // namespace dorvan
