#pragma once

#include "making/ordering_method.h"
#include "session/documents.h"

#include <cstdint>
#include <functional>

namespace dorvan {

// What a search for the best order has found so far.
struct BestOrderProgress {
    double Criterion = 0; // 2-SUM / n^2 of the best order so far
    double Share = 0;     // of the work, 0 to 1; falls back where a gain makes the search go on
};

// Told from round to round of the search, some milliseconds apart (O(n^2)), on the caller's thread; false
// ends it with the best order so far.
using BestOrderWatch = std::function<bool(const BestOrderProgress&)>;

// The order of the records, 1..n by their rows in the table, with the smallest 2-SUM found: the sum over
// ordered pairs (each pair twice) of (difference of places)^2 / (1 + distance), in 64-bit floats. No
// parameter, for distances of any unit and scale; infinite ones count as without any attraction, and where
// the two directions of a pair differ, the mean of the attractions 1 / (1 + distance) counts.
//
// Where an order without anti-Robinson events exists, the result is one, and minimal. Otherwise several
// starts (the order given, the spectral order, groups, a walk, random orders) each descend by exchanges and
// have a few kicks (a stretch reversed, rotated, shuffled, its ends exchanged, or a few records taken to the
// other end, then descended again); the four best go on so, first each by itself, then from the best of them,
// until a count of kicks that only n decides brought no gain. The result has no exchange and no insertion
// that gains. It is the order given unless a better one was found, and of its two directions the one with
// record 1 in the first half; with record 1 in the very middle, record 2.
//
// The same table, seed and answers of the watch give the same result on any number of threads (0: as many as
// the machine has). O(n) to O(n^2) a kick; about 15 ms for 150 records, 110 ms for 250, with one thread.
// Fails with DivisionByZero where 1 + distance is 0 or no number, with Overflow above 32767 records, and with
// SubscriptOutOfRange for a table that is not square.
//
// Sources: Barnard, Pothen and Simon 1995 (2-SUM and the spectral order); Hahsler, Hornik and Buchta, Getting
// things in order, 2008 (criteria of seriation); Burkard's formulation as a quadratic assignment problem;
// Lourenço, Martin and Stützle, Iterated local search, 2003.
Order BestOrder(const FloatTable& distances, std::uint64_t seed, const BestOrderWatch& progress = {},
                int threads = 0);

} // namespace dorvan
