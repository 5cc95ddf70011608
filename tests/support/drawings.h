#pragma once

#include "platform/drawing.h"
#include "platform/drawing_ports.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace dorvan::test {

// Compares two drawings and names the first operation that differs, counted from 1.
::testing::AssertionResult sameDrawing(const Drawing& actual, const Drawing& expected);

// The operations of one kind, in their order: operationsOf<drawing::Text>(drawing).
template <class Kind> std::vector<Kind> operationsOf(const Drawing& drawing) {
    std::vector<Kind> found;
    for (const auto& operation : drawing.Operations)
        if (const auto* one = std::get_if<Kind>(&operation)) found.push_back(*one);
    return found;
}

// Every character is as wide as told for a point of the font's size, bold ones a half more; a line is 24
// twips high for a point.
class FixedMeasure : public TextMeasure {
public:
    double twipsPerPoint = 10;
    TextExtent extentOf(const std::string& text, const drawing::Font& font) override;
};

} // namespace dorvan::test
