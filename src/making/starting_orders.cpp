#include "making/starting_orders.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <numeric>

namespace dorvan {

namespace {

// Takes one record after the other, the one with the greatest claim. `claim(old, attraction)` is what the
// claim of a record becomes when a record with this attraction has been taken.
template <class Claim> Records Greedy(const Attractions& attractions, int first, const Claim& claim) {
    const auto n = static_cast<std::size_t>(attractions.Count());
    Records order;
    Records left(n);
    std::iota(left.begin(), left.end(), 0);
    std::vector<double> claims(n, -std::numeric_limits<double>::infinity());
    for (auto next = left.begin() + first; next != left.end();) {
        const int taken = *next;
        order.push_back(taken);
        left.erase(next);
        const double* row = attractions.Row(taken);
        for (const int record : left) {
            double& old = claims[std::size_t(record)];
            old = claim(old, row[record]);
        }
        next = std::max_element(left.begin(), left.end(), [&](int a, int b) {
            return claims[std::size_t(a)] < claims[std::size_t(b)];
        });
    }
    return order;
}

} // namespace

Records GroupedOrder(const Attractions& attractions, int first) {
    return Greedy(attractions, first,
                  [](double old, double attraction) { return std::max(old, attraction); });
}

Records WalkOrder(const Attractions& attractions, int first) {
    return Greedy(attractions, first, [](double, double attraction) { return attraction; });
}

Records RandomOrder(int count, RandomSource& random) {
    Records order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    for (int place = count - 1; place > 0; --place)
        std::swap(order[std::size_t(place)], order[std::size_t(RandomInRange(random, 0, place))]);
    return order;
}

} // namespace dorvan
