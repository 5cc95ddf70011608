#pragma once

#include "platform/drawing_ports.h"
#include "session/documents.h"

namespace dorvan {

inline constexpr int LinearGraphWidth = 5055; // twips
inline constexpr int LinearGraphHeight = 3015;

// The distances between following records, in the order of the diagram. Fails with SubscriptOutOfRange for a
// diagram of one record, with DivisionByZero where the largest of them is 0.
Drawing LinearGraphDrawing(const DiagramDocument& document, TextMeasure& measure, char decimalSeparator);

} // namespace dorvan
