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
    "best minimises the 2-SUM: the sum over the pairs of (difference of places)^2 / (1 + distance). It\n"
    "has no parameter, works on distances of every scale and is the one to take where no other is wanted.\n\n"
    "Ctrl+C once ends a search early: the best order so far is used and the file written.\n\n"
    "The Ravelin search takes distances above 255 as 255, multiplies by the coefficient and rounds to\n"
    "0..255; a product above that ends the run. 255 / the greatest distance spreads distances of up to\n"
    "255. Where all are above 255, or all products round to one number, every order counts the same and\n"
    "the search may find no end by itself; nor may it on a table in its best order. It keeps the order of\n"
    "the sheet where no generation beats the first, and says so where it has seen a better one: try\n"
    "another seed or coefficient.\n\n"
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
