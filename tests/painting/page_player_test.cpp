#include "painting/page_player.h"

#include "platform/drawing.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

// One unit of the painter is a twip, and here a pixel.
QImage played(Canvas& canvas) {
    QImage image(int(canvas.Width()), int(canvas.Height()), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painting::PlaySheet(canvas.Take(), painter);
    painter.end();
    return image;
}

bool isBlack(const QImage& image, int x, int y) { return image.pixel(x, y) == 0xFF000000; }
bool isWhite(const QImage& image, int x, int y) { return image.pixel(x, y) == 0xFFFFFFFF; }

TEST(PagePlayer, ShapesStandAtTheirTwips) {
    Canvas canvas(400, 200);
    canvas.Pen.Width = 10;
    canvas.DrawLine({20, 20}, {180, 20});
    canvas.DrawBox({200, 50}, {300, 150});
    canvas.FillBox({20, 100}, {60, 140}, 0x00FF00);
    canvas.FillDisc({120, 120}, 30);
    const QImage image = played(canvas);
    EXPECT_TRUE(isBlack(image, 100, 16));
    EXPECT_TRUE(isBlack(image, 100, 23));
    EXPECT_TRUE(isWhite(image, 100, 30));
    EXPECT_TRUE(isBlack(image, 200, 100));
    EXPECT_TRUE(isBlack(image, 300, 100));
    EXPECT_TRUE(isBlack(image, 250, 150));
    EXPECT_TRUE(isWhite(image, 250, 100));
    EXPECT_EQ(image.pixel(40, 120), 0xFF00FF00);
    EXPECT_TRUE(isWhite(image, 62, 120));
    EXPECT_TRUE(isBlack(image, 120, 120));
    EXPECT_TRUE(isBlack(image, 120, 93));
    EXPECT_TRUE(isWhite(image, 98, 98));
}

TEST(PagePlayer, TextHasTheSizeOfItsPoints) {
    Canvas canvas(1000, 400);
    canvas.Font.Size = 10; // 200 twips
    canvas.Write({100, 50}, "H");
    const QImage image = played(canvas);
    int top = 400, bottom = 0;
    for (int y = 0; y < 400; ++y)
        for (int x = 0; x < 1000; ++x)
            if (!isWhite(image, x, y)) {
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
    EXPECT_GT(top, 50);
    EXPECT_NEAR(bottom - top, 0.72 * 200, 20); // a capital is about 0.7 of the size
}

std::string pdfOf(const Drawing& drawing, int resolution) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(resolution);
        EXPECT_TRUE(painting::PlayPages(drawing, writer));
    }
    return bytes.toStdString();
}

int pagesIn(const std::string& pdf) {
    int pages = 0;
    for (auto place = pdf.find("/Type /Page\n"); place != pdf.npos;
         place = pdf.find("/Type /Page\n", place + 1))
        ++pages;
    return pages;
}

TEST(PagePlayer, EverySheetIsAPageAndAnEmptyOneAtTheEndIsNone) {
    Canvas canvas(1000, 1000);
    canvas.DrawBox({0, 0}, {100, 100});
    canvas.StartPage();
    canvas.DrawBox({0, 0}, {100, 100});
    canvas.StartPage();
    const Drawing drawing = canvas.Take();
    EXPECT_EQ(pagesIn(pdfOf(drawing, 1440)), 2);
    EXPECT_EQ(pagesIn(pdfOf(drawing, 300)), 2);
    EXPECT_EQ(pagesIn(pdfOf(Drawing{10, 10, {}}, 300)), 1);
}

} // namespace
} // namespace dorvan::test
