#include "painting/text_measure.h"

#include "painting/fonts.h"

#include <QFontMetricsF>

namespace dorvan::painting {

TextExtent QtTextMeasure::extentOf(const std::string& text, const drawing::Font& font) {
    const QFontMetricsF metrics(FontInTwips(font));
    return {metrics.horizontalAdvance(ToQt(text)), metrics.height()};
}

} // namespace dorvan::painting
