#include "making/order_scorer.h"

#include "making/lane_sums.h"

#include <algorithm>
#include <cmath>

namespace dorvan {

OrderScorer::OrderScorer(const FloatTable& denominators)
    : n_(denominators.Rows()), denominators_(denominators) {
    const auto n = static_cast<std::size_t>(n_);
    squares_.resize(n);
    for (std::size_t k = 0; k < n; ++k) squares_[k] = double(k) * double(k);
    records_.resize(n * Lanes);
    whole_ = n_ <= 512;
    reciprocals_.reserve(n * n);
    for (int row = 1; row <= n_; ++row)
        for (int column = 1; column <= n_; ++column) {
            const float denominator = denominators(row, column);
            reciprocals_.push_back(1.0 / double(denominator));
            if (row == column) continue;
            positive_ = positive_ && denominator > 0;
            whole_ = whole_ && denominator <= 256 && std::floor(denominator) == denominator;
        }
}

void OrderScorer::Score(Orders orders, std::span<float> scores) {
    const auto n = static_cast<std::size_t>(n_);
    for (std::size_t first = 0; first < scores.size(); first += Lanes) {
        const std::size_t count = std::min(scores.size() - first, std::size_t(Lanes));
        for (std::size_t lane = 0; lane < Lanes; ++lane) {
            const Orders order = orders.subspan((first + std::min(lane, count - 1)) * n, n);
            for (std::size_t place = 0; place < n; ++place) records_[place * Lanes + lane] = order[place] - 1;
        }
        const auto sums = SumLanes({n_, records_.data(), denominators_.Cells().data(), reciprocals_.data(),
                                    squares_.data(), positive_, whole_});
        for (std::size_t lane = 0; lane < count; ++lane) {
            if (!std::isfinite(sums[lane])) throw RuntimeFailure(Failure::DivisionByZero);
            scores[first + lane] = static_cast<float>(double(sums[lane]) / (double(n_) * double(n_) / 2.0));
        }
    }
}

} // namespace dorvan
