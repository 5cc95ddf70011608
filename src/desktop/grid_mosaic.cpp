#include "desktop/grid_mosaic.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace dorvan {

namespace {

constexpr QRgb White = 0xFFFFFFFFU;

int EndOf(const std::vector<MosaicLine>& lines) {
    return lines.empty() ? 0 : lines.back().Start + lines.back().Size;
}

// Where a picture lies in a cell, along one axis: in the middle, cut where the cell is smaller.
struct Span {
    int Before; // pixels of the cell
    int First;  // pixel of the picture
    int Count;

    Span(int cell, int picture)
        : Before(std::max(0, (cell - picture) / 2)), First(0), Count(std::min(cell, picture)) {}
};

class Mosaic {
public:
    Mosaic(int width, int height) : image_(width, height, QImage::Format_RGB32) {}

    void Fill(const MosaicLine& row, const MosaicLine& column, QRgb colour) {
        for (int y = 0; y < row.Size; ++y)
            std::fill_n(Line(row.Start + y) + column.Start, column.Size, colour);
    }

    void Put(const MosaicLine& row, const MosaicLine& column, const QImage& picture) {
        const Span across(column.Size, picture.width());
        const Span down(row.Size, picture.height());
        for (int y = 0; y < row.Size; ++y) {
            QRgb* pixel = Line(row.Start + y) + column.Start;
            const int line = y - down.Before;
            if (line < 0 || line >= down.Count) {
                std::fill_n(pixel, column.Size, White);
                continue;
            }
            const auto* source =
                reinterpret_cast<const QRgb*>(picture.constScanLine(down.First + line)) + across.First;
            pixel = std::fill_n(pixel, across.Before, White);
            pixel = std::copy_n(source, across.Count, pixel);
            std::fill_n(pixel, column.Size - across.Before - across.Count, White);
        }
    }

    QImage Take() { return std::move(image_); }

private:
    QRgb* Line(int y) { return reinterpret_cast<QRgb*>(bits_ + y * stride_); }

    QImage image_;
    uchar* bits_ = image_.bits();
    qsizetype stride_ = image_.bytesPerLine();
};

} // namespace

int PictureSide(int cell) { return int(std::lround(cell * 16 / 17.0)); }

QImage MosaicOf(const Grid& grid, const std::vector<MosaicLine>& rows, const std::vector<MosaicLine>& columns,
                QRgb empty, const std::function<const QImage&(std::uint8_t picture)>& image) {
    if (rows.empty() || columns.empty()) return {};
    Mosaic mosaic(EndOf(columns), EndOf(rows));
    std::array<const QImage*, 256> known{};
    for (const auto& row : rows)
        for (const auto& column : columns) {
            const std::uint8_t picture = grid.Picture(row.Cell, column.Cell);
            if (picture == 0) {
                mosaic.Fill(row, column, empty);
                continue;
            }
            if (!known[picture]) known[picture] = &image(picture);
            mosaic.Put(row, column, *known[picture]);
        }
    return mosaic.Take();
}

} // namespace dorvan
