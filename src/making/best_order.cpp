#include "making/best_order.h"

#include "making/order_search.h"
#include "making/robinson_order.h"
#include "numbers/runtime_failure.h"

#include <algorithm>
#include <limits>

namespace dorvan {

namespace {

// Below a distance of -1 attraction does not fall as the distance grows.
bool AttractionsFall(const FloatTable& distances) {
    return std::all_of(distances.Cells().begin(), distances.Cells().end(),
                       [](float distance) { return distance > -1; });
}

Records MinimalOrder(const FloatTable& distances, const Attractions& attractions, std::uint64_t seed,
                     const BestOrderWatch& progress, int threads) {
    if (AttractionsFall(distances))
        if (const auto perfect = RobinsonOrder(distances)) return *perfect;
    return SearchBestOrder(attractions, seed, progress, threads);
}

// Of the two directions the one in which the first record that does not stand in the very middle stands in
// the first half.
void TurnRound(Records& order) {
    const std::size_t n = order.size();
    for (const int record : {0, 1}) {
        const auto place =
            static_cast<std::size_t>(std::find(order.begin(), order.end(), record) - order.begin());
        if (2 * place + 1 == n) continue;
        if (2 * place + 1 > n) std::reverse(order.begin(), order.end());
        return;
    }
}

} // namespace

Order BestOrder(const FloatTable& distances, std::uint64_t seed, const BestOrderWatch& progress,
                int threads) {
    if (distances.Rows() > std::numeric_limits<std::int16_t>::max()) throw RuntimeFailure(Failure::Overflow);
    const Attractions attractions(distances);
    Order order(distances.Rows(), 1);
    if (order.Count() < 2) return order;
    Records found = MinimalOrder(distances, attractions, seed, progress, threads);
    TurnRound(found);
    std::transform(found.begin(), found.end(), order.Cells().begin(),
                   [](int record) { return static_cast<std::int16_t>(record + 1); });
    return order;
}

} // namespace dorvan
