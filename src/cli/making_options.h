#pragma once

#include "cli/cli_platform.h"
#include "cli/subcommand.h"
#include "making/diagram_options.h"

// The options of the dialogs of a matrix and of a diagram, on the command line.
namespace dorvan::cli {

void AddMeasure(Options& options, MeasureOptions& measure);
void AddDiagram(Options& options, DiagramOptions& diagram);  // order and type
void AddSearches(Options& options, DiagramOptions& diagram); // what the orderings' own dialogs ask

// Answers the dialogs with them. The options have to live as long as the ports.
void AnswerMeasure(CliPlatform& ports, const MeasureOptions& measure);
void AnswerDiagram(CliPlatform& ports, const DiagramOptions& diagram);

} // namespace dorvan::cli
