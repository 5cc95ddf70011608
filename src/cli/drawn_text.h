#pragma once

#include "painting/text_measure.h"
#include "painting/toolkit.h"

#include <optional>

namespace dorvan::cli {

// Starts the toolkit, which needs no screen, at the first text: most subcommands never do.
class DrawnText : public TextMeasure {
public:
    void StartToolkit() {
        if (!toolkit_) toolkit_.emplace();
    }
    TextExtent extentOf(const std::string& text, const drawing::Font& font) override {
        StartToolkit();
        return measure_.extentOf(text, font);
    }

private:
    std::optional<painting::Toolkit> toolkit_;
    painting::QtTextMeasure measure_;
};

} // namespace dorvan::cli
