#pragma once

#include "making/ordering_method.h"
#include "session/documents.h"
#include "session/session.h"

#include <cstdint>
#include <string>

namespace dorvan {

// The criterion as the program shows it: four decimals.
std::string CriterionText(double criterion, char decimalSeparator);

// False where a distance of -1 leaves a diagram's orders without a criterion, and what is said then.
bool HasCriterion(const DiagramDocument& document);
inline constexpr const char* WithoutCriterion = "A distance of -1 leaves the best order without a criterion.";

// The records of a diagram, 1..n, in their best order, searched for behind a progress window that shows once
// the search has taken as long as `secondsUnseen` (from the start on if that is 0) and from which it can be
// cancelled. Events run meanwhile, with `DiagramBusy` at 1. Fails as BestOrder does.
Order SearchBehindWindow(Session& session, const DiagramDocument& document, std::uint64_t seed,
                         double secondsUnseen);

// The command of the active diagram, by its slot: gives its records the best order as a move by hand does,
// and tells the criterion before and after in the status line. Beeps while a diagram is being made.
void PutInBestOrder(Session& session, std::int16_t slot);

} // namespace dorvan
