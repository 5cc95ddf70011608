#include "painting/picture_files.h"

#include "painting/raster_player.h"

#include <QImage>

#include <gmock/gmock.h>

namespace dorvan::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

Drawing sample() {
    Canvas canvas(1500, 760);
    canvas.DrawBox({0, 0}, {300, 300});
    canvas.FillDisc({150, 150}, 50);
    canvas.Write({400, 100}, "Łódź & co");
    canvas.StartPage();
    canvas.Write({400, 100}, "elsewhere");
    return canvas.Take();
}

TEST(PictureFiles, PngHoldsThePixelsOfThePicture) {
    const QImage read = QImage::fromData(QByteArray::fromStdString(painting::PngOf(sample())), "PNG");
    EXPECT_EQ(read.size(), QSize(100, 51));
    EXPECT_EQ(read.convertToFormat(QImage::Format_RGB32), painting::ImageOf(sample()));
    const QImage twice = QImage::fromData(QByteArray::fromStdString(painting::PngOf(sample(), 2)), "PNG");
    EXPECT_EQ(twice.size(), QSize(200, 102));
}

TEST(PictureFiles, SvgIsAsLargeAsThePictureAndHasItsTexts) {
    const std::string svg = painting::SvgOf(sample());
    EXPECT_THAT(svg, StartsWith("<?xml"));
    EXPECT_THAT(svg, HasSubstr("width=\"26.4583mm\" height=\"13.4056mm\"")); // 1500 and 760 twips
    EXPECT_THAT(svg, HasSubstr("viewBox=\"0 0 1500 760\""));
    EXPECT_THAT(svg, HasSubstr("Łódź &amp; co"));
    EXPECT_THAT(svg, Not(HasSubstr("elsewhere")));
    EXPECT_THAT(painting::SvgOf(sample(), 2), HasSubstr("width=\"52.9167mm\" height=\"26.8111mm\""));
}

TEST(PictureFiles, PdfIsOnePageOfThePicturesSize) {
    const std::string pdf = painting::PdfOf(sample());
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_NE(pdf.npos, pdf.find("/MediaBox [0 0 75.000000 38.000000]")); // points
    EXPECT_NE(pdf.npos, painting::PdfOf(sample(), 2).find("/MediaBox [0 0 150.000000 76.000000]"));
}

} // namespace
} // namespace dorvan::test
