#include "cli/run.h"
#include "print/frmOpisDiagramu.h"
#include "print/frmPrintMatrix.h"

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string in;
    std::string out;
    std::optional<std::int16_t> size;
    std::string font;
    painting::PageChoices page;
    Surroundings surroundings;
};

int Print(const Given& given) {
    return Reported(given.in, [&] {
        Run run(given.surroundings);
        run.ports.printer.Path = given.out;
        run.ports.printer.Page = given.page;
        run.ports.printer.setFontName(given.font);
        run.ports.OnDialog<frmPrintMatrix>([](frmPrintMatrix& form) { form.Command1_Click(); });
        run.ports.OnDialog<frmOpisDiagramu>([&](frmOpisDiagramu& form) {
            form.Enter(given.size.value_or(1), given.font);
            form.Command1_Click();
        });
        run.Open(given.in, {DocumentKind::Matrix, DocumentKind::Diagram});
        run.Write("mnuFilePrint", given.out);
    });
}

} // namespace

Subcommand PrintSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("IN", given->in, "matrix (.mtx) or diagram (.dgr)");
    options.Argument("OUT", given->out, "file to write (.pdf)");
    options.Numbered("--size", given->size, {"normal", "small", "large"}, "of a diagram (normal)");
    options.Text("--font", given->font, "family of the texts (a plain one)");
    options.OneOf("--paper", given->page.Paper, {"a4", "a3", "letter"}, "size of the pages (a4)");
    options.Flag("--landscape", given->page.Landscape, "pages that are wider than high");
    AddCodePage(options, given->surroundings);
    return {.Name = "print",
            .Help = "Print a matrix or a diagram to a PDF file, over as many pages as it takes",
            .Takes = options,
            .Footer = "Examples:\n"
                      "  dorvan-cli print USArrests.dgr USArrests.pdf --size small\n"
                      "  dorvan-cli print USArrests.mtx USArrests.pdf --paper a3 --landscape",
            .Run = [given] { return Print(*given); }};
}

} // namespace dorvan::cli
