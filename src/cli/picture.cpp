#include "cli/picture.h"

#include "numbers/text.h"
#include "painting/picture_files.h"
#include "view/bitmap_drawing.h"
#include "view/histogram_drawing.h"
#include "view/linear_drawing.h"

namespace dorvan::cli {

namespace {

constexpr std::size_t ExtensionLength = 4;

std::string ExtensionOf(const std::string& path) { return LowerCase(RightCharacters(path, ExtensionLength)); }

} // namespace

bool IsPictureName(const std::string& path) {
    const std::string extension = ExtensionOf(path);
    return extension == ".svg" || extension == ".pdf" || extension == ".png";
}

Drawing PictureOf(const DiagramDocument& diagram, const PictureChoices& choices, TextMeasure& measure,
                  char decimalSeparator) {
    if (choices.what == "linear") return LinearGraphDrawing(diagram, measure, decimalSeparator);
    if (choices.what != "histogram") return BitmapDrawing(diagram, measure, decimalSeparator);
    SectionCounts counts = CountSections(diagram, diagram.SectionLimits);
    if (choices.cumulative) counts.Accumulate();
    return HistogramDrawing(BarHeights(counts), choices.cumulative, measure);
}

std::string PictureBytes(const Drawing& drawing, const std::string& path, double scale) {
    const std::string extension = ExtensionOf(path);
    if (extension == ".svg") return painting::SvgOf(drawing, scale);
    if (extension == ".pdf") return painting::PdfOf(drawing, scale);
    return painting::PngOf(drawing, scale);
}

} // namespace dorvan::cli
