#include "painting/raster_player.h"

#include "golden_picture.h"
#include "painting/rasterizer.h"
#include "support/drawings.h"
#include "view/bitmap_drawing.h"
#include "view/histogram_drawing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace dorvan::test {
namespace {

using painting::ImageOf;

constexpr QRgb black = 0xFF000000;
constexpr QRgb white = 0xFFFFFFFF;

// The picture as rows of "#" for black, "." for white and "o" for anything between.
std::vector<std::string> rowsOf(const QImage& image) {
    std::vector<std::string> rows;
    for (int y = 0; y < image.height(); ++y) {
        std::string row;
        for (int x = 0; x < image.width(); ++x)
            row += image.pixel(x, y) == black ? '#' : image.pixel(x, y) == white ? '.' : 'o';
        rows.push_back(row);
    }
    return rows;
}

using Rows = std::vector<std::string>;

TEST(RasterPlayer, PictureIsWhiteAndItsSizeRoundedUpToPixels) {
    const QImage image = ImageOf(Drawing{31, 45, {}});
    EXPECT_EQ(image.size(), QSize(3, 3));
    EXPECT_EQ(rowsOf(image), Rows(3, "..."));
    EXPECT_EQ(ImageOf(Drawing{64100, 63500, {}}).size(), QSize(4274, 4234));
    EXPECT_EQ(ImageOf(Drawing{31, 45, {}}, 1.5).size(), QSize(4, 5));
}

TEST(RasterPlayer, LevelLinesEndOnThePixelsOfTheirPoints) {
    Canvas canvas(6 * 15, 5 * 15);
    canvas.DrawLine({15, 15}, {60, 15});
    canvas.DrawLine({0, 60}, {0, 30});
    EXPECT_EQ(rowsOf(ImageOf(canvas.Take())), (Rows{"......", ".####.", "#.....", "#.....", "#....."}));
}

TEST(RasterPlayer, PointsBetweenPixelsGoToTheNearest) {
    Canvas canvas(5 * 15, 15);
    canvas.DrawLine({22, 0}, {38, 0}); // 1.47 and 2.53
    EXPECT_EQ(rowsOf(ImageOf(canvas.Take())), (Rows{".###."}));
}

TEST(RasterPlayer, BoxIsAnOutline) {
    Canvas canvas(5 * 15, 4 * 15);
    canvas.DrawBox({60, 45}, {15, 0});
    EXPECT_EQ(rowsOf(ImageOf(canvas.Take())), (Rows{".####", ".#..#", ".#..#", ".####"}));
}

TEST(RasterPlayer, FilledBoxEndsWithTheFarPixels) {
    Canvas canvas(5 * 15, 4 * 15);
    canvas.FillBox({15, 45}, {45, 15});
    EXPECT_EQ(rowsOf(ImageOf(canvas.Take())), (Rows{".....", ".###.", ".###.", ".###."}));
}

TEST(RasterPlayer, PenIsAsWideAsTold) {
    Canvas canvas(6 * 15, 6 * 15);
    canvas.Pen.Width = 45;
    canvas.DrawLine({30, 45}, {60, 45});
    EXPECT_EQ(rowsOf(ImageOf(canvas.Take())),
              (Rows{"......", "......", ".#####", ".#####", ".#####", "......"}));
}

TEST(RasterPlayer, ScaleMakesMorePixelsOfATwip) {
    Canvas canvas(3 * 15, 2 * 15);
    canvas.DrawLine({0, 15}, {15, 15});
    const Drawing drawing = canvas.Take();
    EXPECT_EQ(rowsOf(ImageOf(drawing, 2)), (Rows{"......", "......", "####..", "####.."}));
    EXPECT_EQ(rowsOf(ImageOf(drawing, 1)), (Rows{"...", "##."}));
}

TEST(RasterPlayer, NothingIsDrawnOutside) {
    Canvas canvas(2 * 15, 2 * 15);
    canvas.FillBox({-100, -100}, {100, 0});
    canvas.DrawLine({200, 15}, {300, 15});
    canvas.FillDisc({-300, -300}, 30);
    EXPECT_EQ(rowsOf(ImageOf(canvas.Take())), (Rows{"##", ".."}));
}

TEST(RasterPlayer, ColoursAreTheDrawings) {
    Canvas canvas(2 * 15, 15);
    canvas.FillBox({0, 0}, {0, 0}, 0x123456);
    canvas.Pen.Ink = 0xFF0000;
    canvas.DrawLine({15, 0}, {15, 0});
    const QImage image = ImageOf(canvas.Take());
    EXPECT_EQ(image.pixel(0, 0), 0xFF123456);
    EXPECT_EQ(image.pixel(1, 0), 0xFFFF0000);
}

TEST(RasterPlayer, DiscIsRoundAroundTheMiddleOfItsPixel) {
    Canvas canvas(11 * 15, 11 * 15);
    canvas.FillDisc({75, 75}, 60);
    const Rows rows = rowsOf(ImageOf(canvas.Take()));
    EXPECT_EQ(rows[5].substr(2, 7), "#######");
    EXPECT_EQ(rows[5][0], '.');
    EXPECT_EQ(rows[1][1], '.');
    for (int y = 0; y < 11; ++y) {
        EXPECT_EQ(rows[std::size_t(y)], rows[std::size_t(10 - y)]);
        EXPECT_EQ(rows[std::size_t(y)],
                  std::string(rows[std::size_t(y)].rbegin(), rows[std::size_t(y)].rend()));
    }
}

TEST(RasterPlayer, DiscsOfEqualPlaceInTheirPixelsLookTheSame) {
    Canvas canvas(60 * 15, 15 * 15);
    canvas.FillDisc({80, 80}, 45);
    canvas.FillDisc({80 + 300, 80}, 45);
    canvas.FillDisc({80 + 605, 80}, 45);
    const QImage image = ImageOf(canvas.Take());
    EXPECT_EQ(image.copy(0, 0, 15, 15), image.copy(20, 0, 15, 15));
    EXPECT_NE(image.copy(0, 0, 15, 15), image.copy(40, 0, 15, 15)); // a third of a pixel further
}

TEST(RasterPlayer, DiscWithoutRadiusIsNotSeen) {
    Canvas canvas(3 * 15, 3 * 15);
    canvas.FillDisc({15, 15}, 0);
    EXPECT_EQ(rowsOf(ImageOf(canvas.Take())), Rows(3, "..."));
}

TEST(RasterPlayer, SlantingLineGoesFromPointToPoint) {
    Canvas canvas(10 * 15, 10 * 15);
    canvas.DrawLine({15, 15}, {120, 120});
    const Rows rows = rowsOf(ImageOf(canvas.Take()));
    for (std::size_t place = 1; place <= 8; ++place) EXPECT_NE(rows[place][place], '.') << place;
    EXPECT_EQ(rows[9], "..........");
    EXPECT_EQ(rows[0].substr(2), "........");
}

// The first and last row and column that are not white.
QRect inkOf(const QImage& image) {
    int left = image.width(), top = image.height(), right = -1, bottom = -1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == white) continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    return {QPoint(left, top), QPoint(right, bottom)};
}

