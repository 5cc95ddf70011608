#include "support/drawings.h"

#include "numbers/text.h"

#include <algorithm>

namespace dorvan::test {

::testing::AssertionResult sameDrawing(const Drawing& actual, const Drawing& expected) {
    if (actual.Width != expected.Width || actual.Height != expected.Height)
        return ::testing::AssertionFailure() << "size " << actual.Width << " x " << actual.Height
                                             << " instead of " << expected.Width << " x " << expected.Height;
    const auto told = [](const Drawing& drawing, std::size_t place) {
        return place < drawing.Operations.size() ? drawing::Described(drawing.Operations[place])
                                                 : std::string("nothing");
    };
    const std::size_t longest = std::max(actual.Operations.size(), expected.Operations.size());
    for (std::size_t place = 0; place < longest; ++place) {
        const bool both = place < actual.Operations.size() && place < expected.Operations.size();
        if (both && actual.Operations[place] == expected.Operations[place]) continue;
        return ::testing::AssertionFailure() << "operation " << place + 1 << " is " << told(actual, place)
                                             << "\ninstead of " << told(expected, place);
    }
    return ::testing::AssertionSuccess();
}

TextExtent FixedMeasure::extentOf(const std::string& text, const drawing::Font& font) {
    const double character = twipsPerPoint * font.Size * (font.Bold ? 1.5 : 1.0);
    return {double(CharacterCount(text)) * character, 24 * font.Size};
}

} // namespace dorvan::test
