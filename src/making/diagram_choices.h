#pragma once

#include "distance/measure_choices.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace dorvan {

// The size of a run of the simple genetic ordering: items of the dialog's lists.
struct GeneticChoices {
    std::string Generations = {};
    std::string Variants = {};
};

// The numbers of the Ravelin ordering, in the order of its dialog: the weights of the operators, what ends a
// generation and the run, and the factor from distances to bytes.
enum class RavelinParameter {
    SequenceChange,
    FragmentTransfer,
    SomeSingleTransfers,
    SingleTransfer,
    SomeRemoteConversions,
    RemoteConversion,
    SomeNeighbourConversions,
    NeighbourConversion,
    CriticalMutationNumber,
    CriticalGenerationNumber,
    MatrixConversionCoefficient
};

// What a user says about a diagram to be made: in the dialogs, or on the command line. What is not said stays
// as the dialogs have it.
struct DiagramChoices {
    MeasureChoices Measure = {};
    std::optional<std::int16_t> DiagType = {};            // 1 greyscale, 2 dots, 3 classic
    std::optional<std::int16_t> OrderMethod = {};         // 1 none, 2 simple, 3 simple genetic, 4 Ravelin
    bool BestOrder = false;                               // of the diagram once it is made
    GeneticChoices Genetic = {};                          // of method 3
    std::map<RavelinParameter, std::string> Ravelin = {}; // of method 4, as typed
};

} // namespace dorvan
