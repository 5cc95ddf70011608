#pragma once

#include <cstdint>

namespace dorvan {

// What the two genetic orderings are told by their dialogs, and what they leave for the next run.
struct OrderingOptions {
    // The simple genetic ordering.
    std::int16_t GeneticGenerations = 250;
    std::int16_t GeneticVariants = 30;

    // The Ravelin ordering: the weights of its eight operators, in the order of their numbers.
    std::int16_t SequenceChange = 1;
    std::int16_t FragmentTransfer = 5;
    std::int16_t SomeSingleTransfers = 20;
    std::int16_t SingleTransfer = 50;
    std::int16_t SomeRemoteConversions = 15;
    std::int16_t RemoteConversion = 30;
    std::int16_t SomeNeighbourConversions = 50;
    std::int16_t NeighbourConversion = 200;
    // Mutations in a row without gain that end a generation; generations in a row that end the run.
    std::int16_t CriticalMutationNumber = 100;
    std::int16_t CriticalGenerationNumber = 10;
    float MatrixConversionCoefficient = 1.0F; // from distances to bytes

    // Grows by the sum of the weights with each run and is never set back.
    std::int32_t UmWeightTotal = 0;

    // Set by Cancel of a progress window.
    bool WorkCancelled = false;
};

} // namespace dorvan
