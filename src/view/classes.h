#pragma once

#include "session/documents.h"

#include <cstdint>

namespace dorvan {

// The class of a distance between the four section limits: 5 nearest to 1 farthest, 6 in none of them (such
// as a negative distance). Limits need not rise: the first test that holds decides, from the nearest class
// on.
std::int16_t ClassifyCell(float value, const Array1<float>& sectionLimits);

// Sets `Classes` for all cells of the document from its `Matrix` and `SectionLimits`.
void ClassifyDiagram(DiagramDocument& document);

} // namespace dorvan
