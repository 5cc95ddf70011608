#include "making/lane_sums.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

#define DORVAN_INLINE [[gnu::always_inline]] inline

namespace dorvan {

namespace {

constexpr double ShiftOfUnit = 0x1.8p+52; // 1.5 * 2^52: a number of which 64-bit floats hold whole units

// Quotients are taken as square * reciprocal, off by at most 2^-52 of themselves, that is by less than 2^-26
// of the smallest lane's unit. What decides their rounding is whether they lie half way between two units. So
// they are rounded to a grid of 2^-22 units: that makes the ones half way exact. Others that the grid takes
// there have to be told from them:
// - If all denominators are small integers there are none, since such a quotient is off by 2^-9 units or
// more.
// - Otherwise, a quotient not half way is off by at least 2^-48 of itself, since quotient * denominator would
//   have at most 24 + 24 bits. A product that is exactly half way is therefore a quotient that is; any other
//   one that comes to lie there is taken as unsure.
constexpr double Grid = 0x1p-22;

namespace baseline {
#include "making/lane_sums_body.h"
} // namespace baseline

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && !defined(DORVAN_NO_CLONES)
#define DORVAN_LEVELS
#pragma GCC push_options
#pragma GCC target("arch=x86-64-v3")
namespace level3 { // 256-bit vectors
#include "making/lane_sums_body.h"
} // namespace level3
#pragma GCC pop_options

#pragma GCC push_options
#pragma GCC target("arch=x86-64-v4")
namespace level4 { // 512-bit vectors
#include "making/lane_sums_body.h"
} // namespace level4
#pragma GCC pop_options
#endif

using SumFunction = void (*)(const LaneOrders&, double*, float*);

// The sums for the processor at hand. Nothing fuses or reorders their arithmetic, so all give the same bits.
SumFunction FindSum() {
#ifdef DORVAN_LEVELS
    __builtin_cpu_init();
    if (__builtin_cpu_supports("x86-64-v4")) return level4::Sum;
    if (__builtin_cpu_supports("x86-64-v3")) return level3::Sum;
#endif
    return baseline::Sum;
}

} // namespace

int LaneWidth(int lanes) {
    if (lanes <= 8) return 8;
    return lanes <= 16 ? 16 : MostLanes;
}

void SumLanes(const LaneOrders& orders, LaneCells* work, float* sums) {
    static const SumFunction sum = FindSum();
    sum(orders, work->numbers, sums);
}

} // namespace dorvan
