#include "cli/subcommands.h"

namespace dorvan::cli {

// Each in a file of its own, <name>_subcommand.cpp.
Subcommand MatrixSubcommand();
Subcommand DiagramSubcommand();
Subcommand ConvertSubcommand();
Subcommand InfoSubcommand();
Subcommand PictureSubcommand();
Subcommand ImportSubcommand();
Subcommand StandardizeSubcommand();

std::vector<Subcommand> Subcommands() {
    return {
        // making
        MatrixSubcommand(),
        DiagramSubcommand(),
        // documents
        ConvertSubcommand(),
        InfoSubcommand(),
        StandardizeSubcommand(),
        // input
        ImportSubcommand(),
        // output
        PictureSubcommand(),
    };
}

} // namespace dorvan::cli
