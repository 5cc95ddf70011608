#pragma once

#include "making/attractions.h"

#include <cstddef>
#include <span>
#include <vector>

namespace dorvan {

// An exchange of two records, and by how much it changes half the 2-SUM. `With` is -1 for none.
struct ExchangeMove {
    int With = -1;
    double Change = 0;
};

// The record at the place `From` goes to the place `To`; those between close up. `From` is -1 for none.
struct InsertionMove {
    int From = -1;
    int To = -1;
    double Change = 0;
};

// An order under change, and half its 2-SUM p' L p for the places p, with L the Laplacian of the attractions:
// L_ii the sum of the row i, L_ij = -w_ij. It keeps the slopes 2 L p, from which moves are judged without
// adding up the criterion:
//
//  - an exchange of the records i and j, c places apart, changes it by c (slope_i - slope_j) + c^2 (L_ii +
//  L_jj
//    - 2 L_ij): O(1) to judge, O(n) to make;
//  - an insertion is a row of exchanges of neighbours, each judged in O(1) from the one before: all n^2 of
//  them
//    in O(n^2).
class Arrangement {
public:
    explicit Arrangement(const Attractions& attractions);

    // Takes an order over; all records wait for the next descent. O(n^2).
    void Take(const Records& order);
    // Takes over what another arrangement of the same attractions stands at; O(n).
    void Follow(const Arrangement& other);
    // Works slopes and criterion out anew, without the roundings of the moves since; O(n^2).
    void Refresh();

    const Records& Order() const { return order_; }
    double Half() const { return half_; }

    // The exchange of this record that gains most, by more than rounding could.
    ExchangeMove BestExchange(int record) const;
    // The insertion that gains most.
    InsertionMove BestInsertion() const;

    void Exchange(int record, const ExchangeMove& move);
    void Insert(const InsertionMove& move);
    // Puts records on the places from `first` on, which hold the same records in another order; O(n) for each
    // that moves. They wait for the next descent.
    void Put(int first, std::span<const int> records);

    // Makes exchanges that gain until no record that waits has one; a record waits once it has moved.
    void Descend();
    // Makes exchanges and insertions until no record has one that gains.
    void Settle();

private:
    void Move(int record, int place);
    void Wait(int record);
    int NextWaiting();
    InsertionMove BestInsertionTo(bool right) const;

    const Attractions& attractions_;
    int count_;
    Records order_;
    std::vector<double> places_; // by record, and zeros behind
    std::vector<double> slopes_; // likewise
    double half_ = 0;
    std::vector<char> waits_; // by record
    Records queue_;           // of the waiting: a ring
    std::size_t head_ = 0;
    std::size_t waiting_ = 0;
};

} // namespace dorvan
