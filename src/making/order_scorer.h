#pragma once

#include "session/documents.h"

#include <cstdint>
#include <span>
#include <vector>

namespace dorvan {

// Scores orders of n records: the sum over the places i < j of (j - i)^2 / denominator(P(i), P(j)), divided
// by n^2 / 2. The smaller, the better. Quotients are 64-bit; the sum runs over i and within it over j, held
// in a 32-bit float and rounded to it after every addition; the last quotient is rounded to a 32-bit float.
//
// Several orders at once are scored faster than one by one.
class OrderScorer {
public:
    // Records at the places 1..n, one order behind the other, each a permutation of 1..n.
    using Orders = std::span<const std::int16_t>;

    // Denominators (1..n, 1..n); the diagonal is not used.
    explicit OrderScorer(const FloatTable& denominators);

    // As many orders as scores. Fails with DivisionByZero where a denominator that counts is 0.
    void Score(Orders orders, std::span<float> scores);

private:
    int n_;
    bool positive_ = true; // all denominators are
    bool whole_ = true;    // they are integers up to 256, and there are at most 512 records
    FloatTable denominators_;
    std::vector<double> squares_;
    std::vector<double> reciprocals_;
    std::vector<std::int32_t> records_; // of the orders at work: (place, lane)
};

} // namespace dorvan
