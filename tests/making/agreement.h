#pragma once

#include "making/ordering_method.h"
#include "making/ordering_options.h"
#include "numbers/runtime_failure.h"
#include "session/documents.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// One run, or several of one session, of a genetic ordering: by what the program runs, and by the plain
// transcription.
namespace dorvan {

enum class Distances {
    Fractions, // from 0 to 100
    Ties,      // whole numbers from 0 to 3
    Wide,      // from 0 to 1000
    Small,     // from 0 to 1
    Lopsided,  // not the same both ways
    Negative,  // from -3.4 to 3.4: denominators of both signs
    BelowZero, // from -0.5 to 200
    Huge,      // up to 1e30
    Zero,
    Equal,
};

inline constexpr Distances EveryKind[] = {
    Distances::Fractions, Distances::Ties,      Distances::Wide, Distances::Small, Distances::Lopsided,
    Distances::Negative,  Distances::BelowZero, Distances::Huge, Distances::Zero,  Distances::Equal};

FloatTable MakeDistances(Distances kind, std::int32_t n, std::uint64_t seed);

struct Plan {
    OrderingOptions options{};
    std::uint64_t seed = 1;
    int runs = 1;
    // The yield, counted from 1 over all runs, at which these happen; 0 for never.
    int cancelAt = 0;
    int noWindowAt = 0;   // there only
    int noWindowFrom = 0; // and at every later one
    char decimalSeparator = '.';
};

struct Yielded {
    std::uint64_t position; // of the random source
    std::string shown;      // all texts of the progress window
    bool operator==(const Yielded&) const = default;
};

struct Found {
    Order order;
    float score;
    bool cancelled; // the flag after the run
    bool operator==(const Found&) const = default;
};

// All that can be told of a run from outside.
struct Trace {
    std::vector<Yielded> yields;
    std::vector<Found> found; // one a run that did not fail
    std::optional<Failure> failure;
    std::uint64_t position = 0; // of the random source at the end
    std::int32_t weights = 0;   // UmWeightTotal
    int messages = 0;
};

Trace RunGenetic(const FloatTable& distances, const Plan& plan);
Trace PlainGenetic(const FloatTable& distances, const Plan& plan);
Trace RunRavelin(const FloatTable& distances, const Plan& plan);
Trace PlainRavelin(const FloatTable& distances, const Plan& plan);

void ExpectSame(const Trace& run, const Trace& plain);

} // namespace dorvan
