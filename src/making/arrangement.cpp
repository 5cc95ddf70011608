#include "making/arrangement.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__) && !defined(DORVAN_NO_CLONES)
#define DORVAN_CLONES __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define DORVAN_CLONES
#endif

namespace dorvan {

namespace {

using Four [[gnu::vector_size(32)]] = double;
using Marks [[gnu::vector_size(32)]] = std::int64_t;

struct Slopes {
    const double* places;
    const double* slopes;
    const double* costs; // of an exchange with each
    int length;          // a multiple of 8
};

// The least change by an exchange of the record at `place` with any, in four lanes twice.
DORVAN_CLONES ExchangeMove LeastChange(const Slopes& all, double place, double slope) {
    constexpr int Ways = 2;
    Four least[Ways] = {};
    Marks where[Ways] = {};
    for (std::int64_t block = 0; block < all.length / 4; block += Ways)
        for (int way = 0; way < Ways; ++way) {
            Four places;
            Four slopes;
            Four costs;
            std::memcpy(&places, all.places + (block + way) * 4, sizeof places);
            std::memcpy(&slopes, all.slopes + (block + way) * 4, sizeof slopes);
            std::memcpy(&costs, all.costs + (block + way) * 4, sizeof costs);
            const Four apart = places - place;
            const Four change = apart * ((slope - slopes) + apart * costs);
            const Marks less = change < least[way];
            least[way] = less ? change : least[way];
            where[way] = less ? Marks{} + (block + way) : where[way];
        }
    ExchangeMove best;
    for (int lane = 0; lane < 4; ++lane)
        for (int way = 0; way < Ways; ++way)
            if (least[way][lane] < best.Change)
                best = {static_cast<int>(where[way][lane]) * 4 + lane, least[way][lane]};
    return best;
}

DORVAN_CLONES void AddTimes(double* sums, const double* row, double times, int length) {
    for (int k = 0; k < length; ++k) sums[k] += times * row[k];
}

DORVAN_CLONES void AddTimesDifference(double* sums, const double* row, const double* less, double times,
                                      int length) {
    for (int k = 0; k < length; ++k) sums[k] += times * (row[k] - less[k]);
}

} // namespace

Arrangement::Arrangement(const Attractions& attractions)
    : attractions_(attractions), count_(attractions.Count()), order_(std::size_t(count_)),
      places_(std::size_t(attractions.Stride())), slopes_(places_), waits_(std::size_t(count_)),
      queue_(std::size_t(count_)) {}

void Arrangement::Take(const Records& order) {
    order_ = order;
    for (int place = 0; place < count_; ++place) {
        places_[std::size_t(order_[std::size_t(place)])] = place;
        Wait(place);
    }
    Refresh();
}

void Arrangement::Follow(const Arrangement& other) {
    order_ = other.order_;
    places_ = other.places_;
    slopes_ = other.slopes_;
    half_ = other.half_;
}

void Arrangement::Refresh() {
    std::fill(slopes_.begin(), slopes_.end(), 0.0);
    for (int record = 0; record < count_; ++record)
        AddTimes(slopes_.data(), attractions_.Row(record), -2 * places_[std::size_t(record)],
                 attractions_.Stride());
    half_ = 0;
    for (int record = 0; record < count_; ++record) {
        const auto r = std::size_t(record);
        slopes_[r] += 2 * places_[r] * attractions_.Total(record);
        half_ += 0.5 * places_[r] * slopes_[r];
    }
}

ExchangeMove Arrangement::BestExchange(int record) const {
    const Slopes all{places_.data(), slopes_.data(), attractions_.ExchangeCosts(record),
                     attractions_.Stride()};
    const ExchangeMove best = LeastChange(all, places_[std::size_t(record)], slopes_[std::size_t(record)]);
    return best.Change < -attractions_.Negligible() ? best : ExchangeMove{};
}

InsertionMove Arrangement::BestInsertion() const {
    const InsertionMove right = BestInsertionTo(true);
    const InsertionMove left = BestInsertionTo(false);
    return left.Change < right.Change ? left : right;
}

// Insertions to the right, of the order or of its mirror image, in which all slopes change their sign. The
// record of the place `from` passes its neighbours one by one; those that it has passed stand one place
// further left, which changes both slopes of the next exchange.
InsertionMove Arrangement::BestInsertionTo(bool right) const {
    const auto n = std::size_t(count_);
    const double sign = right ? 1 : -1;
    Records order = order_;
    if (!right) std::reverse(order.begin(), order.end());
    std::vector<double> inner(n); // by place, the attractions by those from `from` + 1 up to there
    std::vector<double> row(n);   // by place, the attractions by the moving record
    InsertionMove best{.Change = -attractions_.Negligible()};
    for (std::size_t from = n; from-- > 0;) {
        const int moving = order[from];
        const double slope = sign * slopes_[std::size_t(moving)];
        const double total = attractions_.Total(moving);
        double passed = 0; // the attractions by those passed
        double change = 0;
        for (std::size_t to = from + 1; to < n; ++to) {
            const int next = order[to];
            row[to] = attractions_.Row(moving)[next];
            const double count = double(to - from - 1);
            change += slope - sign * slopes_[std::size_t(next)] + (2 * count + 1) * total +
                      attractions_.Total(next) + 2 * (passed + (count + 1) * row[to] - inner[to]);
            passed += row[to];
            inner[to] += row[to];
            if (change < best.Change) best = {static_cast<int>(from), static_cast<int>(to), change};
        }
    }
    if (best.From < 0) return {};
    return right ? best : InsertionMove{count_ - 1 - best.From, count_ - 1 - best.To, best.Change};
}

void Arrangement::Exchange(int record, const ExchangeMove& move) {
    const auto a = std::size_t(record);
    const auto b = std::size_t(move.With);
    const double apart = places_[b] - places_[a];
    AddTimesDifference(slopes_.data(), attractions_.Row(move.With), attractions_.Row(record), 2 * apart,
                       attractions_.Stride());
    slopes_[a] += 2 * apart * attractions_.Total(record);
    slopes_[b] -= 2 * apart * attractions_.Total(move.With);
    std::swap(order_[std::size_t(places_[a])], order_[std::size_t(places_[b])]);
    std::swap(places_[a], places_[b]);
    half_ += move.Change;
    Wait(record);
    Wait(move.With);
}

void Arrangement::Insert(const InsertionMove& move) {
    const auto [first, last] = std::minmax(move.From, move.To);
    const auto begin = order_.begin();
    Records stretch(begin + first, begin + last + 1);
    if (move.From < move.To)
        std::rotate(stretch.begin(), stretch.begin() + 1, stretch.end());
    else
        std::rotate(stretch.begin(), stretch.end() - 1, stretch.end());
    Put(first, stretch);
}

void Arrangement::Put(int first, std::span<const int> records) {
    int place = first;
    for (const int record : records) Move(record, place++);
}

// Another record may stand at the same place until all have moved.
void Arrangement::Move(int record, int place) {
    const auto r = std::size_t(record);
    order_[std::size_t(place)] = record;
    const double apart = place - places_[r];
    if (apart == 0) return;
    const double total = attractions_.Total(record);
    half_ += apart * (slopes_[r] + apart * total);
    AddTimes(slopes_.data(), attractions_.Row(record), -2 * apart, attractions_.Stride());
    slopes_[r] += 2 * apart * total;
    places_[r] = place;
    Wait(record);
}

void Arrangement::Wait(int record) {
    if (waits_[std::size_t(record)] != 0) return;
    waits_[std::size_t(record)] = 1;
    std::size_t end = head_ + waiting_++;
    if (end >= queue_.size()) end -= queue_.size();
    queue_[end] = record;
}

int Arrangement::NextWaiting() {
    const int record = queue_[head_];
    if (++head_ == queue_.size()) head_ = 0;
    --waiting_;
    waits_[std::size_t(record)] = 0;
    return record;
}

void Arrangement::Descend() {
    while (waiting_ > 0) {
        const int record = NextWaiting();
        const ExchangeMove move = BestExchange(record);
        if (move.With >= 0) Exchange(record, move);
    }
}

void Arrangement::Settle() {
    for (;;) {
        for (int record = 0; record < count_; ++record) Wait(record);
        Descend();
        Refresh();
        const InsertionMove move = BestInsertion();
        if (move.From >= 0) {
            Insert(move);
            continue;
        }
        const bool helps = std::any_of(order_.begin(), order_.end(),
                                       [this](int record) { return BestExchange(record).With >= 0; });
        if (!helps) return;
    }
}

} // namespace dorvan
