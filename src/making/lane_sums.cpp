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
//
// Quotients are taken as square * reciprocal, off by at most 2^-52 of themselves, which for one that stays in
// the binade is less than 2^-29 units. What decides how a sum rounds is on which side of the point half way
// between two units the quotient lies, or whether it is that point. See the three ways to add.
struct Sums {
    double sums[Lanes] = {}; // 32-bit floats; void while `inUnits`
    Pair shifted[Pairs];     // sum + shift
    Pair shifts[Pairs];
    Pair ends[Pairs];    // of the binade, shifted
    Pair margins[Pairs]; // what a product may be off by, with room
    double grid = 0;     // terms may be rounded to what this one can hold
    double halves = 0;   // and this one holds multiples of half the smallest unit
    bool inUnits = false;
    int rowsWithTies = 0; // so many rows more are taken as having ties
};

constexpr double ShiftOfUnit = 0x1.8p+52; // 1.5 * 2^52: a number of which 64-bit floats hold whole units
constexpr double UnitOfBinade = 0x1p-23;
constexpr double Grid = 0x1p-22;   // in units
constexpr double Margin = 0x1p-27; // in units; the 64-bit sum that is rounded to 32 bits adds up to 2^-30
constexpr int RowsWithTies = 8;

// The reciprocals, or the denominators, of the records at one place with all records.
template <class Number> using Rows = std::array<const Number*, Lanes>;

template <class Number>
DORVAN_INLINE void Pick(Pair& picked, const Rows<Number>& rows, const std::int32_t* records, int pair) {
    const std::size_t lane = std::size_t(2 * pair);
    picked = Pair{double(rows[lane][records[lane]]), double(rows[lane + 1][records[lane + 1]])};
}

// Takes the units of the binades in which the sums stand: of the same or neighbouring ones; no zeros, no
// numbers below the normal ones, no infinities.
DORVAN_INLINE void TakeUnits(Sums& state, bool positive) {
    constexpr std::int64_t Exponent = 0x7FF0000000000000;
    double smallest = HUGE_VAL;
    double largest = 0;
    for (int pair = 0; pair < Pairs; ++pair) {
        const Pair sum = {state.sums[2 * pair], state.sums[2 * pair + 1]};
        const Pair binade = std::bit_cast<Pair>(std::bit_cast<Bits>(sum) & Exponent);
        const Pair unit = binade * UnitOfBinade;
        state.shifts[pair] = ShiftOfUnit * unit;
        state.shifted[pair] = state.shifts[pair] + sum;
        state.ends[pair] = state.shifts[pair] + 2 * binade;
        state.margins[pair] = Margin * unit;
        smallest = std::min({smallest, binade[0], binade[1]});
        largest = std::max({largest, binade[0], binade[1]});
    }
    state.grid = ShiftOfUnit * (Grid * UnitOfBinade * smallest);
    state.halves = ShiftOfUnit * (0.5 * UnitOfBinade * smallest);
    state.inUnits = positive && smallest >= 0x1p-126 && largest <= 4 * smallest && largest < HUGE_VAL;
}

DORVAN_INLINE void LeaveUnits(Sums& state) {
    for (int pair = 0; pair < Pairs; ++pair) {
        const Pair sum = state.shifted[pair] - state.shifts[pair];
        state.sums[2 * pair] = sum[0];
        state.sums[2 * pair + 1] = sum[1];
    }
    state.inUnits = false;
}

// The columns of one row at work.
struct Terms {
    const Rows<double>& reciprocals;
    const Rows<float>& denominators;
    const std::int32_t* records; // (column, lane)
    const double* squares;
    int columns;
};

DORVAN_INLINE bool Negative(const Bits& bits) { return (bits[0] | bits[1]) < 0; }

enum class Outcome { Added, Left, Doubtful };

// Takes the sums over if all stay within their binades and no lane is negative in `doubtful`.
DORVAN_INLINE Outcome Accept(Sums& state, const Pair (&shifted)[Pairs], const Bits& doubtful) {
    Bits left = {};
    for (int pair = 0; pair < Pairs; ++pair) left |= shifted[pair] >= state.ends[pair];
    if (Negative(left)) return Outcome::Left;
    if (Negative(doubtful)) return Outcome::Doubtful;
    for (int pair = 0; pair < Pairs; ++pair) state.shifted[pair] = shifted[pair];
    return Outcome::Added;
}

// Each way adds the terms to all lanes, or returns false and leaves the sums as they were, where a lane
// leaves its binade or the way does not hold.
//
// On the grid: the terms rounded to 2^-22 units, which makes those half way exact. If all denominators are
// small integers no other quotient is so near: a quotient a / d that is not half way is off by 1 / (2 d)
// units or more, by 1 / (d * unit) units where the unit is above 2. With d up to 256 that is 2^-9 units for
// units up to 2, 2^-13 at 250 records, where the unit goes up to 32, and 2^-17 at 512.
//
// With a look at each: otherwise, a quotient that is not half way is off by at least 2^-48 of itself, since
// quotient * denominator would have at most 24 + 24 bits. So a product that is half way exactly is such a
// quotient; the way does not hold where a term comes to lie half way on the grid and the product was not
// there.
template <bool LookAtEach> DORVAN_INLINE Outcome AddOnGrid(Sums& state, const Terms& terms) {
    Pair shifted[Pairs];
    Bits doubtful = {};
    for (int pair = 0; pair < Pairs; ++pair) shifted[pair] = state.shifted[pair];
    const double grid = state.grid;
    const double halves = state.halves;
    for (int column = 0; column < terms.columns; ++column)
        for (int pair = 0; pair < Pairs; ++pair) {
            Pair product;
            Pick(product, terms.reciprocals, terms.records + column * Lanes, pair);
            product *= terms.squares[column];
            const Pair term = (product + grid) - grid;
            shifted[pair] += term;
            if constexpr (LookAtEach) {
                // The way from a half to the next is many times the way to the grid: negative just for a term
                // half way whose product is not.
                const Pair fromHalf = term - ((term + halves) - halves);
                const Pair fromProduct = term - product;
                doubtful |= std::bit_cast<Bits>(fromHalf * fromHalf - fromProduct * fromProduct);
            }
        }
    return Accept(state, shifted, doubtful);
}

