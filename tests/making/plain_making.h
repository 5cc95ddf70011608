#pragma once

#include "distance/distance.h"
#include "making/ordering_method.h"

// The making of a diagram as one plain loop after another: what the program's own has to agree with, to the
// bit.
namespace dorvan::test {

// Ascending exchanges over halved gaps; all elements but the last.
void PlainSortAllButLast(Array1<float>& values);

Array1<float> PlainAutomaticLimits(const FloatTable& distances);

Order PlainSimpleOrder(const FloatTable& distances);

// The document of a diagram made from a sheet, with the simple order or with none.
DiagramDocument PlainDiagram(const FloatTable& values, const Names& recordNames, const Names& variableNames,
                             const Measure& measure, bool ordered);

} // namespace dorvan::test
