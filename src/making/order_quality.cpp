#include "making/order_quality.h"

#include "making/order_scorer.h"
#include "making/order_scores.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <span>
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

// Merges two sorted runs that follow each other, and counts the pairs in which the earlier value is greater.
std::int64_t Merge(const float* first, const float* middle, const float* last, float* merged) {
    std::int64_t count = 0;
    const float* left = first;
    const float* right = middle;
    while (left < middle && right < last) {
        const bool greater = *left > *right;
        count += greater ? middle - left : 0;
        *merged++ = greater ? *right++ : *left++;
    }
    merged = std::copy(left, middle, merged);
    std::copy(right, last, merged);
    return count;
}

// In how many pairs of places the earlier value is greater, by a merge sort of `values`: O(n log n).
std::int64_t Inversions(std::vector<float>& values, std::vector<float>& merged) {
    const std::size_t size = values.size();
    merged.resize(size);
    std::int64_t count = 0;
    for (std::size_t width = 1; width < size; width *= 2) {
        for (std::size_t start = 0; start < size; start += 2 * width) {
            const float* run = values.data() + start;
            count += Merge(run, run + std::min(width, size - start), run + std::min(2 * width, size - start),
                           merged.data() + start);
        }
        values.swap(merged);
    }
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

// Away from the diagonal an event is a pair in which the nearer distance is greater.
std::int64_t AntiRobinsonEvents(const FloatTable& distances) {
    const std::int32_t n = distances.Rows();
    std::int64_t events = 0;
    std::vector<float> side;
    std::vector<float> merged;
    for (std::int32_t i = 0; i < n; ++i) {
        const float* row = distances.Row(i + 1);
        side.assign(std::make_reverse_iterator(row + i), std::make_reverse_iterator(row));
        events += Inversions(side, merged);
        side.assign(row + i + 1, row + n);
        events += Inversions(side, merged);
    }
    return events;
}

} // namespace dorvan
