#include "export/modFreeImage.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

int numberAt(const std::string& bytes, std::size_t place, std::size_t size) {
    int value = 0;
    for (std::size_t k = size; k-- > 0;)
        value = value * 256 + static_cast<unsigned char>(bytes.at(place + k));
    return value;
}

PixelImage picture() { return {3, 2, {0x000000, 0xFFFFFF, 0x808080, 0x191919, 0xE1E1E1, 0xFF0000}}; }

TEST(ImageFormats, AreToldByTheLastFourCharacters) {
    EXPECT_EQ(ImageFormatOf("/a/b.bmp"), ImageFormat::Bmp);
    EXPECT_EQ(ImageFormatOf("b.tif"), ImageFormat::Tiff);
    EXPECT_EQ(ImageFormatOf(".png"), ImageFormat::Png);
    for (const char* other : {"b.jpg", "b.tiff", "b.TIF", "png", "b.png ", ""})
        EXPECT_EQ(ImageFormatOf(other), std::nullopt) << other;
}

TEST(EncodedImage, BmpHasEightBitsAPixelAndItsRowsFromBelow) {
    const std::string bytes = EncodedImage(picture(), ImageFormat::Bmp);
    ASSERT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(numberAt(bytes, 18, 4), 3);
    EXPECT_EQ(numberAt(bytes, 22, 4), 2);
    EXPECT_EQ(numberAt(bytes, 28, 2), 8);
    const auto start = std::size_t(numberAt(bytes, 10, 4));
    const auto greyOf = [&](std::size_t row, std::size_t column) {
        const auto colour = 54 + 4 * std::size_t(numberAt(bytes, start + row * 4 + column, 1));
        EXPECT_EQ(bytes.at(colour), bytes.at(colour + 1));
        return numberAt(bytes, colour, 1);
    };
    EXPECT_EQ(greyOf(1, 0), 0); // the upper row comes last
    EXPECT_EQ(greyOf(1, 1), 255);
    EXPECT_EQ(greyOf(1, 2), 0x80);
    EXPECT_EQ(greyOf(0, 0), 0x19);
    EXPECT_EQ(greyOf(0, 1), 0xE1);
    EXPECT_EQ(greyOf(0, 2), 54); // red as a grey
}

TEST(EncodedImage, TiffAndPngTellTheirSizeAndDepth) {
    const std::string tiff = EncodedImage(picture(), ImageFormat::Tiff);
    EXPECT_EQ(tiff.substr(0, 4), std::string("II*\0", 4));
    const std::string png = EncodedImage(picture(), ImageFormat::Png);
    EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
    EXPECT_EQ(png.at(19), 3);
    EXPECT_EQ(png.at(23), 2);
    EXPECT_EQ(png.at(24), 8); // bits
}

TEST(EncodedImage, WithoutAFormatIsNothing) { EXPECT_EQ(EncodedImage(picture(), std::nullopt), ""); }

TEST(EncodedImage, OfAnEmptyPictureFails) {
    EXPECT_THROW(EncodedImage({0, 0, {}}, ImageFormat::Png), NoDib);
    EXPECT_THROW(EncodedImage({3, 0, {}}, std::nullopt), NoDib);
}

} // namespace
} // namespace dorvan::test
