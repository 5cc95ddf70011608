// No header of its own: the one text of the sums over lanes, included by lane_sums.cpp once for each level of
// processors, within a namespace and with the compiler set to that level.

// Eight lanes: a vector of the compiler's own, which it maps to what the processor has.
constexpr int Wide = 8;
using Numbers [[gnu::vector_size(8 * Wide)]] = double;
using Floats [[gnu::vector_size(4 * Wide)]] = float;
using Bits [[gnu::vector_size(8 * Wide)]] = std::int64_t;

// Numbers in memory stand at multiples of their size.
DORVAN_INLINE void Load(Numbers& to, const double* from) {
    std::memcpy(&to, __builtin_assume_aligned(from, sizeof to), sizeof to);
}
DORVAN_INLINE void Store(double* to, const Numbers& from) {
    std::memcpy(__builtin_assume_aligned(to, sizeof from), &from, sizeof from);
}

// The sums at work. While a sum stays within a binade, [2^23 units, 2^24 units) with the unit a power of two,
// rounding to a 32-bit float is rounding to whole units. Shifted up to where a 64-bit float holds just whole
// units, the sum rounds so by itself: one addition takes the place of an addition and two conversions, and
// ties go to the even sum as they should.
template <int Vectors> struct Sums {
    Numbers sums[Vectors];    // 32-bit floats; void while `inUnits`
    Numbers shifted[Vectors]; // sum + shift
    Numbers shifts[Vectors];
    Numbers ends[Vectors]; // of the binade, shifted
    double grid;           // the terms are rounded to what this one can hold
    double halves;         // and this one holds multiples of half the smallest unit
    bool inUnits;
};

template <int Vectors> DORVAN_INLINE void TakeUnits(Sums<Vectors>& state, bool positive) {
    double smallest = HUGE_VAL;
    double largest = 0;
    for (int v = 0; v < Vectors; ++v)
        for (int lane = 0; lane < Wide; ++lane) {
            const double sum = state.sums[v][lane];
            const auto bits = std::bit_cast<std::uint32_t>(static_cast<float>(sum));
            const double binade = double(std::bit_cast<float>(bits & 0x7F800000u));
            const double unit = binade * 0x1p-23;
            const double shift = ShiftOfUnit * unit;
            state.shifts[v][lane] = shift;
            state.shifted[v][lane] = shift + sum;
            state.ends[v][lane] = shift + 2 * binade;
            smallest = std::min(smallest, unit);
            largest = std::max(largest, unit);
        }
    state.grid = ShiftOfUnit * (Grid * smallest);
    state.halves = ShiftOfUnit * (0.5 * smallest);
    // Lanes in the same or neighbouring binades; no zeros, no numbers below the normal ones, no infinities.
    state.inUnits = positive && smallest > 0 && largest <= 4 * smallest && std::isfinite(largest);
}

template <int Vectors> DORVAN_INLINE void LeaveUnits(Sums<Vectors>& state) {
    for (int v = 0; v < Vectors; ++v) state.sums[v] = state.shifted[v] - state.shifts[v];
}

DORVAN_INLINE bool AnyLane(const Bits& bits) {
    std::int64_t lanes[Wide];
    std::memcpy(lanes, &bits, sizeof lanes);
    return ((lanes[0] | lanes[1]) | (lanes[2] | lanes[3]) | ((lanes[4] | lanes[5]) | (lanes[6] | lanes[7]))) !=
           0;
}

// Adds `columns` terms to each lane; false, with the sums as they were, where a lane leaves its binade or a
// term is unsure.
template <int Vectors, bool Whole>
DORVAN_INLINE bool AddInUnits(Sums<Vectors>& state, const double* cells, const double* squares, int columns) {
    Numbers shifted[Vectors];
    Bits unsure = {};
    for (int v = 0; v < Vectors; ++v) shifted[v] = state.shifted[v];
    const double grid = state.grid;
    const double halves = state.halves;
    for (int column = 0; column < columns; ++column)
        for (int v = 0; v < Vectors; ++v) {
            Numbers product;
            Load(product, cells + (column * Vectors + v) * Wide);
            product *= squares[column];
            const Numbers inGrid = product + grid;
            const Numbers term = inGrid - grid;
            shifted[v] += term;
            if constexpr (!Whole) {
                const Numbers half = (term + halves) - halves;
                unsure |= (term == half) & (product != term);
            }
        }
    for (int v = 0; v < Vectors; ++v) unsure |= shifted[v] >= state.ends[v];
    if (AnyLane(unsure)) return false;
    for (int v = 0; v < Vectors; ++v) state.shifted[v] = shifted[v];
    return true;
}

