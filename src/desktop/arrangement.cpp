#include "desktop/arrangement.h"

#include <algorithm>
#include <cmath>

namespace dorvan {

std::vector<QRect> CascadePlaces(QSize room, int windows, int step) {
    const QSize size = room * 3 / 4;
    const int steps =
        std::max(1, std::min(room.width() - size.width(), room.height() - size.height()) / step + 1);
    std::vector<QRect> places;
    for (int window = 0; window < windows; ++window) {
        const int offset = window % steps * step;
        places.emplace_back(QPoint(offset, offset), size);
    }
    return places;
}

std::vector<QRect> TilePlaces(QSize room, int windows) {
    std::vector<QRect> places;
    const int rows = int(std::sqrt(double(windows)));
    for (int row = 0; row < rows; ++row) {
        const int first = windows * row / rows;
        const int count = windows * (row + 1) / rows - first;
        const int top = room.height() * row / rows;
        const int bottom = room.height() * (row + 1) / rows;
        for (int place = 0; place < count; ++place) {
            const int left = room.width() * place / count;
            const int right = room.width() * (place + 1) / count;
            places.emplace_back(left, top, right - left, bottom - top);
        }
    }
    return places;
}

} // namespace dorvan
