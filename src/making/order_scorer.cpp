#include "making/order_scorer.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace dorvan {

namespace {

std::size_t Size(int count) { return static_cast<std::size_t>(count); }

} // namespace

OrderScorer::OrderScorer(const FloatTable& denominators)
    : n_(denominators.Rows()), squares_(Size(n_)), reciprocals_(Size(n_) * Size(n_)), reference_(Size(n_)),
      placeOf_(Size(n_) + 1), from_(Size(n_) * MostLanes), moves_(Size(n_) * MostLanes + 1),
      firstMoves_(Size(n_) + 1), moved_(Size(n_)), work_(LaneWork) {
    for (std::size_t k = 0; k < squares_.size(); ++k) squares_[k] = double(k) * double(k);
    std::iota(reference_.begin(), reference_.end(), std::int16_t(1));
    std::iota(placeOf_.begin(), placeOf_.end(), std::int16_t(-1));
    MakeReciprocals(denominators);
}

void OrderScorer::MakeReciprocals(const FloatTable& denominators) {
    whole_ = n_ <= 512;
    for (int row = 0; row < n_; ++row)
        for (int column = 0; column < n_; ++column) {
            if (row == column) continue;
            const float denominator = denominators(row + 1, column + 1);
            positive_ = positive_ && denominator > 0;
            whole_ = whole_ && denominator <= 256 && std::floor(denominator) == denominator;
            reciprocals_[Size(row) * Size(n_) + Size(column)] = 1.0 / double(denominator);
        }
}

void OrderScorer::Score(Orders orders, std::span<float> scores) {
    const auto count = static_cast<int>(scores.size());
    const int batches = (count + MostLanes - 1) / MostLanes;
    for (int batch = 0; batch < batches; ++batch) {
        const int first = batch * count / batches;
        const int lanes = (batch + 1) * count / batches - first;
        FindMoves(orders.subspan(Size(first) * Size(n_), Size(lanes) * Size(n_)), lanes);
        const LaneOrders work{n_,
                              lanes,
                              LaneWidth(lanes),
                              reference_.data(),
                              reciprocals_.data(),
                              squares_.data(),
                              from_.data(),
                              far_.data(),
                              static_cast<int>(far_.size()),
                              moves_.data(),
                              firstMoves_.data(),
                              positive_,
                              whole_};
        SumLanes(work, work_.data(), scores.data() + first);
    }
    for (float& score : scores) {
        if (!std::isfinite(score)) throw RuntimeFailure(Failure::DivisionByZero);
        score = static_cast<float>(double(score) / (double(n_) * double(n_) / 2.0));
    }
}

void OrderScorer::FindMoves(Orders orders, int lanes) {
    for (std::size_t k = 0; k < orders.size(); ++k) from_[k] = placeOf_[Size(orders[k])];
    near_.clear();
    far_.clear();
    for (int lane = 0; lane < lanes; ++lane) {
        const std::int16_t* from = from_.data() + Size(lane) * Size(n_);
        int moved = 0;
        for (int place = 0; place < n_; ++place) moved += from[place] != place ? 1 : 0;
        (2 * moved > n_ ? far_ : near_).push_back(lane);
    }
    ListMoves(LaneWidth(lanes));
}

// Without a branch to mispredict: what did not move is overwritten by the next.
void OrderScorer::ListMoves(int width) {
    int count = 0;
    for (int place = 0; place < n_; ++place) {
        firstMoves_[Size(place)] = count;
        for (const int lane : near_) {
            const std::int32_t from = from_[Size(lane) * Size(n_) + Size(place)];
            moves_[Size(count)] = {place * width + lane, from};
            count += from != place ? 1 : 0;
        }
    }
    firstMoves_[Size(n_)] = count;
}

void OrderScorer::Refer(Orders order) {
    std::vector<std::int16_t> places;
    std::vector<std::int16_t> from;
    for (int place = 0; place < n_; ++place) {
        const std::int16_t place16 = static_cast<std::int16_t>(place);
        const std::int16_t previous = placeOf_[Size(order[Size(place)])];
        if (previous == place16) continue;
        places.push_back(place16);
        from.push_back(previous);
    }
    for (int record = 0; record < n_; ++record) {
        double* row = reciprocals_.data() + Size(record) * Size(n_);
        for (std::size_t k = 0; k < from.size(); ++k) moved_[k] = row[from[k]];
        for (std::size_t k = 0; k < places.size(); ++k) row[places[k]] = moved_[k];
    }
    std::copy(order.begin(), order.end(), reference_.begin());
    for (int place = 0; place < n_; ++place) placeOf_[Size(order[Size(place)])] = std::int16_t(place);
}

} // namespace dorvan
