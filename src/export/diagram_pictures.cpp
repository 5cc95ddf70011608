#include "export/diagram_pictures.h"

#include "numbers/text.h"
#include "view/bitmap_drawing.h"
#include "view/histogram_drawing.h"
#include "view/linear_drawing.h"

namespace dorvan {

namespace {

struct Enlarged {
    double Factor;

    void Enlarge(drawing::Point& point) const {
        point.X *= Factor;
        point.Y *= Factor;
    }
    void operator()(drawing::Line& line) const { EnlargeShape(line); }
    void operator()(drawing::Box& box) const { EnlargeShape(box); }
    void operator()(drawing::FilledBox& box) const {
        Enlarge(box.From);
        Enlarge(box.To);
    }
    void operator()(drawing::Disc& disc) const {
        Enlarge(disc.Centre);
        disc.Radius *= Factor;
    }
    void operator()(drawing::Text& text) const {
        Enlarge(text.At);
        text.With.Size *= Factor;
    }
    void operator()(drawing::NewPage&) const {}

private:
    template <class Shape> void EnlargeShape(Shape& shape) const {
        Enlarge(shape.From);
        Enlarge(shape.To);
        shape.With.Width *= Factor;
    }
};

} // namespace

Drawing Scaled(Drawing drawing, double factor) {
    drawing.Width *= factor;
    drawing.Height *= factor;
    for (auto& operation : drawing.Operations) std::visit(Enlarged{factor}, operation);
    return drawing;
}

Drawing DrawPicture(const DiagramDocument& diagram, DiagramPicture what, TextMeasure& measure,
                    char decimalSeparator) {
    if (what == DiagramPicture::Diagram) return BitmapDrawing(diagram, measure, decimalSeparator);
    if (what == DiagramPicture::LinearGraph) return LinearGraphDrawing(diagram, measure, decimalSeparator);
    const bool cumulative = what == DiagramPicture::CumulativeHistogram;
    SectionCounts counts = CountSections(diagram, diagram.SectionLimits);
    if (cumulative) counts.Accumulate();
    return HistogramDrawing(BarHeights(counts), cumulative, measure);
}

bool IsPictureName(const std::string& path) {
    const std::string extension = LowerCase(RightCharacters(path, 4));
    return extension == ".svg" || extension == ".pdf" || extension == ".png";
}

} // namespace dorvan
