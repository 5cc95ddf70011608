#pragma once

#include "making/attractions.h"
#include "making/best_order.h"
#include "numbers/random_source.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <numeric>
#include <utility>

// The criterion as it is written down, the minimum over all orders, and tables to try both on.
namespace dorvan::plain {

inline Records Ascending(int count) {
    Records order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    return order;
}

// 2-SUM / n^2: each pair twice.
inline double TwoSum(const FloatTable& distances, const Records& order) {
    const auto n = static_cast<int>(order.size());
    double sum = 0;
    for (int a = 0; a < n; ++a)
        for (int b = 0; b < n; ++b)
            if (a != b)
                sum += double(a - b) * double(a - b) /
                       (1.0 + double(distances(order[std::size_t(a)] + 1, order[std::size_t(b)] + 1)));
    return sum / (double(n) * double(n));
}

inline Records FromZero(const Order& order) {
    Records records;
    for (const std::int16_t record : order.Cells()) records.push_back(record - 1);
    return records;
}

// Over all orders with the first record in the first half; the others are their mirror images.
inline double LeastTwoSum(const FloatTable& distances) {
    Records order = Ascending(distances.Rows());
    double least = std::numeric_limits<double>::infinity();
    do least = std::min(least, TwoSum(distances, order));
    while (std::next_permutation(order.begin(), order.end()));
    return least;
}

inline bool IsPermutation(const Records& order, int count) {
    Records sorted = order;
    std::sort(sorted.begin(), sorted.end());
    return sorted == Ascending(count);
}

// Symmetric, with 0 on the diagonal.
inline FloatTable Table(int n, const std::function<float(int, int)>& distance) {
    FloatTable table(n, n);
    for (int i = 1; i <= n; ++i)
        for (int j = 1; j < i; ++j) table(i, j) = table(j, i) = distance(i, j);
    return table;
}

inline FloatTable Noise(int n, std::uint64_t seed, float largest = 1) {
    RandomSource random(seed);
    return Table(n, [&](int, int) { return largest * random.Draw(); });
}

inline FloatTable WholeNumbers(int n, std::uint64_t seed, int largest) {
    RandomSource random(seed);
    return Table(n, [&](int, int) { return float(RandomInRange(random, 1, largest)); });
}

// Points in the plane, in `groups` groups.
inline FloatTable Points(int n, std::uint64_t seed, int groups = 1) {
    RandomSource random(seed);
    std::vector<std::pair<double, double>> points;
    for (int i = 0; i < n; ++i) {
        const double middle = 7.0 * (i % groups);
        points.emplace_back(middle + double(random.Draw()), 3 * double(random.Draw()));
    }
    return Table(n, [&](int i, int j) {
        const auto& [x, y] = points[std::size_t(i - 1)];
        const auto& [u, v] = points[std::size_t(j - 1)];
        return float(std::hypot(x - u, y - v));
    });
}

// The records as they stand at random: place i takes the record order[i].
inline FloatTable Shuffled(const FloatTable& distances, const Records& order) {
    const int n = distances.Rows();
    FloatTable table(n, n);
    for (int i = 1; i <= n; ++i)
        for (int j = 1; j <= n; ++j)
            table(i, j) = distances(order[std::size_t(i - 1)] + 1, order[std::size_t(j - 1)] + 1);
    return table;
}

} // namespace dorvan::plain
