#include "making/order_quality.h"

#include "making/order_scorer.h"
#include "making/order_scores.h"

#include <cstddef>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

namespace dorvan {

namespace {

float ScoreAsItStands(const FloatTable& denominators) {
    if (denominators.Rows() < 2) return 0;
    std::vector<std::int16_t> order(static_cast<std::size_t>(denominators.Rows()));
    std::iota(order.begin(), order.end(), std::int16_t(1));
    float score = 0;
    OrderScorer(denominators).Score(order, std::span(&score, 1));
    return score;
}

// How many of the distances nearer to the diagonal than the one at `far`, on its side, are greater.
std::int64_t GreaterAndNearer(const float* row, std::int32_t diagonal, std::int32_t far) {
    std::int64_t count = 0;
    const auto [first, last] = far < diagonal ? std::pair(far + 1, diagonal) : std::pair(diagonal + 1, far);
    for (std::int32_t near = first; near < last; ++near) count += row[near] > row[far] ? 1 : 0;
    return count;
}

} // namespace

double PathLength(const FloatTable& distances) {
    double length = 0;
    for (std::int32_t place = 1; place < distances.Rows(); ++place)
        length += double(distances(place, place + 1));
    return length;
}

float ScoreOfOrder(const FloatTable& distances) { return ScoreAsItStands(ScoreDenominators(distances)); }

float UmOfOrder(const FloatTable& distances) {
    return ScoreAsItStands(UmDenominators(MakeByteMatrix(distances, 1.0F)));
}

std::int64_t AntiRobinsonEvents(const FloatTable& distances) {
    const std::int32_t n = distances.Rows();
    std::int64_t events = 0;
    for (std::int32_t i = 0; i < n; ++i)
        for (std::int32_t far = 0; far < n; ++far) events += GreaterAndNearer(distances.Row(i + 1), i, far);
    return events;
}

} // namespace dorvan
