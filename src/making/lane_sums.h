#pragma once

#include <array>
#include <cstdint>

// Scores of orders side by side, one order to a lane. Each lane's sum is a 32-bit float to which the terms
// are added one by one, rounded to it after every addition, in the order of the places.
namespace dorvan {

inline constexpr int Lanes = 4;

// Places and records count from 0.
struct LaneOrders {
    int n;
    const std::int32_t* records; // (place, lane)
    const float* denominators;   // (record, record)
    const double* reciprocals;   // of the denominators
    const double* squares;       // squares[k] = k * k, k < n
    bool positive;               // all denominators are above 0
    bool whole;                  // they are integers up to 256, and n is at most 512
};

// The sums over the places i < j of (j - i)^2 / denominator(P(i), P(j)).
std::array<float, Lanes> SumLanes(const LaneOrders& orders);

} // namespace dorvan
