#include "cli/export_documents.h"
#include "cli/export_pictures.h"

namespace dorvan::cli {

Subcommand ExportSubcommand() {
    return {.Name = "export",
            .Help = "Write a document in another program's format",
            .Footer = "Examples:\n"
                      "  dorvan-cli export text iris.mdt iris.txt --separator tab\n"
                      "  dorvan-cli export excel USArrests.dgr USArrests.xls\n"
                      "  dorvan-cli export image USArrests.dgr USArrests.tif\n"
                      "  dorvan-cli export metafile USArrests.dgr USArrests.wmf",
            .Inner = {TextExport(), ExcelExport(), ImageExport(), MetafileExport()}};
}

} // namespace dorvan::cli
