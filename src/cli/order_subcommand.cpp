#include "cli/run.h"

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string diagram;
    std::string out;
    std::string order = "best";
    Surroundings surroundings;
};

int PutInOrder(const Given& given) {
    return Reported(given.diagram, [&] {
        Run run(given.surroundings);
        run.Open(given.diagram, {DocumentKind::Diagram});
        run.PutInBestOrder();
        run.Save(given.out);
    });
}

} // namespace

Subcommand OrderSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("INPUT", given->diagram, "diagram (.dgr)");
    options.Argument("OUT", given->out, "diagram to write (.dgr)");
    options.OneOf("--order", given->order, {"best"}, "best (best)");
    AddSeed(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "order",
            .Help = "Put the records of a diagram in their best order: distances, names and data alike",
            .Takes = options,
            .Footer =
                "Ctrl+C once ends the search early: the best order so far is used and the file written.\n"
                "After moves by hand a diagram holds its data in the order of its making; they stay as far\n"
                "from its names as they were.\n\n"
                "Examples:\n"
                "  dorvan-cli order iris.dgr ordered.dgr\n"
                "  dorvan-cli order iris.dgr ordered.dgr --order best --seed 1",
            .Run = [given] { return PutInOrder(*given); }};
}

} // namespace dorvan::cli
