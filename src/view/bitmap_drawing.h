#pragma once

#include "platform/drawing_ports.h"
#include "session/documents.h"

namespace dorvan {

// The diagram of a bitmap document: numbers, names, cells and the legend of the section limits. Fails with
// SubscriptOutOfRange for a cell of a class outside 0 to 5. In the greyscale and classic types the swatches
// of the legend run against its texts.
Drawing BitmapDrawing(const DiagramDocument& document, TextMeasure& measure, char decimalSeparator);

} // namespace dorvan
