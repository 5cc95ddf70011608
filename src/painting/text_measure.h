#pragma once

#include "platform/drawing_ports.h"

namespace dorvan::painting {

// Measures with the fonts that the players draw with. Needs the toolkit started.
class QtTextMeasure : public TextMeasure {
public:
    TextExtent extentOf(const std::string& text, const drawing::Font& font) override;
};

} // namespace dorvan::painting
