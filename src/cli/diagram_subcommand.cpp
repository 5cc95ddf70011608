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
        run.TellStatus();
        if (given.diagram.BestOrder) run.PutInBestOrder();
        run.Save(given.out);
    });
}

constexpr const char* Footer =
    "best minimises the 2-SUM: the sum over the pairs of (difference of places)^2 / (1 + distance). It has "
    "no\n"
    "parameter, works on distances of every scale and is the one to take where no other is wanted.\n\n"
    "Ctrl+C once ends a search early: the best order so far is used and the file written.\n\n"
    "The Ravelin search rounds distance times coefficient to 0..255; what is above counts as 255. Where all\n"
    "distances are above 255 / coefficient, or all round to one number, it finds no end by itself, and it "
    "may\n"
    "find none on a table that stands in its best order already. 255 / the greatest distance is a "
    "coefficient\n"
    "that spreads them. The search keeps the order of the sheet where no generation beats the first, and "
    "says\n"
    "so where it has seen a better one.\n\n"
    "Examples:\n"
    "  dorvan-cli diagram iris.mdt iris.dgr --order best\n"
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
