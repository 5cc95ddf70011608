#include "making/attractions.h"

#include "numbers/runtime_failure.h"

#include <cmath>
#include <numeric>

namespace dorvan {

namespace {

constexpr int Lanes = 8;
constexpr double NeverPays = 1e300;

double Attraction(float distance) {
    const double denominator = 1.0 + double(distance);
    if (denominator == 0 || std::isnan(denominator)) throw RuntimeFailure(Failure::DivisionByZero);
    return 1.0 / denominator;
}

std::size_t Cells(int rows, int columns) {
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns);
}

} // namespace

Attractions::Attractions(const FloatTable& distances)
    : count_(distances.Rows()), stride_((count_ + Lanes - 1) / Lanes * Lanes),
      attractions_(Cells(count_, stride_)), exchangeCosts_(Cells(count_, stride_), NeverPays),
      totals_(static_cast<std::size_t>(count_)) {
    if (distances.Columns() != count_) throw RuntimeFailure(Failure::SubscriptOutOfRange);
    for (int i = 0; i < count_; ++i)
        for (int j = 0; j < i; ++j) {
            const double here = Attraction(distances.Row(i + 1)[j]);
            const double there = Attraction(distances.Row(j + 1)[i]);
            const double both = 0.5 * (here + there);
            attractions_[Start(i) + static_cast<std::size_t>(j)] = both;
            attractions_[Start(j) + static_cast<std::size_t>(i)] = both;
        }
    AddUp();
}

void Attractions::AddUp() {
    double sizes = 0;
    for (int i = 0; i < count_; ++i)
        for (int j = 0; j < count_; ++j) {
            totals_[static_cast<std::size_t>(i)] += Row(i)[j];
            sizes += std::fabs(Row(i)[j]);
        }
    for (int i = 0; i < count_; ++i)
        for (int j = 0; j < count_; ++j)
            exchangeCosts_[Start(i) + static_cast<std::size_t>(j)] = Total(i) + Total(j) + 2 * Row(i)[j];
    negligible_ = 0.5e-13 * double(count_) * double(count_) * sizes;
}

double Attractions::HalfTwoSum(std::span<const int> order) const {
    double sum = 0;
    for (std::size_t far = 1; far < order.size(); ++far) {
        const double* row = Row(order[far]);
        for (std::size_t near = 0; near < far; ++near) {
            const double apart = double(far - near);
            sum += apart * apart * row[order[near]];
        }
    }
    return sum;
}

double TwoSumOfOrder(const FloatTable& distances) {
    const Attractions attractions(distances);
    if (attractions.Count() == 0) return 0;
    Records asItStands(static_cast<std::size_t>(attractions.Count()));
    std::iota(asItStands.begin(), asItStands.end(), 0);
    const double n = attractions.Count();
    return 2 * attractions.HalfTwoSum(asItStands) / (n * n);
}

} // namespace dorvan