// Between bounds: a sum with each term a margin less and one with each a margin more. Rounding never changes
// their order, so where both end as the same number, so does the sum between them. Does not hold with ties.
DORVAN_INLINE Outcome AddBetween(Sums& state, const Terms& terms) {
    Pair lower[Pairs];
    Pair upper[Pairs];
    Pair margins[Pairs];
    for (int pair = 0; pair < Pairs; ++pair) {
        lower[pair] = upper[pair] = state.shifted[pair];
        margins[pair] = state.margins[pair];
    }
    for (int column = 0; column < terms.columns; ++column)
        for (int pair = 0; pair < Pairs; ++pair) {
            Pair product;
            Pick(product, terms.reciprocals, terms.records + column * Lanes, pair);
            product *= terms.squares[column];
            lower[pair] += product - margins[pair];
            upper[pair] += product + margins[pair];
        }
    Bits doubtful = {};
    for (int pair = 0; pair < Pairs; ++pair) doubtful |= lower[pair] != upper[pair];
    return Accept(state, upper, doubtful);
}

DORVAN_INLINE bool AddInUnits(Sums& state, const Terms& terms, bool whole) {
    if (whole) return AddOnGrid<false>(state, terms) == Outcome::Added;
    if (state.rowsWithTies > 0) {
        --state.rowsWithTies;
    } else {
        const Outcome outcome = AddBetween(state, terms);
        if (outcome != Outcome::Doubtful) return outcome == Outcome::Added;
        state.rowsWithTies = RowsWithTies;
    }
    return AddOnGrid<true>(state, terms) == Outcome::Added;
}

// As it is written down: a quotient, an addition, a rounding. A function of its own, without vectors: GCC 12
// takes a vector of elements that were rounded to floats and back for the vector itself.
[[gnu::noinline]] void AddPlainly(double (&sums)[Lanes], const Terms& terms) {
    float rounded[Lanes];
    for (std::size_t lane = 0; lane < Lanes; ++lane) rounded[lane] = static_cast<float>(sums[lane]);
    for (int column = 0; column < terms.columns; ++column)
        for (std::size_t lane = 0; lane < Lanes; ++lane) {
            const std::int32_t record = terms.records[std::size_t(column) * Lanes + lane];
            const double quotient = terms.squares[column] / double(terms.denominators[lane][record]);
            rounded[lane] = static_cast<float>(double(rounded[lane]) + quotient);
        }
    for (std::size_t lane = 0; lane < Lanes; ++lane) sums[lane] = double(rounded[lane]);
}

DORVAN_INLINE Terms Part(const Terms& terms, int first, int columns) {
    return {terms.reciprocals, terms.denominators, terms.records + first * Lanes, terms.squares + first,
            std::min(columns, terms.columns - first)};
}

// A row in which a lane leaves its binade: most parts of it do not, and behind the one that does the rest.
void AddInParts(Sums& state, const LaneOrders& orders, const Terms& terms) {
    constexpr int Columns = 8;
    for (int first = 0; first < terms.columns; first += Columns) {
        const Terms part = Part(terms, first, Columns);
        if (state.inUnits && AddInUnits(state, part, orders.whole)) continue;
        if (state.inUnits) LeaveUnits(state);
        AddPlainly(state.sums, part);
        TakeUnits(state, orders.positive);
        const int next = first + Columns;
        if (next >= terms.columns) return;
        if (state.inUnits && AddInUnits(state, Part(terms, next, terms.columns), orders.whole)) return;
    }
}

// In the first row the sum starts from 0 and goes through many binades.
void AddFirstRow(Sums& state, const LaneOrders& orders, const Terms& terms) {
    constexpr int Columns = 48;
    AddPlainly(state.sums, Part(terms, 0, Columns));
    TakeUnits(state, orders.positive);
    if (terms.columns > Columns) AddInParts(state, orders, Part(terms, Columns, terms.columns));
}

DORVAN_INLINE void AddRow(Sums& state, const LaneOrders& orders, int place) {
    const std::int32_t* records = orders.records + place * Lanes;
    Rows<double> reciprocals;
    Rows<float> denominators;
    for (std::size_t lane = 0; lane < Lanes; ++lane) {
        reciprocals[lane] = orders.reciprocals + std::int64_t(records[lane]) * orders.n;
        denominators[lane] = orders.denominators + std::int64_t(records[lane]) * orders.n;
    }
    const Terms terms{reciprocals, denominators, records + Lanes, orders.squares + 1, orders.n - 1 - place};
    if (place == 0)
        AddFirstRow(state, orders, terms);
    else if (!state.inUnits || !AddInUnits(state, terms, orders.whole))
        AddInParts(state, orders, terms);
}

} // namespace

std::array<float, Lanes> SumLanes(const LaneOrders& orders) {
    Sums state;
    for (int place = 0; place + 1 < orders.n; ++place) AddRow(state, orders, place);
    if (state.inUnits) LeaveUnits(state);
    std::array<float, Lanes> sums;
    for (std::size_t lane = 0; lane < Lanes; ++lane) sums[lane] = static_cast<float>(state.sums[lane]);
    return sums;
}

} // namespace dorvan
