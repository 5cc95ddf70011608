#include "cli/making_options.h"
#include "cli/run.h"

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string sheet;
    std::string out;
    MeasureChoices measure;
    Surroundings surroundings;
};

int Make(const Given& given) {
    return Reported(given.sheet, [&] {
        Run run(given.surroundings);
        AnswerMeasure(run.ports, given.measure);
        run.Open(given.sheet, {DocumentKind::Data});
        run.Make("MakeMatrix", DocumentKind::Matrix, "no matrix was made");
        run.Save(given.out);
    });
}

} // namespace

Subcommand MatrixSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("SHEET", given->sheet, "data sheet (.mdt)");
    options.Argument("OUT", given->out, "matrix to write (.mtx)");
    AddMeasure(options, given->measure);
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "matrix",
            .Help = "Make a matrix of distances from a data sheet (2 to 150 records)",
            .Takes = options,
            .Footer = "Examples:\n"
                      "  dorvan-cli matrix iris.mdt iris.mtx\n"
                      "  dorvan-cli matrix Townships.mdt Townships.mtx --measure jaccard\n"
                      "  dorvan-cli matrix USArrests.mdt cubic.mtx --measure customized -p 3 -r 3",
            .Run = [given] { return Make(*given); }};
}

} // namespace dorvan::cli
