#pragma once

#include "platform/drawing_ports.h"
#include "session/documents.h"

#include <cstdint>
#include <functional>
#include <string>

namespace dorvan {

// What can be drawn of a diagram.
enum class DiagramPicture { Diagram, Histogram, CumulativeHistogram, LinearGraph };

// Fails as the drawings do: for cells or limits that they cannot show.
Drawing DrawPicture(const DiagramDocument& diagram, DiagramPicture what, TextMeasure& measure,
                    char decimalSeparator);

// So many times as large, its lines and letters too.
Drawing Scaled(Drawing drawing, double factor);

// ".svg", ".pdf" or ".png" at the end, in any case of letters.
bool IsPictureName(const std::string& path);

// Who makes the bytes of a picture's file, in the format that the path asks for and at so many times the
// size on a screen. The program with a screen sets it.
struct PictureWriter {
    std::function<std::string(const Drawing& drawing, const std::string& path, double scale)> Bytes;
};

} // namespace dorvan
