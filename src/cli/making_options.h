#pragma once

#include "cli/cli_platform.h"
#include "cli/subcommand.h"
#include "making/diagram_choices.h"

// The options of the dialogs of a matrix and of a diagram, on the command line.
namespace dorvan::cli {

void AddMeasure(Options& options, MeasureChoices& measure);
void AddDiagram(Options& options, DiagramChoices& diagram);  // order and type
void AddSearches(Options& options, DiagramChoices& diagram); // what the orderings' own dialogs ask

// Answers the dialogs with them. The options have to live as long as the ports.
void AnswerMeasure(CliPlatform& ports, const MeasureChoices& measure);
void AnswerDiagram(CliPlatform& ports, const DiagramChoices& diagram);

} // namespace dorvan::cli
