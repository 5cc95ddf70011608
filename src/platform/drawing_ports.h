#pragma once

#include "platform/drawing.h"

#include <cstdint>
#include <string>
#include <vector>

// The ports of drawings: what the program needs of fonts, of memory pictures and of the clipboard.
namespace dorvan {

struct TextExtent { // twips
    double Width = 0;
    double Height = 0;
    bool operator==(const TextExtent&) const = default;
};

// Texts as the players draw them: at the sizes of 1440 units to the inch, the same for every device.
struct TextMeasure {
    virtual ~TextMeasure() = default;
    virtual TextExtent extentOf(const std::string& text, const drawing::Font& font) = 0;
};

// Rows from the upper one down, 0xRRGGBB each pixel.
struct PixelImage {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint32_t> Pixels;
    bool operator==(const PixelImage&) const = default;
};

struct Rasterizer {
    virtual ~Rasterizer() = default;
    // The first sheet at one pixel for 15 twips, a size that is no whole number of pixels rounded up. Throws
    // std::bad_alloc for a picture that memory does not hold.
    virtual PixelImage pixelsOf(const Drawing& drawing) = 0;
};

struct PictureClipboard { // both throw std::runtime_error when the clipboard cannot be had
    virtual ~PictureClipboard() = default;
    virtual void clear() = 0;
    virtual void put(const Drawing& drawing) = 0;
};

} // namespace dorvan
