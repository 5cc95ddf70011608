#pragma once

#include "platform/drawing.h"

#include <string>

namespace dorvan::painting {

// The first sheet as an SVG picture, at so many times its size. How operations look (fill, stroke, font)
// is said once for all that look alike.
std::string SvgOf(const Drawing& drawing, double scale = 1);

} // namespace dorvan::painting
