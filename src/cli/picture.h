#pragma once

#include "platform/drawing_ports.h"
#include "session/documents.h"

#include <string>
#include <string_view>

// The picture of a diagram, for a file.
namespace dorvan::cli {

struct PictureChoices {
    std::string what = "diagram"; // or "histogram", "linear"
    bool cumulative = false;      // histogram only
    double scale = 1;             // of the screen's size
};

// ".svg", ".pdf" or ".png", in any case of letters.
bool IsPictureName(const std::string& path);

Drawing PictureOf(const DiagramDocument& diagram, const PictureChoices& choices, TextMeasure& measure,
                  char decimalSeparator);

// The bytes of the format that the path asks for. Needs the toolkit started.
std::string PictureBytes(const Drawing& drawing, const std::string& path, double scale);

} // namespace dorvan::cli
