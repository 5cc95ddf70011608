#pragma once

#include "making/attractions.h"
#include "making/best_order.h"

#include <cstdint>

namespace dorvan {

// The search of BestOrder where no perfect order is known: iterated local search from several starts. Records
// from 0; the order 0, 1, ..., n - 1 unless a better one is found. At least 2 records.
Records SearchBestOrder(const Attractions& attractions, std::uint64_t seed, const BestOrderWatch& progress,
                        int threads);

} // namespace dorvan
