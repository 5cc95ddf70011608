#pragma once

#include "platform/grid.h"

#include <QImage>

#include <functional>
#include <vector>

namespace dorvan {

// A row or column of cells in a picture of them: which one, where it begins and how large it is, in pixels.
struct MosaicLine {
    int Cell;
    int Start;
    int Size;
};

// The side of the picture in a cell of that side: 16 pixels in 17, the rest is left white.
int PictureSide(int cell);

// The pictures of all cells of the rows and columns side by side, each in the middle of its cell; a cell
// without a picture has the colour `empty`. Far faster than a painter that draws them one by one.
QImage MosaicOf(const Grid& grid, const std::vector<MosaicLine>& rows, const std::vector<MosaicLine>& columns,
                QRgb empty, const std::function<const QImage&(std::uint8_t picture)>& image);

} // namespace dorvan