TEST(RasterPlayer, TextStandsBelowAndRightOfItsPoint) {
    Canvas canvas(100 * 15, 40 * 15);
    canvas.Write({10 * 15, 10 * 15}, "Hx");
    const QRect ink = inkOf(ImageOf(canvas.Take()));
    EXPECT_GE(ink.left(), 10);
    EXPECT_LE(ink.left(), 12);
    EXPECT_GE(ink.top(), 10);
    EXPECT_LE(ink.top(), 14);
    EXPECT_LE(ink.bottom(), 10 + 15); // 8 points are 10.7 pixels
}

TEST(RasterPlayer, TextKeepsItsPlaceAndProportionAtEveryScale) {
    Canvas canvas(200 * 15, 40 * 15);
    canvas.Write({10 * 15, 10 * 15}, "Czekanowski");
    const Drawing drawing = canvas.Take();
    const QRect once = inkOf(ImageOf(drawing));
    const QRect thrice = inkOf(ImageOf(drawing, 3));
    EXPECT_NEAR(thrice.left(), once.left() * 3, 3);
    EXPECT_NEAR(thrice.right(), once.right() * 3, 4);
    EXPECT_NEAR(thrice.bottom(), once.bottom() * 3, 4);
}

TEST(RasterPlayer, TextIsSmoothedWithoutColours) {
    Canvas canvas(100 * 15, 40 * 15);
    canvas.Write({0, 0}, "Sax");
    const QImage image = ImageOf(canvas.Take());
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
    EXPECT_GT(colours.size(), 2U);
    for (const QRgb colour : colours) EXPECT_TRUE(qIsGray(colour)) << std::hex << colour;
}

