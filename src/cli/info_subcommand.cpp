#include "cli/information.h"
#include "cli/run.h"

#include <fmt/format.h>

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string file;
    Surroundings surroundings;
};

int Inform(const Given& given) {
    return Reported(given.file, [&] {
        Run run(given.surroundings);
        run.Open(given.file, {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram});
        fmt::print("{}", InformationAbout(run.session));
    });
}

} // namespace

Subcommand InfoSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("FILE", given->file, "document (.mdt, .mtx or .dgr)");
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "info",
            .Help = "Tell what a document holds, one `key: value` a line",
            .Takes = options,
            .Footer =
                "The figures of an order are of the distances in the file, which have three decimals.\n\n"
                "Example:\n  dorvan-cli info USArrests.dgr",
            .Run = [given] { return Inform(*given); }};
}

} // namespace dorvan::cli
