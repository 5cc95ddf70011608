#pragma once

#include "making/genetic_ordering.h"

#include <optional>

namespace dorvan {

// What the progress window of the Ravelin ordering shows; nothing stands where nothing was shown yet.
struct RavelinProgress {
    std::optional<std::int32_t> Generation;
    std::optional<std::int32_t> GenerationsLost;
    std::optional<std::int32_t> Mutation;
    std::optional<std::int32_t> MutationsLost;
    std::optional<double> Base;
    std::optional<float> Trial;
    std::optional<float> BestUm;
    bool TimeDue = false; // set where the time is to be shown anew; the window clears it
};

struct RavelinHooks {
    // Lets pending events run, once a generation and once a mutation; returns how many windows are open.
    std::function<int(RavelinProgress&)> yield;
    // The base that is shown lies below the base: a fault of the program.
    std::function<void()> invalidMinimum;
    char decimalSeparator = '.';
};

// Hill climbing over a permutation, with eight mutation operators drawn by weights; a generation ends after a
// number of mutations in a row without gain, the run after a number of generations in a row without gain, and
// between generations the search is shaken. `distances` (1..n, 1..n), n from 2 on. Also ends when cancelled
// (the flag stays), or when no window is open. The score is the UM coefficient that generations have to beat.
//
// Adds the weights to UmWeightTotal, which is never set back: each further run draws operator 8 more often.
// Fails with Overflow where a distance leaves the range of a byte, or a drawn weight that of 16 bits.
//
// Mutations are drawn ahead as if each one before were rejected, and scored side by side; the random source
// stands after the last one that was used.
FoundOrder RavelinOrder(const FloatTable& distances, OrderingOptions& options, RandomSource& random,
                        const RavelinHooks& hooks);

} // namespace dorvan
