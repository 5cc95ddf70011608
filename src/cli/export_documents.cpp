#include "cli/export_documents.h"

#include "cli/run.h"
#include "export/frmExportOptions.h"
#include "export/frmTextOptions.h"

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string in;
    std::string out;
    TextChoices text;
    Surroundings surroundings;
};

int ExportText(const Given& given) {
    return Reported(given.in, [&] {
        Run run(given.surroundings);
        run.ports.OnDialog<frmExportOptions>([&](frmExportOptions& form) {
            form.Enter(given.text);
            form.Command2_Click();
        });
        run.ports.OnDialog<frmTextOptions>([&](frmTextOptions& form) {
            form.Enter(given.text);
            form.Command2_Click();
        });
        run.Open(given.in, {DocumentKind::Data, DocumentKind::Matrix});
        run.Write("mnuExportText", given.out);
    });
}

int ExportExcel(const Given& given) {
    return Reported(given.in, [&] {
        Run run(given.surroundings);
        run.Open(given.in, {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram});
        run.Write("mnuExportExcel", given.out);
    });
}

} // namespace

Subcommand TextExport() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("IN", given->in, "data sheet (.mdt) or matrix (.mtx)");
    options.Argument("OUT", given->out, "text to write (.txt)");
    options.Numbered("--separator", given->text.Separator, {"semicolon", "comma", "tab"},
                     "between the fields: semicolon, comma or tab (semicolon)");
    options.Off("--no-variable-names", given->text.VariableNames, "leave out the line of a sheet's names");
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "text",
            .Help = "A data sheet or a matrix as delimited text",
            .Takes = options,
            .Footer = "Example:\n  dorvan-cli export text iris.mdt iris.txt --separator tab",
            .Run = [given] { return ExportText(*given); }};
}

Subcommand ExcelExport() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("IN", given->in, "data sheet (.mdt), matrix (.mtx) or diagram (.dgr)");
    options.Argument("OUT", given->out, "worksheet to write (.xls)");
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "excel",
            .Help = "A document as a worksheet (BIFF 2.1)",
            .Takes = options,
            .Footer = "Example:\n  dorvan-cli export excel USArrests.dgr USArrests.xls",
            .Run = [given] { return ExportExcel(*given); }};
}

} // namespace dorvan::cli
