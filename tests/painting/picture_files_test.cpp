#include "painting/picture_files.h"

#include "painting/page_player.h"
#include "painting/raster_player.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>
#include <QSvgRenderer>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

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

// The toolkit's own writer, which says all of its state with each operation.
std::string PlainSvgOf(const Drawing& drawing) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(1440);
    generator.setSize(QSize(int(drawing.Width), int(drawing.Height)));
    generator.setViewBox(QRectF(0, 0, drawing.Width, drawing.Height));
    QPainter painter(&generator);
    painter.fillRect(QRectF(0, 0, drawing.Width, drawing.Height), Qt::white);
    painter.translate(7.5, 7.5);
    painting::PlaySheet(PagesOf(drawing).front(), painter);
    painter.end();
    return bytes.toStdString();
}

QImage Rendered(const std::string& svg, QSize size) {
    QSvgRenderer renderer(QByteArray::fromStdString(svg));
    EXPECT_TRUE(renderer.isValid());
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

// Of 255, where the digits of the two writers round an edge to other shares of a pixel.
constexpr int MostRounding = 8;

int MostDifference(const QImage& one, const QImage& other) {
    int most = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QRgb left = one.pixel(x, y);
            const QRgb right = other.pixel(x, y);
            most = std::max({most, std::abs(qRed(left) - qRed(right)), std::abs(qGreen(left) - qGreen(right)),
                             std::abs(qBlue(left) - qBlue(right))});
        }
    return most;
}

Drawing everything() {
    Canvas canvas(3000, 1500);
    canvas.Pen.Width = 30;
    canvas.DrawLine({100, 100}, {1300, 700});
    canvas.DrawBox({1500, 800}, {200, 300});
    canvas.Pen = {0x800000, 15};
    canvas.DrawBox({1600, 100}, {2400, 400});
    canvas.DrawBox({1700.5, 200.25}, {2500, 500});
    canvas.FillBox({1800, 600}, {1900, 900}, GreyOf(150));
    canvas.FillBox({1900, 900}, {1950, 600}, GreyOf(150));
    canvas.FillDisc({2200, 800}, 120.5);
    canvas.FillDisc({2300, 850}, 120.5);
    canvas.FillDisc({2300, 850}, 0);
    canvas.Pen.Ink = 0x0000ff;
    canvas.Write({100, 900}, "  Łódź & co <\"x\">");
    canvas.Font = {"", 12, true};
    canvas.Write({100, 1100}, "bold");
    canvas.FillBox({150, 1150}, {400, 1180}, White); // over the text
    return canvas.Take();
}

TEST(PictureFiles, SvgShowsThePixelsOfThePlainOne) {
    const Drawing drawing = everything();
    for (const QSize size : {QSize(200, 100), QSize(500, 250), QSize(3000, 1500)})
        EXPECT_LE(
            MostDifference(Rendered(painting::SvgOf(drawing), size), Rendered(PlainSvgOf(drawing), size)),
            MostRounding);
}

TEST(PictureFiles, SvgSaysOnceWhatOperationsHaveInCommon) {
    Canvas canvas(3000, 3000);
    for (int row = 0; row < 100; ++row)
        for (int column = 0; column < 100; ++column) {
            canvas.Pen.Ink = Black;
            canvas.FillDisc({row * 30.0 + 15.1234, column * 30.0 + 15}, 7.5);
        }
    const std::string svg = painting::SvgOf(canvas.Take());
    EXPECT_LT(svg.size(), 10000u * 45);
    EXPECT_EQ(svg.find("fill:#000000"), svg.rfind("fill:#000000"));
    EXPECT_THAT(svg, HasSubstr("cx=\"15.12\" cy=\"15\" r=\"7.5\""));
}

TEST(PictureFiles, PdfIsOnePageOfThePicturesSize) {
    const std::string pdf = painting::PdfOf(sample());
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_NE(pdf.npos, pdf.find("/MediaBox [0 0 75.000000 38.000000]")); // points
    EXPECT_NE(pdf.npos, painting::PdfOf(sample(), 2).find("/MediaBox [0 0 150.000000 76.000000]"));
}

} // namespace
} // namespace dorvan::test
