#include "cli/subcommands.h"

namespace dorvan::cli {

// Each in a file of its own, <name>_subcommand.cpp.
Subcommand MatrixSubcommand();
Subcommand DiagramSubcommand();
Subcommand ConvertSubcommand();
Subcommand InfoSubcommand();
Subcommand PictureSubcommand();

std::vector<Subcommand> Subcommands() {
    return {
        // making
        MatrixSubcommand(),
        DiagramSubcommand(),
        // documents
        ConvertSubcommand(),
        InfoSubcommand(),
        // output
        PictureSubcommand(),
    };
}

} // namespace dorvan::cli
