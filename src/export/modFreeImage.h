#pragma once

#include "platform/drawing_ports.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

// Image files by way of FreeImage, which converts and encodes.
namespace dorvan {

enum class ImageFormat { Bmp, Tiff, Png };

// By the last four characters: ".bmp", ".tif" or ".png", in small letters.
std::optional<ImageFormat> ImageFormatOf(std::string_view path);

// The picture could not be handed to FreeImage at all.
class NoDib : public std::runtime_error {
public:
    NoDib() : std::runtime_error("FreeImage takes no picture of this size") {}
};

// FreeImage could not encode the picture.
class NoEncoding : public std::runtime_error {
public:
    NoEncoding() : std::runtime_error("FreeImage could not encode the picture") {}
};

// The bytes of an image file with 8 bits a pixel: the greys of the picture's colours. Without a format
// nothing is encoded, and the bytes are none. Fails with NoDib and NoEncoding.
std::string EncodedImage(const PixelImage& picture, std::optional<ImageFormat> format);

} // namespace dorvan
