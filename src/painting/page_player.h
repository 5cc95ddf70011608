#pragma once

#include "platform/drawing.h"

class QPagedPaintDevice;
class QPainter;

// Drawings as shapes, for devices that scale them: paper, PDF, SVG.
namespace dorvan::painting {

// Plays one sheet with a painter whose unit is a twip.
void PlaySheet(const Drawing& sheet, QPainter& painter);

// Plays all sheets onto the pages of a device, whose resolution may be any. False when the device cannot be
// drawn on or refuses a new page.
bool PlayPages(const Drawing& pages, QPagedPaintDevice& device);

} // namespace dorvan::painting
