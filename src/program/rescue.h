#pragma once

#include "session/session.h"

#include <string>
#include <vector>

// Copies of the documents that a run would lose when it ends in another way than by its user.
namespace dorvan {

// A document whose present state no file holds, as a file of its own.
struct RescueCopy {
    std::string FileName; // "iris 2026-11-21 10-30-05.mdt"
    std::string Bytes;
};

// One copy for each open sheet, matrix and diagram that its own file does not hold (see IsHeldByFile),
// changed or not by the program's own reckoning. A copy opens like any other file: a line break of a
// description becomes a blank, and a cell of a sheet that is no number becomes what it evaluates to. `time`
// goes into the names, as does the caption, cut where it is long; "Untitled" stands there in lower case,
// since a document whose caption has the word counts as one without a file. A document that cannot be
// composed is left out and named in `failures`.
std::vector<RescueCopy> CopiesToRescue(const Session& session, const std::string& time,
                                       std::vector<std::string>& failures);

struct RescueReport {
    std::vector<std::string> Written; // paths
    std::vector<std::string> Failures;

    bool Empty() const { return Written.empty() && Failures.empty(); }
};

// Where the copies go: the first of these folders that takes them. One that is missing is made, for its owner
// alone.
using RescueFolders = std::vector<std::string>;

// The folder "Dorvan rescued documents" among the user's documents, then "rescued" among the program's state.
RescueFolders RescueFoldersOf(const std::string& documentsFolder, const std::string& stateFolder);

// Writes the copies, for their owner alone. No copy takes the place of a file that is there. Never fails:
// what went wrong stands in the report.
RescueReport RescueDocuments(const Session& session, const RescueFolders& folders, const std::string& time);

// Where the copies are, for a message; empty for an empty report.
std::string RescueText(const RescueReport& report);

} // namespace dorvan
