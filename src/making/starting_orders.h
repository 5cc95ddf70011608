#pragma once

#include "making/attractions.h"
#include "numbers/random_source.h"

namespace dorvan {

// Orders from which the search for the best one starts.

// By the places that the Laplacian's second eigenvector gives to the records (Barnard, Pothen and Simon, A
// spectral algorithm for envelope reduction of sparse matrices, 1995), as some steps of Lanczos' method, each
// made orthogonal to all before, come near to it. O(n^2).
Records SpectralOrder(const Attractions& attractions);

// Record by record, from `first` on the one that is most attracted by one of those before: groups stand
// together. O(n^2).
Records GroupedOrder(const Attractions& attractions, int first);

// A walk from `first` to the record that attracts most of those not yet visited. O(n^2).
Records WalkOrder(const Attractions& attractions, int first);

// Every order as likely as every other.
Records RandomOrder(int count, RandomSource& random);

} // namespace dorvan
