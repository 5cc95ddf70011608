#include "cli/picture.h"

namespace dorvan::cli {

namespace {

DiagramPicture Chosen(const PictureChoices& choices) {
    if (choices.what == "linear") return DiagramPicture::LinearGraph;
    if (choices.what != "histogram") return DiagramPicture::Diagram;
    return choices.cumulative ? DiagramPicture::CumulativeHistogram : DiagramPicture::Histogram;
}

} // namespace

Drawing PictureOf(const DiagramDocument& diagram, const PictureChoices& choices, TextMeasure& measure,
                  char decimalSeparator) {
    return DrawPicture(diagram, Chosen(choices), measure, decimalSeparator);
}

} // namespace dorvan::cli
