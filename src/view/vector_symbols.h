#pragma once

#include "platform/drawing.h"

// The hatched squares of the classic type, drawn with lines and boxes around a centre.
namespace dorvan {

// On a bitmap: the symbol of a class, 2 to 5, in a square of that side, with a pen of one pixel; other
// classes draw nothing. The pen stays as it was.
void BmpPic(Canvas& bitmap, drawing::Point centre, double side, int cellClass);

// On paper: the symbol of a grey level (225, 170, 100, 25 for the classes 2 to 5) in a square of 0.7 of the
// size, with a pen two device pixels wide; other levels draw nothing. The pen stays as it was.
void PrintPic(Canvas& page, drawing::Point centre, double size, int grey);

} // namespace dorvan
