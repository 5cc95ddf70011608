#pragma once

#include "platform/drawing.h"

#include <string>

// Pictures as the bytes of files. They need the toolkit started.
namespace dorvan::painting {

// The first sheet, at so many times its size: a scale of 1 makes a pixel, or a 96th of an inch, of 15 twips.
std::string SvgOf(const Drawing& drawing, double scale = 1);
std::string PdfOf(const Drawing& drawing, double scale = 1);
std::string PngOf(const Drawing& drawing, double scale = 1);

} // namespace dorvan::painting
