#pragma once

#include "session/documents.h"

#include <span>
#include <vector>

// The criterion of the best order, and what is read of the distances to minimise it. Records and places count
// from 0 here.
namespace dorvan {

// The records of an order, place by place.
using Records = std::vector<int>;

// The attraction of two records is w = 1 / (1 + distance), 0 for infinitely distant ones. Where the distances
// of a pair differ by direction, it is the mean of both.
class Attractions {
public:
    // Fails with DivisionByZero where 1 + distance is 0 or no number, and with SubscriptOutOfRange for a
    // table that is not square. O(n^2).
    explicit Attractions(const FloatTable& distances);

    int Count() const { return count_; }

    // Rows are this long, a multiple of 8; what stands behind the last record is 0.
    int Stride() const { return stride_; }

    // The attractions of one record; 0 for itself.
    const double* Row(int record) const { return attractions_.data() + Start(record); }

    // For each other record w_i + w_j + 2 w_ij, with w_i the sum of the row i: what an exchange of the two
    // costs for each squared place that they are apart. Behind the last record more than can ever pay.
    const double* ExchangeCosts(int record) const { return exchangeCosts_.data() + Start(record); }

    // The sum of the record's row.
    double Total(int record) const { return totals_[static_cast<std::size_t>(record)]; }

    // What rounding may make of a difference of two criteria, with room.
    double Negligible() const { return negligible_; }

    // Half the 2-SUM: the sum over pairs of w * (difference of places)^2. O(n^2).
    double HalfTwoSum(std::span<const int> order) const;

private:
    std::size_t Start(int record) const {
        return static_cast<std::size_t>(record) * static_cast<std::size_t>(stride_);
    }
    void AddUp();

    int count_;
    int stride_;
    std::vector<double> attractions_;
    std::vector<double> exchangeCosts_;
    std::vector<double> totals_;
    double negligible_ = 0;
};

// The criterion of an order of a table as it stands: the sum over ordered pairs (each pair twice) of
// (difference of places)^2 / (1 + distance), divided by n^2; 0 for an empty table. The score F of the simple
// genetic ordering without its roundings. The smaller, the better. Fails as Attractions does.
double TwoSumOfOrder(const FloatTable& distances);

} // namespace dorvan
