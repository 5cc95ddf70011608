#pragma once

#include <cstdint>

// Scores of many orders side by side, one order to a lane. Each lane's sum is a 32-bit float to which the
// terms are added one by one, rounded to it after every addition, in the order of the places.
namespace dorvan {

// A lane's order has, at some place, the record that the reference order has at the place `from`.
struct LaneMove {
    std::int32_t cell; // place * width + lane
    std::int32_t from;
};

// Orders given by what they differ in from one reference order. Places count from 0, records from 1.
struct LaneOrders {
    int n;
    int lanes; // orders
    int width; // LaneWidth(lanes)
    const std::int16_t* reference;
    const double* reciprocals; // of the denominators: (record from 0, place in the reference order)
    const double* squares;     // squares[k] = k * k, k < n
    const std::int16_t* from;  // (lane, place): the reference order's place of the record there
    const int* farLanes;       // those that differ from the reference order at most places
    int farCount;
    const LaneMove* moves;          // where the others differ, by place
    const std::int32_t* firstMoves; // n + 1: those of place p stand from firstMoves[p] to firstMoves[p + 1]
    bool positive;                  // all denominators are above 0
    bool whole;                     // they are integers up to 256, and n is at most 512
};

inline constexpr int MostLanes = 32;

// One number of eight lanes; a cache line.
struct alignas(64) LaneCells {
    double numbers[8];
};

// Room for the stretches of a row at work.
inline constexpr int LaneWork = 256;

// How many lanes a number of orders up to MostLanes takes.
int LaneWidth(int lanes);

// The sums over the places i < j of (j - i)^2 / denominator(P(i), P(j)), one a lane. `work` is room for
// LaneWork cells.
void SumLanes(const LaneOrders& orders, LaneCells* work, float* sums);

} // namespace dorvan
