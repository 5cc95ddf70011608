#include "making/lane_sums.h"

#include <algorithm>
#include <bit>
#include <cmath>

#define DORVAN_INLINE [[gnu::always_inline]] inline

namespace dorvan {

namespace {

// Two lanes: a vector of the compiler's own, which every processor has. The columns of the reciprocals are
// picked one by one, and that is what takes the time: wider vectors gain nothing.
using Pair [[gnu::vector_size(16)]] = double;
using Bits [[gnu::vector_size(16)]] = std::int64_t;
constexpr int Pairs = Lanes / 2;

// The sums at work. While a sum stays within a binade, [2^23 units, 2^24 units) with the unit a power of two,
// rounding to a 32-bit float is rounding to whole units. Shifted up to where a 64-bit float holds just whole
// units, the sum rounds so by itself: one addition takes the place of an addition and two conversions, and
// ties go to the even sum as they should.
struct Sums {
    double sums[Lanes] = {}; // 32-bit floats; void while `inUnits`
    Pair shifted[Pairs];     // sum + shift
    Pair shifts[Pairs];
    Pair ends[Pairs]; // of the binade, shifted
    double grid = 0;  // the terms are rounded to what this one can hold
    double halves = 0; // and this one holds multiples of half the smallest unit
    bool inUnits = false;
};

constexpr double ShiftOfUnit = 0x1.8p+52; // 1.5 * 2^52: a number of which 64-bit floats hold whole units

// Quotients are taken as square * reciprocal, off by at most 2^-52 of themselves, that is by less than 2^-26 of
// the smallest lane's unit. What decides their rounding is whether they lie half way between two units. So they
// are rounded to a grid of 2^-22 units: that makes the ones half way exact. Others that the grid takes there
// have to be told from them:
// - If all denominators are small integers there are none, since such a quotient is off by 2^-9 units or more.
// - Otherwise, a quotient not half way is off by at least 2^-48 of itself, since quotient * denominator would
//   have at most 24 + 24 bits. A product that is exactly half way is therefore a quotient that is; any other
//   one that comes to lie there is taken as unsure.
constexpr double Grid = 0x1p-22;

// The reciprocals of the records at one place with all records.
using Rows = std::array<const double*, Lanes>;

DORVAN_INLINE void Pick(Pair& picked, const Rows& rows, const std::int32_t* records, int pair) {
    picked = Pair{rows[std::size_t(2 * pair)][records[2 * pair]],
                  rows[std::size_t(2 * pair + 1)][records[2 * pair + 1]]};
}

// Takes the units of the binades in which the sums stand: of the same or neighbouring ones; no zeros, no
// numbers below the normal ones, no infinities.
void TakeUnits(Sums& state, bool positive) {
    double smallest = HUGE_VAL;
    double largest = 0;
    for (int lane = 0; lane < Lanes; ++lane) {
        const double sum = state.sums[lane];
        const double binade = std::bit_cast<double>(std::bit_cast<std::uint64_t>(sum) & 0x7FF0000000000000u);
        const double shift = ShiftOfUnit * (binade * 0x1p-23);
        state.shifts[lane / 2][lane % 2] = shift;
        state.shifted[lane / 2][lane % 2] = shift + sum;
        state.ends[lane / 2][lane % 2] = shift + 2 * binade;
        smallest = std::min(smallest, binade);
        largest = std::max(largest, binade);
    }
    state.grid = ShiftOfUnit * (Grid * 0x1p-23 * smallest);
    state.halves = ShiftOfUnit * (0.5 * 0x1p-23 * smallest);
    state.inUnits =
        positive && smallest >= 0x1p-126 && largest <= 4 * smallest && largest < HUGE_VAL;
}

void LeaveUnits(Sums& state) {
    for (int lane = 0; lane < Lanes; ++lane)
        state.sums[lane] = state.shifted[lane / 2][lane % 2] - state.shifts[lane / 2][lane % 2];
    state.inUnits = false;
}

// Adds the terms of the columns to each lane; false, with the sums as they were, where a lane leaves its binade
// or a term is unsure.
template <bool Whole>
DORVAN_INLINE bool AddInUnits(Sums& state, const Rows& rows, const std::int32_t* records,
                              const double* squares, int columns) {
    Pair shifted[Pairs];
    Bits unsure = {};
    for (int pair = 0; pair < Pairs; ++pair) shifted[pair] = state.shifted[pair];
    const double grid = state.grid;
    const double halves = state.halves;
    for (int column = 0; column < columns; ++column)
        for (int pair = 0; pair < Pairs; ++pair) {
            Pair product;
            Pick(product, rows, records + column * Lanes, pair);
            product *= squares[column];
            const Pair term = (product + grid) - grid;
            shifted[pair] += term;
            if constexpr (!Whole) {
                const Pair half = (term + halves) - halves;
                unsure |= (term == half) & (product != term);
            }
        }
    for (int pair = 0; pair < Pairs; ++pair) unsure |= shifted[pair] >= state.ends[pair];
    if ((unsure[0] | unsure[1]) != 0) return false;
    for (int pair = 0; pair < Pairs; ++pair) state.shifted[pair] = shifted[pair];
    return true;
}

// As it is written down: a quotient, an addition, a rounding. The reciprocal of a 32-bit float's reciprocal
// rounds to that float.
void AddPlainly(Sums& state, const Rows& rows, const std::int32_t* records, const double* squares,
                int columns) {
    for (int column = 0; column < columns; ++column)
        for (int lane = 0; lane < Lanes; ++lane) {
            const double reciprocal = rows[std::size_t(lane)][records[column * Lanes + lane]];
            const double quotient = squares[column] / double(static_cast<float>(1.0 / reciprocal));
            state.sums[lane] = double(static_cast<float>(state.sums[lane] + quotient));
        }
}

// Where the whole does not stay in units, most parts of it still do.
template <bool Whole>
DORVAN_INLINE void AddColumns(Sums& state, const LaneOrders& orders, const Rows& rows,
                              const std::int32_t* records, const double* squares, int columns) {
    if (state.inUnits && AddInUnits<Whole>(state, rows, records, squares, columns)) return;
    constexpr int Part = 8;
    for (int first = 0; first < columns; first += Part) {
        const int length = std::min(Part, columns - first);
        const std::int32_t* part = records + first * Lanes;
        if (state.inUnits && AddInUnits<Whole>(state, rows, part, squares + first, length)) continue;
        if (state.inUnits) LeaveUnits(state);
        AddPlainly(state, rows, part, squares + first, length);
        TakeUnits(state, orders.positive);
    }
}

template <bool Whole> void SumAll(const LaneOrders& orders, Sums& state) {
    for (int place = 0; place + 1 < orders.n; ++place) {
        const std::int32_t* records = orders.records + place * Lanes;
        Rows rows;
        for (int lane = 0; lane < Lanes; ++lane)
            rows[std::size_t(lane)] = orders.reciprocals + std::int64_t(records[lane]) * orders.n;
        AddColumns<Whole>(state, orders, rows, records + Lanes, orders.squares + 1, orders.n - 1 - place);
    }
    if (state.inUnits) LeaveUnits(state);
}

} // namespace

std::array<float, Lanes> SumLanes(const LaneOrders& orders) {
    Sums state;
    if (orders.whole)
        SumAll<true>(orders, state);
    else
        SumAll<false>(orders, state);
    std::array<float, Lanes> sums;
    std::copy(std::begin(state.sums), std::end(state.sums), sums.begin());
    return sums;
}

} // namespace dorvan
