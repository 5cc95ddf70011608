#include "view/vector_symbols.h"

#include "support/drawings.h"

#include <gmock/gmock.h>

namespace dorvan::test {
namespace {

using namespace drawing;
using ::testing::ElementsAre;

constexpr Pen Thin{Black, 15};
constexpr Pen Paper{Black, 2};

std::vector<Operation> OnBitmap(Point centre, double side, int cellClass) {
    Canvas canvas(1000, 1000);
    canvas.Pen.Width = 99;
    BmpPic(canvas, centre, side, cellClass);
    EXPECT_EQ(canvas.Pen.Width, 99);
    return canvas.Take().Operations;
}

std::vector<Operation> OnPaper(Point centre, double size, int grey) {
    Canvas canvas(1000, 1000);
    canvas.Pen.Width = 1;
    PrintPic(canvas, centre, size, grey);
    EXPECT_EQ(canvas.Pen.Width, 1);
    return canvas.Take().Operations;
}

TEST(BmpPic, ClassTwoIsAFrameWithThreeLines) {
    EXPECT_THAT(OnBitmap({500, 400}, 210, 2), ElementsAre(Operation(Box{{395, 505}, {605, 295}, Thin}),
                                                          Operation(Line{{465, 505}, {465, 295}, Thin}),
                                                          Operation(Line{{500, 505}, {500, 295}, Thin}),
                                                          Operation(Line{{535, 505}, {535, 295}, Thin})));
}

TEST(BmpPic, ClassThreeIsAFrameWithOneBar) {
    EXPECT_THAT(OnBitmap({500, 400}, 210, 3),
                ElementsAre(Operation(Box{{395, 505}, {605, 295}, Thin}),
                            Operation(FilledBox{{465, 505}, {535, 295}, Black})));
}

TEST(BmpPic, ClassFourIsAFrameWithTwoBarsOfRoundedEdges) {
    // 210 / 4 is 52.5 and 210 / 2 is 105: the tie goes to the even number.
    EXPECT_THAT(OnBitmap({500, 400}, 210, 4),
                ElementsAre(Operation(Box{{395, 505}, {605, 295}, Thin}),
                            Operation(FilledBox{{395, 505}, {448, 295}, Black}),
                            Operation(FilledBox{{552, 505}, {605, 295}, Black})));
    // 175 / 4 is 43.75 and 175 / 2 is 87.5.
    EXPECT_THAT(OnBitmap({500, 400}, 175, 4),
                ElementsAre(Operation(Box{{412.5, 487.5}, {587.5, 312.5}, Thin}),
                            Operation(FilledBox{{412, 487.5}, {456, 312.5}, Black}),
                            Operation(FilledBox{{544, 487.5}, {588, 312.5}, Black})));
}

TEST(BmpPic, ClassFiveIsAFilledSquare) {
    EXPECT_THAT(OnBitmap({500, 400}, 210, 5),
                ElementsAre(Operation(FilledBox{{395, 505}, {605, 295}, Black})));
}

TEST(BmpPic, OtherClassesDrawNothing) {
    for (const int cellClass : {-1, 0, 1, 6}) EXPECT_TRUE(OnBitmap({500, 400}, 210, cellClass).empty());
}

TEST(PrintPic, TakesSevenTenthsOfTheSizeAsA32BitFloat) {
    const double side = static_cast<float>(0.7 * 156);
    ASSERT_NE(side, 0.7 * 156);
    EXPECT_THAT(OnPaper({500, 400}, 156, 25),
                ElementsAre(Operation(
                    FilledBox{{500 - side / 2, 400 + side / 2}, {500 + side / 2, 400 - side / 2}, Black})));
}

TEST(PrintPic, GreyLevelsChooseTheSymbol) {
    // A size of 100 gives a side of 70.
    const Box frame{{465, 435}, {535, 365}, Paper};
    EXPECT_THAT(OnPaper({500, 400}, 100, 225),
                ElementsAre(Operation(frame),
                            Operation(Line{{500 - 70.0 / 6, 435}, {500 - 70.0 / 6, 365}, Paper}),
                            Operation(Line{{500, 435}, {500, 365}, Paper}),
                            Operation(Line{{500 + 70.0 / 6, 435}, {500 + 70.0 / 6, 365}, Paper})));
    EXPECT_THAT(OnPaper({500, 400}, 100, 170),
                ElementsAre(Operation(frame),
                            Operation(FilledBox{{500 - 70.0 / 6, 435}, {500 + 70.0 / 6, 365}, Black})));
    EXPECT_THAT(OnPaper({500, 400}, 100, 100),
                ElementsAre(Operation(frame), Operation(FilledBox{{465, 435}, {486, 365}, Black}),
                            Operation(FilledBox{{514, 435}, {535, 365}, Black})));
    EXPECT_THAT(OnPaper({500, 400}, 100, 25),
                ElementsAre(Operation(FilledBox{{465, 435}, {535, 365}, Black})));
}

TEST(PrintPic, BarsOfPaperAreNotRounded) {
    const double side = static_cast<float>(0.7 * 156);
    const auto drawn = OnPaper({500, 400}, 156, 100);
    ASSERT_EQ(drawn.size(), 3U);
    EXPECT_EQ(drawn[1], Operation(FilledBox{
                            {500 - side / 2, 400 + side / 2}, {500 - side / 5, 400 - side / 2}, Black}));
}

TEST(PrintPic, OtherGreyLevelsDrawNothing) {
    for (const int grey : {255, 0, 24, 101}) EXPECT_TRUE(OnPaper({500, 400}, 100, grey).empty());
}

} // namespace
} // namespace dorvan::test
