#include "platform/controls.h"
#include "platform/drawing.h"
#include "support/drawings.h"

#include <gmock/gmock.h>

#include <sstream>

namespace dorvan::test {
namespace {

using namespace drawing;
using ::testing::ElementsAre;

TEST(DrawingValue, CanvasDrawsWithWhatIsSetAtTheMoment) {
    Canvas canvas(300, 200);
    canvas.DrawLine({0, 0}, {10, 0});
    canvas.Pen = {GreyOf(128), 30};
    canvas.DrawBox({1, 2}, {3, 4});
    canvas.FillBox({5, 6}, {7, 8});
    canvas.FillBox({5, 6}, {7, 8}, 0xFF0000);
    canvas.FillDisc({9, 10.5}, 11);
    canvas.Font = {"Courier New", 7, true};
    canvas.Write({12, 13}, "Ł");
    canvas.StartPage();
    const Drawing drawing = canvas.Take();
    EXPECT_EQ(drawing.Width, 300);
    EXPECT_EQ(drawing.Height, 200);
    EXPECT_THAT(
        drawing.Operations,
        ElementsAre(
            Operation(Line{{0, 0}, {10, 0}, {Black, 15}}), Operation(Box{{1, 2}, {3, 4}, {0x808080, 30}}),
            Operation(FilledBox{{5, 6}, {7, 8}, 0x808080}), Operation(FilledBox{{5, 6}, {7, 8}, 0xFF0000}),
            Operation(Disc{{9, 10.5}, 11, 0x808080}),
            Operation(Text{{12, 13}, "Ł", {"Courier New", 7, true}, 0x808080}), Operation(NewPage{})));
}

TEST(DrawingValue, StartsWithABlackPenOfOnePixelAndTheOwnFontAtEightPoints) {
    const Canvas canvas(1, 1);
    EXPECT_EQ(canvas.Pen, (Pen{0x000000, 15}));
    EXPECT_EQ(canvas.Font, (Font{"", 8, false}));
}

TEST(DrawingValue, EmptyTextDrawsNothing) {
    Canvas canvas(1, 1);
    canvas.Write({0, 0}, "");
    EXPECT_TRUE(canvas.Take().Operations.empty());
}

TEST(DrawingValue, SettingsWithoutEffectMakeNoDifference) {
    Canvas first(10, 10);
    Canvas second(10, 10);
    second.Font.Bold = true;
    second.Font.Bold = false;
    for (auto* canvas : {&first, &second}) canvas->Write({0, 0}, "a");
    EXPECT_EQ(first.Take(), second.Take());
}

TEST(DrawingValue, EveryPartOfAnOperationCounts) {
    const std::vector<Operation> all = {
        Line{{0, 0}, {1, 1}, {}},
        Line{{0, 1}, {1, 1}, {}},
        Line{{0, 0}, {1, 2}, {}},
        Line{{0, 0}, {1, 1}, {White, 15}},
        Line{{0, 0}, {1, 1}, {Black, 30}},
        Box{{0, 0}, {1, 1}, {}},
        FilledBox{{0, 0}, {1, 1}, Black},
        FilledBox{{0, 0}, {1, 1}, White},
        Disc{{0, 0}, 1, Black},
        Disc{{0, 0}, 2, Black},
        Disc{{0, 0}, 1, White},
        Text{{0, 0}, "a", {}, Black},
        Text{{0, 0}, "b", {}, Black},
        Text{{0, 0}, "a", {"", 8, true}, Black},
        Text{{0, 0}, "a", {"", 9, false}, Black},
        Text{{0, 0}, "a", {"x", 8, false}, Black},
        Text{{0, 0}, "a", {}, White},
        NewPage{},
    };
    for (std::size_t i = 0; i < all.size(); ++i)
        for (std::size_t j = 0; j < all.size(); ++j)
            EXPECT_EQ(all[i] == all[j], i == j) << Described(all[i]) << " and " << Described(all[j]);
}

TEST(DrawingValue, IsToldOneOperationALine) {
    Canvas canvas(300, 200);
    canvas.DrawLine({0, 0}, {10.5, 0});
    canvas.DrawBox({1, 2}, {3, 4});
    canvas.FillBox({1, 2}, {3, 4}, GreyOf(225));
    canvas.FillDisc({1, 2}, 3);
    canvas.Write({1, 2}, "a");
    canvas.Font = {"Courier New", 7.5, true};
    canvas.Write({1, 2}, "b");
    canvas.StartPage();
    std::ostringstream told;
    told << canvas.Take();
    EXPECT_EQ(told.str(), "Drawing 300 x 200\n"
                          "Line (0, 0)-(10.5, 0) pen #000000 15\n"
                          "Box (1, 2)-(3, 4) pen #000000 15\n"
                          "FilledBox (1, 2)-(3, 4) fill #e1e1e1\n"
                          "Disc (1, 2) radius 3 fill #000000\n"
                          "Text (1, 2) \"a\" font - 8 #000000\n"
                          "Text (1, 2) \"b\" font Courier New 7.5 bold #000000\n"
                          "NewPage\n");
}

TEST(DrawingPages, AreCutAtNewPages) {
    Canvas canvas(30, 20);
    canvas.Write({0, 0}, "first");
    canvas.StartPage();
    canvas.Write({0, 0}, "second");
    const auto pages = PagesOf(canvas.Take());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0], (Drawing{30, 20, {Text{{0, 0}, "first", {}, Black}}}));
    EXPECT_EQ(pages[1], (Drawing{30, 20, {Text{{0, 0}, "second", {}, Black}}}));
}

