#include "view/vector_symbols.h"

#include "numbers/rounding.h"

namespace dorvan {

namespace {

constexpr double ScreenPen = 15; // one pixel
constexpr double PaperPen = 2;   // two device pixels of a twip each

// Where the bars of class 4 begin and end, from the centre outwards.
struct TwoBars {
    double Inner;
    double Outer;
};

void DrawSymbol(Canvas& canvas, drawing::Point centre, double side, int cellClass, const TwoBars& bars) {
    const double bottom = centre.Y + side / 2;
    const double top = centre.Y - side / 2;
    const auto frame = [&] { canvas.DrawBox({centre.X - side / 2, bottom}, {centre.X + side / 2, top}); };
    const auto bar = [&](double left, double right) {
        canvas.FillBox({centre.X + left, bottom}, {centre.X + right, top});
    };
    switch (cellClass) {
    case 2:
        frame();
        for (const double x : {centre.X - side / 6, centre.X, centre.X + side / 6})
            canvas.DrawLine({x, bottom}, {x, top});
        break;
    case 3:
        frame();
        bar(-side / 6, side / 6);
        break;
    case 4:
        frame();
        bar(-bars.Outer, -bars.Inner);
        bar(bars.Inner, bars.Outer);
        break;
    case 5: bar(-side / 2, side / 2); break;
    default: break;
    }
}

int ClassOfGrey(int grey) {
    switch (grey) {
    case 225: return 2;
    case 170: return 3;
    case 100: return 4;
    case 25: return 5;
    default: return 0;
    }
}

} // namespace

void BmpPic(Canvas& bitmap, drawing::Point centre, double side, int cellClass) {
    const drawing::Pen before = bitmap.Pen;
    bitmap.Pen.Width = ScreenPen;
    DrawSymbol(bitmap, centre, side, cellClass,
               {double(RoundToInt16(side / 4)), double(RoundToInt16(side / 2))});
    bitmap.Pen = before;
}

void PrintPic(Canvas& page, drawing::Point centre, double size, int grey) {
    const drawing::Pen before = page.Pen;
    page.Pen.Width = PaperPen;
    const double side = RoundToFloat(0.7 * size);
    DrawSymbol(page, centre, side, ClassOfGrey(grey), {side / 5, side / 2});
    page.Pen = before;
}

} // namespace dorvan
