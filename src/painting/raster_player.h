#pragma once

#include "platform/drawing.h"

#include <QImage>

// Drawings as pixels. A point names the centre of its pixel, as on a screen: at 15 twips to the pixel a line
// from (0, 0) to (300, 0) colours the pixels 0 to 20 of row 0, and a filled box ends with the pixels of its
// far corner. Level lines, outlines and filled boxes lie on whole pixels; discs, slanting lines and texts are
// smoothed.
namespace dorvan::painting {

// The first sheet of a drawing with `scale` pixels for 15 twips, a size that is no whole number of pixels
// rounded up. Throws std::bad_alloc for a picture that memory does not hold.
QImage ImageOf(const Drawing& drawing, double scale = 1);

} // namespace dorvan::painting
