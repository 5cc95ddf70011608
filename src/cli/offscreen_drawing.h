#pragma once

#include "painting/rasterizer.h"
#include "painting/text_measure.h"
#include "painting/toolkit.h"

#include <optional>

namespace dorvan::cli {

// The ports of drawings. The toolkit, which needs no screen, starts at their first use: most subcommands
// never start it.
class OffscreenDrawing : public TextMeasure, public Rasterizer {
public:
    void StartToolkit() {
        if (!toolkit_) toolkit_.emplace();
    }
    TextExtent extentOf(const std::string& text, const drawing::Font& font) override {
        StartToolkit();
        return measure_.extentOf(text, font);
    }
    PixelImage pixelsOf(const Drawing& drawing) override {
        StartToolkit();
        return rasterizer_.pixelsOf(drawing);
    }

private:
    std::optional<painting::Toolkit> toolkit_;
    painting::QtTextMeasure measure_;
    painting::QtRasterizer rasterizer_;
};

} // namespace dorvan::cli
