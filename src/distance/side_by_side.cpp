#include "distance/side_by_side.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

// The functions so marked are compiled for several processors; the best one is chosen at run time. The
// kernels that they use are inlined into each copy.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && !defined(DORVAN_NO_CLONES)
#define DORVAN_CLONES __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define DORVAN_CLONES
#endif
#define DORVAN_INLINE [[gnu::always_inline]] inline

namespace dorvan {

namespace {

// Two vectors of the widest processors: enough sums to hide the latency of one addition, and loops that are
// long enough for the compiler to make vectors of them before it unrolls them.
constexpr int Lanes = 32;

// Up to this many variables the 16-bit counters of the measures cannot run over, and counters in 32-bit
// floats, which vectors like best, are exact.
constexpr std::int32_t MostVariables = std::numeric_limits<std::int16_t>::max();

constexpr float Undecided = std::numeric_limits<float>::quiet_NaN();

// Each kernel keeps the state of one record against `Lanes` others: Add takes in one variable, y having one
// value a lane; Finish writes the distances. Whatever fails in DistanceBetween comes out infinite or not a
// number: a sum of terms not below 0 that left the range of a float stays infinite, and 0 / 0 is no number.

// A running sum that is rounded to 32 bits after each addition may well stand in 64 bits in between.
struct SquareTerm {
    using Sum = double;
    DORVAN_INLINE static double Of(float d) { return double(d) * double(d); }
};

// In 64 bits as well: the sum of two floats, rounded twice, is the float nearest to the exact one.
struct AbsoluteTerm {
    using Sum = float;
    DORVAN_INLINE static float Of(float d) { return std::fabs(d); }
};

template <class Term> struct MeanLanes {
    typename Term::Sum Sum[Lanes] = {};
    float Count[Lanes] = {};

    DORVAN_INLINE void Add(float x, const float* y) {
        if (x == NaValue) return;
        for (int lane = 0; lane < Lanes; ++lane) {
            const bool present = y[lane] != NaValue;
            const auto sum = static_cast<float>(Sum[lane] + Term::Of(x - y[lane]));
            Sum[lane] = present ? sum : Sum[lane];
            Count[lane] += present ? 1.0f : 0.0f;
        }
    }
    DORVAN_INLINE void Finish(float* distance) const {
        for (int lane = 0; lane < Lanes; ++lane)
            distance[lane] = static_cast<float>(Sum[lane]) / std::max(Count[lane], 1.0f);
    }
};

template <class Term> struct SumLanes {
    typename Term::Sum Sum[Lanes] = {};

    DORVAN_INLINE void Add(float x, const float* y) {
        for (int lane = 0; lane < Lanes; ++lane)
            Sum[lane] = static_cast<float>(Sum[lane] + Term::Of(x - y[lane]));
    }
    DORVAN_INLINE void Finish(float* distance) const { std::copy_n(Sum, Lanes, distance); }
};

// A square root in 32 bits is the one in 64 bits rounded to 32.
struct EuclideanLanes : SumLanes<SquareTerm> {
    DORVAN_INLINE void Finish(float* distance) const {
        for (int lane = 0; lane < Lanes; ++lane) distance[lane] = std::sqrt(static_cast<float>(Sum[lane]));
    }
};

struct GreatestLanes {
    float Greatest[Lanes] = {};

    DORVAN_INLINE void Add(float x, const float* y) {
        for (int lane = 0; lane < Lanes; ++lane) {
            const float term = std::fabs(x - y[lane]);
            Greatest[lane] = term > Greatest[lane] ? term : Greatest[lane];
        }
    }
    DORVAN_INLINE void Finish(float* distance) const { std::copy_n(Greatest, Lanes, distance); }
};

// Powers come from repeated multiplication here and from std::pow in DistanceBetween. Both are as near to the
// true power as `Slack` (relative) tells, so that where its two ends round to the same sum, that is the sum.
// A lane where they do not is left undecided.
struct CustomizedLanes {
    std::int16_t P;
    double Root; // 1 / r
    float Sum[Lanes] = {};

    explicit CustomizedLanes(const Measure& measure) : P(measure.Par_P), Root(1.0 / measure.Par_R) {}

    // Roundings: |p| - 1 of the multiplications, one of the reciprocal, two of std::pow, one of the slack's
    // own; each is at most 2^-53. The rest is margin.
    double Slack() const { return (std::abs(int(P)) + 8) * 0x1p-53; }

