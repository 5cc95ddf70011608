#include "export/modFreeImage.h"

#include "numbers/text.h"

#include <FreeImage.h>

#include <cstring>
#include <memory>

namespace dorvan {

namespace {

constexpr std::size_t ExtensionLength = 4;
constexpr int BitsOfScreen = 32;

class Library {
public:
    Library() { FreeImage_Initialise(FALSE); }
    ~Library() { FreeImage_DeInitialise(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
};

struct Unload {
    void operator()(FIBITMAP* dib) const { FreeImage_Unload(dib); }
};
using Dib = std::unique_ptr<FIBITMAP, Unload>;

struct CloseMemory {
    void operator()(FIMEMORY* memory) const { FreeImage_CloseMemory(memory); }
};

// FreeImage's rows go from the lower one up.
Dib DibFromBitmap(const PixelImage& picture) {
    if (picture.Width <= 0 || picture.Height <= 0) throw NoDib();
    Dib dib(FreeImage_Allocate(picture.Width, picture.Height, BitsOfScreen, 0, 0, 0));
    if (!dib) throw NoDib();
    for (int row = 0; row < picture.Height; ++row)
        std::memcpy(FreeImage_GetScanLine(dib.get(), picture.Height - 1 - row),
                    picture.Pixels.data() + std::size_t(row) * std::size_t(picture.Width),
                    std::size_t(picture.Width) * sizeof(std::uint32_t));
    return dib;
}

FREE_IMAGE_FORMAT CodeOf(ImageFormat format) {
    switch (format) {
    case ImageFormat::Bmp: return FIF_BMP;
    case ImageFormat::Tiff: return FIF_TIFF;
    case ImageFormat::Png: return FIF_PNG;
    }
    return FIF_UNKNOWN;
}

} // namespace

std::optional<ImageFormat> ImageFormatOf(std::string_view path) {
    const std::string_view ending = RightCharacters(path, ExtensionLength);
    if (ending == ".bmp") return ImageFormat::Bmp;
    if (ending == ".tif") return ImageFormat::Tiff;
    if (ending == ".png") return ImageFormat::Png;
    return std::nullopt;
}

std::string EncodedImage(const PixelImage& picture, std::optional<ImageFormat> format) {
    const Library library;
    const Dib dib = DibFromBitmap(picture);
    if (!format) return {};
    const Dib converted(FreeImage_ConvertTo8Bits(dib.get()));
    const std::unique_ptr<FIMEMORY, CloseMemory> memory(FreeImage_OpenMemory(nullptr, 0));
    BYTE* bytes = nullptr;
    DWORD count = 0;
    if (!converted || !FreeImage_SaveToMemory(CodeOf(*format), converted.get(), memory.get(), 0) ||
        !FreeImage_AcquireMemory(memory.get(), &bytes, &count))
        throw NoEncoding();
    return {reinterpret_cast<const char*>(bytes), count};
}

} // namespace dorvan
