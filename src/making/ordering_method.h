#pragma once

#include "session/session.h"

#include <cstdint>
#include <functional>
#include <map>

namespace dorvan {

// order(p) is the record, by its place before the ordering, that goes to place p.
using Order = Array1<std::int16_t>;

// A search for an order, with options of its own.
struct OrderingMethod {
    // Shows the dialog of its options modally; leaves its outcome in `DialogOutcome`.
    std::function<void(Session&)> askOptions;
    // Runs on an n by n table of distances and gives a permutation of 1..n; a cancelled run the best so far.
    std::function<Order(Session&, const FloatTable&)> run;
};

// By the number in `CurrentOrderMethod`. The composition root registers 3 (simple genetic) and 4 (Ravelin);
// the options dialog offers only what is registered.
using OrderingMethods = std::map<std::int16_t, OrderingMethod>;

} // namespace dorvan
