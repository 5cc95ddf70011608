#pragma once

#include "session/documents.h"

#include <array>
#include <cstdint>

namespace dorvan {

// How the ordered pairs of different records fall into the five sections of the distances.
struct SectionCounts {
    std::int16_t PairCount = 0;                    // of all pairs, also those with a negative distance
    std::array<std::int16_t, 5> SectionCount = {}; // from the shortest distances to the longest

    void Accumulate(); // the counts become running sums
};

// Fails with Overflow from 182 records on: the pairs are counted in 16 bits.
SectionCounts CountSections(const DiagramDocument& document, const Array1<float>& limits);

} // namespace dorvan