TEST(DrawingPages, LeaveOutEmptyOnesAtTheEndOnly) {
    Canvas canvas(30, 20);
    canvas.StartPage();
    canvas.Write({0, 0}, "second");
    canvas.StartPage();
    canvas.StartPage();
    const auto pages = PagesOf(canvas.Take());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_TRUE(pages[0].Operations.empty());
}

TEST(DrawingPages, OfNothingAreOneEmptySheet) {
    EXPECT_EQ(PagesOf(Drawing{30, 20, {}}), (std::vector<Drawing>{Drawing{30, 20, {}}}));
    EXPECT_EQ(PagesOf(Drawing{30, 20, {NewPage{}}}), (std::vector<Drawing>{Drawing{30, 20, {}}}));
}

TEST(PictureControl, CountsItsDrawings) {
    Picture picture("Picture1");
    EXPECT_EQ(picture.Shown(), Drawing{});
    const auto revision = picture.Revision();
    picture.Show(Drawing{1, 2, {}});
    EXPECT_EQ(picture.Shown().Width, 1);
    EXPECT_GT(picture.Revision(), revision);
}

TEST(SameDrawing, NamesTheFirstDifference) {
    const Drawing drawn{30, 20, {Text{{0, 0}, "a", {}, Black}, Disc{{1, 1}, 2, Black}}};
    EXPECT_TRUE(sameDrawing(drawn, drawn));
    Drawing other = drawn;
    other.Operations[1] = Disc{{1, 1}, 3, Black};
    const auto result = sameDrawing(drawn, other);
    EXPECT_FALSE(result);
    EXPECT_STREQ(result.message(), "operation 2 is Disc (1, 1) radius 2 fill #000000\n"
                                   "instead of Disc (1, 1) radius 3 fill #000000");
    other.Operations.pop_back();
    EXPECT_STREQ(sameDrawing(drawn, other).message(),
                 "operation 2 is Disc (1, 1) radius 2 fill #000000\ninstead of nothing");
    EXPECT_STREQ(sameDrawing(Drawing{1, 2, {}}, Drawing{3, 4, {}}).message(), "size 1 x 2 instead of 3 x 4");
}

} // namespace
} // namespace dorvan::test
