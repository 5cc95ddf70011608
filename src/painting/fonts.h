#pragma once

#include "platform/drawing.h"

#include <QFont>
#include <QString>

namespace dorvan::painting {

// The font of a drawing for a painter whose unit is a twip. Glyphs keep their design widths at every size, so
// that a text is as wide on a screen as on paper. A drawing that names no font gets a plain sans serif.
QFont FontInTwips(const drawing::Font& font);

// The same for a picture in memory of the usual 96 dots to the inch, `scale` of its pixels for 15 twips.
QFont FontInPixels(const drawing::Font& font, double scale);

QString ToQt(const std::string& text);

} // namespace dorvan::painting