// As it is written down: a quotient, an addition, a rounding. The reciprocal of a 32-bit float's reciprocal
// rounds to that float.
template <int Vectors>
DORVAN_INLINE void AddPlainly(Sums<Vectors>& state, const double* cells, const double* squares, int columns) {
    Numbers sums[Vectors];
    for (int v = 0; v < Vectors; ++v) sums[v] = state.sums[v];
    for (int column = 0; column < columns; ++column)
        for (int v = 0; v < Vectors; ++v) {
            Numbers reciprocal;
            Load(reciprocal, cells + (column * Vectors + v) * Wide);
            const Floats denominator = __builtin_convertvector(1.0 / reciprocal, Floats);
            const Numbers quotient = squares[column] / __builtin_convertvector(denominator, Numbers);
            const Floats sum = __builtin_convertvector(sums[v] + quotient, Floats);
            sums[v] = __builtin_convertvector(sum, Numbers);
        }
    for (int v = 0; v < Vectors; ++v) state.sums[v] = sums[v];
}

// Where the whole does not stay in units, most parts of it still do.
template <int Vectors, bool Whole>
DORVAN_INLINE void AddColumns(Sums<Vectors>& state, const LaneOrders& orders, const double* cells,
                              const double* squares, int columns) {
    if (state.inUnits && AddInUnits<Vectors, Whole>(state, cells, squares, columns)) return;
    constexpr int Part = 8;
    for (int first = 0; first < columns; first += Part) {
        const int length = std::min(Part, columns - first);
        const double* part = cells + first * Vectors * Wide;
        if (state.inUnits && AddInUnits<Vectors, Whole>(state, part, squares + first, length)) continue;
        if (state.inUnits) LeaveUnits(state);
        AddPlainly(state, part, squares + first, length);
        TakeUnits(state, orders.positive);
    }
}

DORVAN_INLINE const double* RowOf(const LaneOrders& orders, int place) {
    return orders.reciprocals + std::int64_t(orders.reference[place] - 1) * orders.n;
}

// A lane's own reciprocals for the record that it has at the place.
template <int Vectors>
DORVAN_INLINE void FillLane(double* cells, const LaneOrders& orders, int lane, int place, int first, int columns) {
    const std::int16_t* from = orders.from + std::int64_t(lane) * orders.n;
    const double* row = RowOf(orders, from[place]);
    for (int column = 0; column < columns; ++column)
        cells[column * Vectors * Wide + lane] = row[from[first + column]];
}

// The reciprocals of the records at one place with those at the places from `first` on, in all lanes: the
// reference order's, then what differs in the columns, then the lanes that have another record at the place.
template <int Vectors>
DORVAN_INLINE void FillCells(double* cells, const LaneOrders& orders, int place, int first, int columns) {
    constexpr int Lanes = Vectors * Wide;
    const double* row = RowOf(orders, place);
    for (int column = 0; column < columns; ++column) {
        const Numbers reciprocal = Numbers{} + row[first + column];
        for (int v = 0; v < Vectors; ++v) Store(cells + (column * Vectors + v) * Wide, reciprocal);
    }
    double* origin = cells - std::int64_t(first) * Lanes;
    for (int move = orders.firstMoves[first]; move < orders.firstMoves[first + columns]; ++move)
        origin[orders.moves[move].cell] = row[orders.moves[move].from];
    for (int move = orders.firstMoves[place]; move < orders.firstMoves[place + 1]; ++move)
        FillLane<Vectors>(cells, orders, orders.moves[move].cell - place * Lanes, place, first, columns);
    for (int k = 0; k < orders.farCount; ++k)
        FillLane<Vectors>(cells, orders, orders.farLanes[k], place, first, columns);
}

template <int Vectors, bool Whole>
DORVAN_INLINE void SumAll(const LaneOrders& orders, double* cells, Sums<Vectors>& state) {
    constexpr int Stretch = LaneWork / Vectors;
    for (int place = 0; place + 1 < orders.n; ++place)
        for (int first = place + 1; first < orders.n; first += Stretch) {
            const int columns = std::min(Stretch, orders.n - first);
            FillCells<Vectors>(cells, orders, place, first, columns);
            AddColumns<Vectors, Whole>(state, orders, cells, orders.squares + (first - place), columns);
        }
    if (state.inUnits) LeaveUnits(state);
}

template <int Vectors>
DORVAN_INLINE void SumVectors(const LaneOrders& orders, double* cells, float* sums) {
    Sums<Vectors> state;
    state.inUnits = false;
    for (int v = 0; v < Vectors; ++v) state.sums[v] = Numbers{};
    if (orders.whole)
        SumAll<Vectors, true>(orders, cells, state);
    else
        SumAll<Vectors, false>(orders, cells, state);
    for (int lane = 0; lane < orders.lanes; ++lane)
        sums[lane] = static_cast<float>(state.sums[lane / Wide][lane % Wide]);
}

void Sum(const LaneOrders& orders, double* cells, float* sums) {
    if (orders.width == 1 * Wide)
        SumVectors<1>(orders, cells, sums);
    else if (orders.width == 2 * Wide)
        SumVectors<2>(orders, cells, sums);
    else
        SumVectors<4>(orders, cells, sums);
}
