#pragma once

#include "export/diagram_pictures.h"

#include <string>

// The picture of a diagram, as the command line names it.
namespace dorvan::cli {

struct PictureChoices {
    std::string what = "diagram"; // or "histogram", "linear"
    bool cumulative = false;      // histogram only
    double scale = 1;             // of the screen's size
};

Drawing PictureOf(const DiagramDocument& diagram, const PictureChoices& choices, TextMeasure& measure,
                  char decimalSeparator);

} // namespace dorvan::cli
