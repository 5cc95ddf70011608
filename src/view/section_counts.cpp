#include "view/section_counts.h"

#include "numbers/rounding.h"

namespace dorvan {

namespace {

// The section of a distance from 0, or 5 for none. The sections are tried in their order, so limits that do
// not rise leave some of them empty.
std::size_t SectionOf(float distance, const Array1<float>& limits) {
    if (distance >= 0 && distance < limits(1)) return 0;
    for (int section = 1; section <= 3; ++section)
        if (distance >= limits(section) && distance < limits(section + 1)) return std::size_t(section);
    return distance >= limits(4) ? 4 : 5;
}

} // namespace

SectionCounts CountSections(const DiagramDocument& document, const Array1<float>& limits) {
    SectionCounts counts;
    const double records = document.RecCount;
    counts.PairCount = RoundToInt16(records * records - records);
    for (std::int32_t i = 1; i <= document.RecCount; ++i)
        for (std::int32_t j = 1; j <= document.RecCount; ++j) {
            const std::size_t section = i == j ? 5 : SectionOf(document.Matrix(i, j), limits);
            if (section == 5) continue;
            auto& count = counts.SectionCount[section];
            count = AddInt16(count, 1);
        }
    return counts;
}

void SectionCounts::Accumulate() {
    for (std::size_t section = 1; section < SectionCount.size(); ++section)
        SectionCount[section] = AddInt16(SectionCount[section], SectionCount[section - 1]);
}

} // namespace dorvan