TEST(RasterPlayer, OnlyTheFirstSheetIsDrawn) {
    Canvas canvas(2 * 15, 15);
    canvas.DrawLine({0, 0}, {0, 0});
    canvas.StartPage();
    canvas.DrawLine({15, 0}, {15, 0});
    EXPECT_EQ(rowsOf(ImageOf(canvas.Take())), (Rows{"#."}));
}

TEST(RasterPlayer, PictureTooLargeForMemoryIsRefused) {
    EXPECT_THROW(ImageOf(Drawing{15e6, 15e6, {}}), std::bad_alloc);
}

TEST(QtRasterizer, GivesTheSamePixels) {
    Canvas canvas(31, 20);
    canvas.FillBox({15, 0}, {15, 15}, 0x123456);
    const Drawing drawing = canvas.Take();
    painting::QtRasterizer rasterizer;
    const PixelImage pixels = rasterizer.pixelsOf(drawing);
    EXPECT_EQ(pixels.Width, 3);
    EXPECT_EQ(pixels.Height, 2);
    EXPECT_EQ(pixels.Pixels,
              (std::vector<std::uint32_t>{0xFFFFFF, 0x123456, 0xFFFFFF, 0xFFFFFF, 0x123456, 0xFFFFFF}));
}

// Five records whose cells go through all classes, the unclassified one among them.
DiagramDocument documentOfAllClasses(std::int16_t type, int count = 5) {
    DiagramDocument document;
    document.RecCount = static_cast<std::int16_t>(count);
    document.DiagType = type;
    document.RecordNames = Array1<std::string>(count, "name");
    document.Classes = Array2<std::int16_t>(count, count);
    for (int i = 1; i <= count; ++i)
        for (int j = 1; j <= count; ++j) document.Classes(i, j) = static_cast<std::int16_t>((i + j) % 6);
    document.SectionLimits.Cells() = {1, 2, 3, 4};
    return document;
}

// Without texts a picture does not depend on the fonts of the machine.
Drawing withoutTexts(Drawing drawing) {
    std::erase_if(drawing.Operations,
                  [](const auto& operation) { return std::holds_alternative<drawing::Text>(operation); });
    return drawing;
}

class GoldenPictures : public ::testing::TestWithParam<int> {};

TEST_P(GoldenPictures, BitmapOfAllClasses) {
    FixedMeasure measure;
    const auto document = documentOfAllClasses(static_cast<std::int16_t>(GetParam()));
    const QImage image = ImageOf(withoutTexts(BitmapDrawing(document, measure, '.')));
    EXPECT_TRUE(
        matchesGoldenPicture(image, "painting/golden/bitmap_type_" + std::to_string(GetParam()) + ".png"));
}

TEST_P(GoldenPictures, BitmapOfSmallCells) {
    FixedMeasure measure;
    const auto document = documentOfAllClasses(static_cast<std::int16_t>(GetParam()), 101);
    const QImage image = ImageOf(withoutTexts(BitmapDrawing(document, measure, '.')));
    EXPECT_EQ(image.size(), QSize(1790, 1750));
    const QImage corner = image.copy(0, 0, 170, 100);
    EXPECT_TRUE(matchesGoldenPicture(corner, "painting/golden/small_cells_type_" +
                                                 std::to_string(GetParam()) + ".png"));
}

INSTANTIATE_TEST_SUITE_P(Types, GoldenPictures, ::testing::Values(1, 2, 3));

TEST(GoldenPictures, Histogram) {
    FixedMeasure measure;
    const Drawing drawing = HistogramDrawing({408, 816, 1224, 1632, 2040}, true, measure);
    EXPECT_TRUE(matchesGoldenPicture(ImageOf(withoutTexts(drawing)), "painting/golden/histogram.png"));
}

} // namespace
} // namespace dorvan::test
