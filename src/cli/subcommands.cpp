#include "cli/subcommands.h"

namespace dorvan::cli {

// Each in a file of its own, <name>_subcommand.cpp.
Subcommand MatrixSubcommand();
Subcommand DiagramSubcommand();
Subcommand OrderSubcommand();
Subcommand ConvertSubcommand();
Subcommand InfoSubcommand();
Subcommand PictureSubcommand();
Subcommand DeriveSubcommand();
Subcommand RetypeSubcommand();
Subcommand ExportSubcommand();
Subcommand PrintSubcommand();
Subcommand ImportSubcommand();
Subcommand StandardizeSubcommand();

std::vector<Subcommand> Subcommands() {
    return {
        // making
        MatrixSubcommand(),
        DiagramSubcommand(),
        OrderSubcommand(),
        // documents
        ConvertSubcommand(),
        InfoSubcommand(),
        StandardizeSubcommand(),
        DeriveSubcommand(),
        RetypeSubcommand(),
        // input
        ImportSubcommand(),
        // output
        ExportSubcommand(),
        PrintSubcommand(),
        PictureSubcommand(),
    };
}

} // namespace dorvan::cli
