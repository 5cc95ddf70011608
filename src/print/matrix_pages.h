#pragma once

#include "platform/drawing.h"
#include "platform/drawing_ports.h"
#include "print/paper.h"
#include "session/documents.h"

#include <string>

namespace dorvan {

// A matrix as a grid of boxes, its lower triangle and diagonal filled with the distances through "#0.000",
// over as many pages as it takes. The boxes are as wide as the cell that is the last in the order of texts
// needs it, which need not be the widest. Fails with TypeMismatch when that is no number; another cell that
// is none stays empty.
Drawing MatrixPages(const DistanceMatrix& matrix, const std::string& description, const Paper& paper,
                    TextMeasure& measure, char decimalSeparator);

} // namespace dorvan
