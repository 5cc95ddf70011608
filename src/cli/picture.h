#pragma once

#include "session/documents.h"

#include <string>

namespace dorvan::cli {

// A diagram as a scalable picture (SVG 1.1, UTF-8): numbers and names along the edge, a symbol of 16 units
// for each pair, the description above and a legend of the five sections below.
std::string DiagramSvg(const DiagramDocument& diagram, const std::string& description, char decimalSeparator);

} // namespace dorvan::cli
