#pragma once

#include "session/documents.h"

#include <cstdint>

namespace dorvan {

// Both take to place k what stands at place order(k), 1 to RecCount, and fail with SubscriptOutOfRange for an
// order of another count or with a place outside.

// Matrix, names and missing-value marks. `Data` keeps its order.
void ReorderRecords(DiagramDocument& document, const Array1<std::int16_t>& order);

// Those, the rows of `Data` and the classes: the whole document says one order.
void ReorderDocument(DiagramDocument& document, const Array1<std::int16_t>& order);

} // namespace dorvan
