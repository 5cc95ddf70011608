#include "desktop/grid_mosaic.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace dorvan::test {

namespace {

constexpr QRgb Empty = 0xFF1E1E1EU;

// A picture of its own for every number and side: no two pixels alike.
QImage PictureOf(std::uint8_t picture, int side) {
    QImage image(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) image.setPixel(x, y, qRgb(picture * 20, x * 7, y * 7));
    return image;
}

// Cell by cell, by a painter.
QImage PlainMosaic(const Grid& grid, const std::vector<MosaicLine>& rows,
                   const std::vector<MosaicLine>& columns, int side) {
    QImage image(columns.back().Start + columns.back().Size, rows.back().Start + rows.back().Size,
                 QImage::Format_RGB32);
    QPainter painter(&image);
    for (const auto& row : rows)
        for (const auto& column : columns) {
            const QRect cell(column.Start, row.Start, column.Size, row.Size);
            const auto picture = grid.Picture(row.Cell, column.Cell);
            painter.setClipRect(cell);
            painter.fillRect(cell, picture == 0 ? QColor::fromRgb(Empty) : QColor(Qt::white));
            if (picture != 0)
                painter.drawImage(cell.left() + std::max(0, (cell.width() - side) / 2),
                                  cell.top() + std::max(0, (cell.height() - side) / 2),
                                  PictureOf(picture, side));
        }
    return image;
}

} // namespace

TEST(MosaicOf, IsWhatAPainterDrawsCellByCell) {
    Grid grid{"Siatka"};
    grid.SetSize(9, 9);
    for (int row = 0; row < 9; ++row)
        for (int column = 0; column < 9; ++column)
            grid.SetPicture(row, column, std::uint8_t((row * 3 + column) % 7));
    for (const int cell : {1, 2, 3, 9, 17, 26, 34})
        for (const int side : {1, 2, 8, 16, 24, 40}) {
            // Neither all rows nor all columns, and one of each of another size.
            std::vector<MosaicLine> rows{{2, 0, cell}, {5, cell, cell + 3}, {6, 2 * cell + 3, cell}};
            std::vector<MosaicLine> columns{{1, 0, cell + 1}, {4, cell + 1, cell}, {8, 2 * cell + 1, cell}};
            QImage pictures[8];
            const QImage made =
                MosaicOf(grid, rows, columns, Empty, [&](std::uint8_t picture) -> const QImage& {
                    return pictures[picture] = PictureOf(picture, side);
                });
            ASSERT_EQ(made, PlainMosaic(grid, rows, columns, side)) << cell << " " << side;
        }
}

TEST(MosaicOf, NoCellsMakeNoPicture) {
    Grid grid{"Siatka"};
    grid.SetSize(2, 2);
    const auto none = [](std::uint8_t) -> const QImage& { throw std::logic_error("asked for"); };
    EXPECT_TRUE(MosaicOf(grid, {}, {{0, 0, 5}}, Empty, none).isNull());
    EXPECT_TRUE(MosaicOf(grid, {{0, 0, 5}}, {}, Empty, none).isNull());
}

TEST(PictureSide, IsSixteenSeventeenthsOfTheCell) {
    EXPECT_EQ(PictureSide(17), 16);
    EXPECT_EQ(PictureSide(26), 24);
    EXPECT_EQ(PictureSide(34), 32);
    EXPECT_EQ(PictureSide(21), 20);
    EXPECT_EQ(PictureSide(30), 28);
    EXPECT_EQ(PictureSide(51), 48);
    EXPECT_EQ(PictureSide(2), 2);
    EXPECT_EQ(PictureSide(1), 1);
}

} // namespace dorvan::test
