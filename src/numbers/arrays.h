#pragma once

#include "numbers/runtime_failure.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace dorvan {

// An array indexed from 1 to Count(). An index outside fails with SubscriptOutOfRange.
template <class T> class Array1 {
public:
    Array1() = default;
    explicit Array1(std::int32_t count, T value = T()) : cells_(static_cast<std::size_t>(count), value) {}

    std::int32_t Count() const { return static_cast<std::int32_t>(cells_.size()); }

    decltype(auto) operator()(std::int32_t index) { return cells_[Place(index)]; }
    decltype(auto) operator()(std::int32_t index) const { return cells_[Place(index)]; }

    void Append(T value) { cells_.push_back(std::move(value)); }

    // The cells from index 1 on.
    std::vector<T>& Cells() { return cells_; }
    const std::vector<T>& Cells() const { return cells_; }

    bool operator==(const Array1&) const = default;

private:
    std::size_t Place(std::int32_t index) const {
        if (index < 1 || index > Count()) throw RuntimeFailure(Failure::SubscriptOutOfRange);
        return static_cast<std::size_t>(index - 1);
    }
    std::vector<T> cells_;
};

// A table indexed from (1, 1) to (Rows(), Columns()), kept row by row.
template <class T> class Array2 {
public:
    Array2() = default;
    Array2(std::int32_t rows, std::int32_t columns, T value = T())
        : rows_(rows), columns_(columns), cells_(std::size_t(rows) * std::size_t(columns), value) {}

    std::int32_t Rows() const { return rows_; }
    std::int32_t Columns() const { return columns_; }

    decltype(auto) operator()(std::int32_t row, std::int32_t column) { return cells_[Place(row, column)]; }
    decltype(auto) operator()(std::int32_t row, std::int32_t column) const {
        return cells_[Place(row, column)];
    }

    // The cells of one row, Columns() of them, for loops that have checked their bounds.
    T* Row(std::int32_t row) { return cells_.data() + std::size_t(row - 1) * std::size_t(columns_); }
    const T* Row(std::int32_t row) const {
        return cells_.data() + std::size_t(row - 1) * std::size_t(columns_);
    }

    std::vector<T>& Cells() { return cells_; }
    const std::vector<T>& Cells() const { return cells_; }

    bool operator==(const Array2&) const = default;

private:
    std::size_t Place(std::int32_t row, std::int32_t column) const {
        if (row < 1 || row > rows_ || column < 1 || column > columns_)
            throw RuntimeFailure(Failure::SubscriptOutOfRange);
        return std::size_t(row - 1) * std::size_t(columns_) + std::size_t(column - 1);
    }
    std::int32_t rows_ = 0;
    std::int32_t columns_ = 0;
    std::vector<T> cells_;
};

} // namespace dorvan
