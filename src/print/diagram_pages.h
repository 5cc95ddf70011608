#pragma once

#include "platform/drawing.h"
#include "platform/drawing_ports.h"
#include "print/paper.h"
#include "session/documents.h"

#include <cstdint>
#include <string>

namespace dorvan {

// A diagram as a square of symbols over as many pages as it takes, with a legend of the section limits and
// the description on the last page of the first page column. `size`: 1 normal, 2 small, 3 large; another one
// draws no page.
Drawing DiagramPages(const DiagramDocument& diagram, const std::string& description, std::int16_t size,
                     const Paper& paper, TextMeasure& measure, char decimalSeparator);

} // namespace dorvan
