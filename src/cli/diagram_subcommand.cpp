#include "cli/making_options.h"
#include "cli/run.h"

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string input;
    std::string out;
    DiagramChoices diagram;
    Surroundings surroundings;
};

int Make(const Given& given) {
    return Reported(given.input, [&] {
        Run run(given.surroundings);
        AnswerDiagram(run.ports, given.diagram);
        run.Open(given.input, {DocumentKind::Data, DocumentKind::Matrix});
        run.Make("MakeDiagram", DocumentKind::Diagram, "no diagram was made");
        run.Save(given.out);
    });
}

constexpr const char* Footer =
    "Ctrl+C once ends a search early: the best order so far is used and the file written. On a table that\n"
    "stands in its best order already, the Ravelin search may find no end by itself.\n\n"
    "Examples:\n"
    "  dorvan-cli diagram USArrests.mdt USArrests.dgr --order simple\n"
    "  dorvan-cli diagram Munsingen.mdt graves.dgr --measure jaccard --order ravelin --seed 1 "
    "--matrix-conversion-coefficient 100\n"
    "  dorvan-cli diagram airquality.mdt air.dgr --measure henzel --type greyscale\n"
    "  dorvan-cli diagram iris.mtx iris.dgr --order genetic --generations 100 --variants 10";

} // namespace

Subcommand DiagramSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("INPUT", given->input, "data sheet (.mdt) or matrix (.mtx)");
    options.Argument("OUT", given->out, "diagram to write (.dgr)");
    AddMeasure(options, given->diagram.Measure);
    AddDiagram(options, given->diagram);
    AddSeed(options, given->surroundings);
    AddSearches(options, given->diagram);
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "diagram",
            .Help = "Make a diagram from a data sheet or a matrix (3 to 250 records)",
            .Takes = options,
            .Footer = Footer,
            .Run = [given] { return Make(*given); }};
}

} // namespace dorvan::cli
