#pragma once

#include "platform/drawing.h"

#include <string>

namespace dorvan::painting {

// The first sheet as an SVG picture, at so many times its size. What several operations in a row have in common
// (fill, stroke, font) is said once for all of them.
std::string SvgOf(const Drawing& drawing, double scale = 1);

} // namespace dorvan::painting
