#pragma once

#include "making/ordering_method.h"
#include "making/ordering_options.h"
#include "numbers/random_source.h"
#include "session/documents.h"

#include <cstdint>
#include <functional>

namespace dorvan {

// What the progress window of the simple genetic ordering shows. Nothing but the first "0 %" stands in it
// until the first generation begins.
struct GeneticProgress {
    std::int32_t Generation = 0; // begun
    float Percent = 0;           // of the generations
    float Fitness = 0;           // the score of the best order before this generation; 0 in the first
    bool TimeDue = false;        // set where the time is to be shown anew; the window clears it
};

// Lets pending events run, once a generation; returns how many windows are open. Cancel comes through
// `OrderingOptions::WorkCancelled`.
using GeneticYield = std::function<int(GeneticProgress&)>;

struct FoundOrder {
    Order BestOrder; // 1..n
    float Score = 0; // 0 where no generation was scored
    bool BetterWasSeen =
        false; // the Ravelin ordering gives the order of the sheet, and has seen a better one
};

// An evolution with one parent: each generation makes variants of the best order so far by random exchanges
// and keeps the best. `distances` (1..n, 1..n), n from 3 on. Ends after GeneticGenerations generations, when
// cancelled (the flag is taken back), or when no window is open.
//
// The variants are scored side by side; of the repetitions in which a variant is made anew n times, only the
// last is carried out, and the draws of the others are passed over.
FoundOrder SimpleGeneticOrder(const FloatTable& distances, OrderingOptions& options, RandomSource& random,
                              const GeneticYield& yield);

} // namespace dorvan
