#include "cli/measure_names.h"

#include <algorithm>
#include <array>

namespace dorvan::cli {

namespace {

constexpr std::array<const char*, 10> MeasureNames = {
    "henzel",     "czekanowski", "euclidean",      "manhattan", "chebychev",
    "customized", "dfdd",        "lance-williams", "jaccard",   "yule"};

} // namespace

std::optional<std::int16_t> MeasureNumber(const std::string& text) {
    for (std::size_t place = 0; place < MeasureNames.size(); ++place)
        if (text == MeasureNames[place] || text == std::to_string(place + 1))
            return static_cast<std::int16_t>(place + 1);
    return {};
}

} // namespace dorvan::cli
