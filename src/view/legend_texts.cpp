#include "view/legend_texts.h"

#include "numbers/number_text.h"

namespace dorvan {

std::array<std::string, 5> LegendTexts(const Array1<float>& limits, char decimalSeparator) {
    const auto limit = [&](int number) { return FormatPattern(limits(number), "#0.00#", decimalSeparator); };
    return {"0 - " + limit(1), limit(1) + " - " + limit(2), limit(2) + " - " + limit(3),
            limit(3) + " - " + limit(4), ">= " + limit(4)};
}

} // namespace dorvan