    DORVAN_INLINE void Add(float x, const float* y) {
        double power[Lanes];
        RaiseTo(x, y, power);
        const double less = 1.0 - Slack();
        const double more = 1.0 + Slack();
        constexpr double Tiny = 1e-300; // covers what repeated multiplication loses near 0
        for (int lane = 0; lane < Lanes; ++lane) {
            const auto low = static_cast<float>(Sum[lane] + (power[lane] * less - Tiny));
            const auto high = static_cast<float>(Sum[lane] + (power[lane] * more + Tiny));
            Sum[lane] = low == high ? high : Undecided;
        }
    }
    DORVAN_INLINE void RaiseTo(float x, const float* y, double* power) const {
        double base[Lanes];
        for (int lane = 0; lane < Lanes; ++lane) {
            const float difference = std::fabs(x - y[lane]);
            base[lane] = difference;
            // A difference out of range is a failure, whatever its power is.
            power[lane] = difference <= std::numeric_limits<float>::max() ? 1.0 : double(Undecided);
        }
        for (int bits = std::abs(int(P)); bits != 0; bits /= 2) {
            if (bits % 2 != 0)
                for (int lane = 0; lane < Lanes; ++lane) power[lane] *= base[lane];
            for (int lane = 0; lane < Lanes; ++lane) base[lane] *= base[lane];
        }
        if (P < 0)
            for (int lane = 0; lane < Lanes; ++lane) power[lane] = 1.0 / power[lane];
    }
    DORVAN_INLINE void Finish(float* distance) const {
        for (int lane = 0; lane < Lanes; ++lane)
            distance[lane] = Sum[lane] <= std::numeric_limits<float>::max()
                                 ? static_cast<float>(std::pow(double(Sum[lane]), Root))
                                 : Undecided;
    }
};

template <int Value> struct CountLanes {
    float Different[Lanes] = {};
    float Both[Lanes] = {}; // variables in which both records hold Value

    DORVAN_INLINE void Add(float x, const float* y) {
        const float has = x == float(Value) ? 1.0f : 0.0f;
        for (int lane = 0; lane < Lanes; ++lane) {
            Different[lane] += x != y[lane] ? 1.0f : 0.0f;
            Both[lane] += y[lane] == float(Value) ? has : 0.0f;
        }
    }
};

struct DfDDLanes {
    double M;
    float Different[Lanes] = {};

    explicit DfDDLanes(std::int32_t m) : M(m) {}
    DORVAN_INLINE void Add(float x, const float* y) {
        for (int lane = 0; lane < Lanes; ++lane) Different[lane] += x != y[lane] ? 1.0f : 0.0f;
    }
    DORVAN_INLINE void Finish(float* distance) const {
        for (int lane = 0; lane < Lanes; ++lane)
            distance[lane] = static_cast<float>(double(Different[lane]) / M * 100.0);
    }
};

struct LanceAndWilliamsLanes : CountLanes<0> {
    DORVAN_INLINE void Finish(float* distance) const {
        for (int lane = 0; lane < Lanes; ++lane) {
            const double different = Different[lane];
            distance[lane] = static_cast<float>(different / (2.0 * double(Both[lane]) + different));
        }
    }
};

struct JaccardLanes : CountLanes<1> {
    DORVAN_INLINE void Finish(float* distance) const {
        for (int lane = 0; lane < Lanes; ++lane) {
            const double both = Both[lane];
            distance[lane] = static_cast<float>(1.0 - both / (double(Different[lane]) + both));
        }
    }
};

// Of the products and the sum in 16 bits, none of them below 0, the sum is the first to run over. Up to
// there a float holds them exactly, and it never rounds a greater one down to there.
struct YulesQLanes {
    float Zeros[Lanes] = {};
    float Ones[Lanes] = {};
    float OneZero[Lanes] = {};
    float ZeroOne[Lanes] = {};

