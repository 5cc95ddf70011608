#include "making/robinson_order.h"

#include "numbers/random_source.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace dorvan {

namespace {

constexpr int FirstFours = 64;
constexpr int FurtherFours = 4000;
constexpr int FirstSweeps = 4;

bool IsSymmetric(const FloatTable& distances) {
    for (int i = 1; i <= distances.Rows(); ++i)
        for (int j = 1; j < i; ++j)
            if (distances.Row(i)[j - 1] != distances.Row(j)[i - 1]) return false;
    return true;
}

// Four records in this order: each distance is at least those within it.
bool IsRobinsonFour(const FloatTable& distances, const std::array<int, 4>& order) {
    const auto at = [&](int a, int b) {
        return distances.Row(order[std::size_t(a)] + 1)[order[std::size_t(b)]];
    };
    return std::max(at(0, 1), at(1, 2)) <= at(0, 2) && std::max(at(1, 2), at(2, 3)) <= at(1, 3) &&
           std::max(at(0, 2), at(1, 3)) <= at(0, 3);
}

bool HasRobinsonOrder(const FloatTable& distances, std::array<int, 4> four) {
    std::sort(four.begin(), four.end());
    do {
        if (four[0] < four[3] && IsRobinsonFour(distances, four)) return true;
    } while (std::next_permutation(four.begin(), four.end()));
    return false;
}

// Looks at some fours of the records: if one of them has no such order, neither has the table.
bool FoursAllow(const FloatTable& distances, int count, RandomSource& random) {
    const int last = distances.Rows() - 1;
    if (last < 3) return true;
    for (int k = 0; k < count; ++k) {
        std::array<int, 4> four{};
        for (int& record : four) record = RandomInRange(random, 0, last);
        std::sort(four.begin(), four.end());
        if (std::adjacent_find(four.begin(), four.end()) != four.end()) continue;
        if (!HasRobinsonOrder(distances, four)) return false;
    }
    return true;
}

// Visits one record after the other. Those not yet visited stand in classes, which each visit splits by their
// distance from the visited record, the nearest first; the first of the first class is visited next. Ties go
// to the record that came last in the sweep before.
Records Sweep(const FloatTable& distances, const Records& before) {
    Records order(before.rbegin(), before.rend());
    const std::size_t n = order.size();
    std::vector<char> opens(n + 1, 0); // places at which a class begins
    opens[n] = 1;
    for (std::size_t visited = 0; visited + 1 < n; ++visited) {
        const float* row = distances.Row(order[visited] + 1);
        opens[visited + 1] = 1;
        for (std::size_t first = visited + 1; first < n;) {
            std::size_t end = first + 1;
            while (opens[end] == 0) ++end;
            if (end - first > 1) {
                std::stable_sort(order.begin() + std::ptrdiff_t(first), order.begin() + std::ptrdiff_t(end),
                                 [row](int a, int b) { return row[a] < row[b]; });
                for (std::size_t k = first + 1; k < end; ++k)
                    opens[k] = row[order[k - 1]] < row[order[k]] ? 1 : 0;
            }
            first = end;
        }
    }
    return order;
}

} // namespace

bool IsRobinson(const FloatTable& distances, const Records& order) {
    const std::size_t n = order.size();
    for (std::size_t i = 0; i < n; ++i) {
        const float* row = distances.Row(order[i] + 1);
        for (std::size_t j = i + 2; j < n; ++j)
            if (row[order[j]] < row[order[j - 1]]) return false;
        for (std::size_t j = i; j-- > 1;)
            if (row[order[j - 1]] < row[order[j]]) return false;
    }
    return true;
}

std::optional<Records> RobinsonOrder(const FloatTable& distances) {
    const int n = distances.Rows();
    Records order(static_cast<std::size_t>(n));
    std::iota(order.begin(), order.end(), 0);
    if (!IsSymmetric(distances)) return {};
    if (IsRobinson(distances, order)) return order;
    RandomSource random(1);
    if (!FoursAllow(distances, FirstFours, random)) return {};
    Records before;
    for (int sweep = 0; sweep < n; ++sweep) {
        if (sweep == FirstSweeps && !FoursAllow(distances, FurtherFours, random)) return {};
        Records next = Sweep(distances, order);
        if (IsRobinson(distances, next)) return next;
        if (next == before) return {}; // from here on the same two sweeps alternate
        before = std::exchange(order, std::move(next));
    }
    return {};
}

} // namespace dorvan
