#include "making/orderings.h"

namespace dorvan {

Order SimpleOrder(const FloatTable& distances, float maxDistance) {
    const std::int32_t n = distances.Rows();
    Order order(n);
    Flags visited(n);
    visited(1) = true;
    order(1) = 1;
    std::int16_t nearest = 0;
    std::int32_t current = 1;
    std::int32_t count = 1;
    do {
        float bestDistance = maxDistance;
        for (std::int32_t j = 1; j <= n; ++j) {
            if (!(distances(current, j) <= bestDistance) || visited(j)) continue;
            bestDistance = distances(current, j);
            nearest = static_cast<std::int16_t>(j);
        }
        order(++count) = nearest;
        current = nearest;
        visited(nearest) = true;
    } while (count != n);
    return order;
}

} // namespace dorvan
