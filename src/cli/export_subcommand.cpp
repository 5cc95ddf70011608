#include "cli/export_pictures.h"

namespace dorvan::cli {

Subcommand ExportSubcommand() {
    return {.Name = "export",
            .Help = "Write a document in another program's format",
            .Footer = "Examples:\n"
                      "  dorvan-cli export image USArrests.dgr USArrests.tif\n"
                      "  dorvan-cli export metafile USArrests.dgr USArrests.wmf",
            .Inner = {ImageExport(), MetafileExport()}};
}

} // namespace dorvan::cli
