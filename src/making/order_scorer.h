#pragma once

#include "making/lane_sums.h"
#include "session/documents.h"

#include <cstdint>
#include <span>
#include <vector>

namespace dorvan {

// Scores orders of n records: the sum over the places i < j of (j - i)^2 / denominator(P(i), P(j)), divided
// by n^2 / 2. The smaller, the better. Quotients are 64-bit; the sum runs over i and within it over j, held
// in a 32-bit float and rounded to it after every addition; the last quotient is rounded to a 32-bit float.
//
// Orders are scored fastest many at once, and when they are near to the one that Refer named last. A score
// depends on nothing but the denominators and its order.
class OrderScorer {
public:
    // Records at the places 1..n, one order behind the other, each a permutation of 1..n.
    using Orders = std::span<const std::int16_t>;

    // Denominators (1..n, 1..n); the diagonal is not used. The order referred to is 1, 2, ..., n.
    explicit OrderScorer(const FloatTable& denominators);

    // As many orders as scores. Fails with DivisionByZero where a denominator that counts is 0.
    void Score(Orders orders, std::span<float> scores);

    // Names the order to which the next ones are near.
    void Refer(Orders order);

private:
    void MakeReciprocals(const FloatTable& denominators);
    void FindMoves(Orders orders, int lanes);
    void ListMoves(int width);

    int n_;
    bool positive_ = true;
    bool whole_ = true;
    std::vector<double> squares_;
    std::vector<double> reciprocals_; // (record, place in reference_)
    std::vector<std::int16_t> reference_;
    std::vector<std::int16_t> placeOf_; // of a record in reference_
    std::vector<std::int16_t> from_;
    std::vector<int> near_; // lanes that differ from reference_ at few places
    std::vector<int> far_;
    std::vector<LaneMove> moves_;
    std::vector<std::int32_t> firstMoves_;
    std::vector<double> moved_;
    std::vector<LaneCells> work_;
};

} // namespace dorvan
