#pragma once

#include "painting/svg_player.h"
#include "platform/drawing.h"

#include <string>

// Pictures as the bytes of files: these, and SvgOf. They need the toolkit started.
namespace dorvan::painting {

// The first sheet, at so many times its size: a scale of 1 makes a pixel, or a 96th of an inch, of 15 twips.
std::string PdfOf(const Drawing& drawing, double scale = 1);
std::string PngOf(const Drawing& drawing, double scale = 1);

// In the format of the path's extension, in any case of letters: .svg, .pdf, else PNG.
std::string PictureBytes(const Drawing& drawing, const std::string& path, double scale);

} // namespace dorvan::painting