    DORVAN_INLINE void Add(float x, const float* y) {
        const float one = x == 1.0f ? 1.0f : 0.0f;
        const float zero = x == 0.0f ? 1.0f : 0.0f;
        for (int lane = 0; lane < Lanes; ++lane) {
            Zeros[lane] += y[lane] == 0.0f ? zero : 0.0f;
            OneZero[lane] += y[lane] == 0.0f ? one : 0.0f;
            Ones[lane] += y[lane] == 1.0f ? one : 0.0f;
            ZeroOne[lane] += y[lane] == 1.0f ? zero : 0.0f;
        }
    }
    DORVAN_INLINE void Finish(float* distance) const {
        for (int lane = 0; lane < Lanes; ++lane) {
            const float unlike = OneZero[lane] * ZeroOne[lane];
            const float alike = Ones[lane] * Zeros[lane];
            const float both = unlike + alike;
            const float mirrored = 1.0f - (alike - unlike) / std::max(both, 1.0f);
            const float value = both > 0 ? mirrored : 2.0f;
            distance[lane] = both > float(MostVariables) ? Undecided : value;
        }
    }
};

// The values of `Lanes` records turned: the first variable of each, then the second of each, and so on. The
// last record stands in for those past the end.
std::vector<float> TurnedBlock(const FloatTable& values, std::int32_t first, std::int32_t n, std::int32_t m) {
    std::vector<float> block(std::size_t(m) * Lanes);
    for (int lane = 0; lane < Lanes; ++lane) {
        const float* row = values.Row(std::min(first + lane, n));
        for (std::int32_t k = 0; k < m; ++k) block[std::size_t(k) * Lanes + std::size_t(lane)] = row[k];
    }
    return block;
}

// Writes the distances of record i to those records from `first` to `last` that follow it.
template <class Kernel>
DORVAN_INLINE void StoreLanes(const Kernel& kernel, FloatTable& distances, std::int32_t i, std::int32_t first,
                              std::int32_t last) {
    float distance[Lanes];
    kernel.Finish(distance);
    const std::int32_t begin = std::max(first, i + 1);
    float* cells = distances.Row(i) + (begin - 1);
    if (last + 1 - begin == Lanes) // a copy of a size known beforehand
        std::copy_n(distance, Lanes, cells);
    else
        std::copy(distance + (begin - first), distance + (last + 1 - first), cells);
}

// The columns of `Lanes` records from `first` on, two rows at a time: more sums that do not wait for each
// other.
template <class Kernel>
DORVAN_INLINE void FillBlock(FloatTable& distances, const FloatTable& values, std::int32_t m,
                             std::int32_t first, const Kernel& fresh) {
    const std::int32_t n = distances.Rows();
    const std::int32_t last = std::min(first + Lanes - 1, n);
    const std::vector<float> block = TurnedBlock(values, first, n, m);
    for (std::int32_t i = 1; i < last; i += 2) {
        const float* x = values.Row(i);
        const float* nextX = values.Row(i + 1);
        Kernel kernel = fresh;
        Kernel next = fresh;
        for (std::int32_t k = 0; k < m; ++k) {
            const float* y = block.data() + std::size_t(k) * Lanes;
            kernel.Add(x[k], y);
            next.Add(nextX[k], y);
        }
        StoreLanes(kernel, distances, i, first, last);
        StoreLanes(next, distances, i + 1, first, last);
    }
}

template <class Kernel>
DORVAN_INLINE void Fill(FloatTable& distances, const FloatTable& values, std::int32_t m,
                        const Kernel& fresh) {
    for (std::int32_t first = 1; first <= distances.Rows(); first += Lanes)
        FillBlock(distances, values, m, first, fresh);
}

} // namespace

DORVAN_CLONES bool AllFinite(const float* values, std::int64_t count) {
    int finite = 1;
    for (std::int64_t place = 0; place < count; ++place)
        finite &= std::fabs(values[place]) <= std::numeric_limits<float>::max() ? 1 : 0;
    return finite != 0;
}

namespace SideBySide {

#define DORVAN_KERNEL_IS(name, ...)                                                                          \
    DORVAN_CLONES void name(FloatTable& distances, const FloatTable& values, std::int32_t m,                 \
                            const Measure& measure) {                                                        \
        static_cast<void>(measure);                                                                          \
        Fill(distances, values, m, __VA_ARGS__);                                                             \
    }

DORVAN_KERNEL_IS(Henzel, MeanLanes<SquareTerm>())
DORVAN_KERNEL_IS(Czekanowski, MeanLanes<AbsoluteTerm>())
DORVAN_KERNEL_IS(Euclidean, EuclideanLanes())
DORVAN_KERNEL_IS(Manhattan, SumLanes<AbsoluteTerm>())
DORVAN_KERNEL_IS(Chebychev, GreatestLanes())
DORVAN_KERNEL_IS(Customized, CustomizedLanes(measure))
DORVAN_KERNEL_IS(DfDD, DfDDLanes(m))
DORVAN_KERNEL_IS(LanceAndWilliams, LanceAndWilliamsLanes())
DORVAN_KERNEL_IS(Jaccard, JaccardLanes())
DORVAN_KERNEL_IS(YulesQ, YulesQLanes())

} // namespace SideBySide

void ComputePairsSideBySide(FloatTable& distances, const FloatTable& values, std::int32_t m,
                            const Measure& measure) {
    const MeasureRow* row = FindMeasure(std::int16_t(measure.Type));
    if (!row || !row->FastDistances) return;
    const bool dividesByZero = measure.Type == DistanceType::Customized && measure.Par_R == 0;
    const auto& cells = values.Cells();
    if (dividesByZero || m > MostVariables ||
        !AllFinite(cells.data(), static_cast<std::int64_t>(cells.size())))
        return;
    row->FastDistances(distances, values, m, measure);
}

// Square by square, so that both sides stay in the cache.
void MirrorUpperTriangle(FloatTable& distances) {
    const std::int32_t n = distances.Rows();
    for (std::int32_t top = 1; top <= n; top += Lanes)
        for (std::int32_t left = 1; left <= top; left += Lanes)
            for (std::int32_t i = top; i < std::min(top + Lanes, n + 1); ++i)
                for (std::int32_t j = left; j < std::min(left + Lanes, i); ++j)
                    distances.Row(i)[j - 1] = distances.Row(j)[i - 1];
    for (std::int32_t i = 1; i <= n; ++i) distances(i, i) = 0;
}

} // namespace dorvan
