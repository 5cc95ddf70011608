#pragma once

#include "making/ordering_method.h"
#include "session/documents.h"

namespace dorvan {

// The order of the records by a walk to the nearest record not yet visited, from record 1 on.
// Among equally near ones the highest number wins. O(n^2). `maxDistance` is the largest cell.
Order SimpleOrder(const FloatTable& distances, float maxDistance);

} // namespace dorvan
