#pragma once

#include "platform/drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

// What a page shows, looked up by kind.
namespace dorvan::test {

template <class Kind> std::vector<Kind> allOf(const Drawing& page) {
    std::vector<Kind> found;
    for (const auto& operation : page.Operations)
        if (const auto* one = std::get_if<Kind>(&operation)) found.push_back(*one);
    return found;
}

inline std::size_t newPages(const Drawing& drawing) { return allOf<drawing::NewPage>(drawing).size(); }

inline bool near(drawing::Point a, drawing::Point b) {
    return std::abs(a.X - b.X) < 1e-6 && std::abs(a.Y - b.Y) < 1e-6;
}

// The texts whose first character stands at the place.
inline std::vector<drawing::Text> textsAt(const Drawing& page, drawing::Point at) {
    auto texts = allOf<drawing::Text>(page);
    std::erase_if(texts, [&](const auto& text) { return !near(text.At, at); });
    return texts;
}

// The one text at the place, or a test failure.
inline drawing::Text textAt(const Drawing& page, drawing::Point at) {
    const auto texts = textsAt(page, at);
    EXPECT_EQ(texts.size(), 1u) << "texts at (" << at.X << ", " << at.Y << ")";
    return texts.empty() ? drawing::Text{} : texts.front();
}

// The text with the content, or a test failure where there is not exactly one.
inline drawing::Text textOf(const Drawing& page, const std::string& content) {
    auto texts = allOf<drawing::Text>(page);
    std::erase_if(texts, [&](const auto& text) { return text.Content != content; });
    EXPECT_EQ(texts.size(), 1u) << "texts \"" << content << "\"";
    return texts.empty() ? drawing::Text{} : texts.front();
}

inline bool hasBox(const Drawing& page, drawing::Point from, drawing::Point to) {
    const auto boxes = allOf<drawing::Box>(page);
    return std::any_of(boxes.begin(), boxes.end(),
                       [&](const auto& box) { return near(box.From, from) && near(box.To, to); });
}

} // namespace dorvan::test
