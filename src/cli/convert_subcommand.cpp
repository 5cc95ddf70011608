#include "cli/run.h"
#include "program/open_document.h"

#include <fmt/format.h>

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string in;
    std::string out;
    Surroundings surroundings;
};

constexpr int WrongUsage = 2;

int Convert(const Given& given) {
    if (KindOfFile(given.in) != KindOfFile(given.out)) {
        fmt::print(stderr, "dorvan-cli: {} and {} are not of the same kind\n", given.in, given.out);
        return WrongUsage;
    }
    return Reported(given.in, [&] {
        Run run(given.surroundings);
        run.Open(given.in, {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram});
        run.Save(given.out);
    });
}

} // namespace

Subcommand ConvertSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("IN", given->in, "document (.mdt, .mtx or .dgr)");
    options.Argument("OUT", given->out, "document of the same kind");
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "convert",
            .Help = "Read a document of any age and write the current format",
            .Takes = options,
            .Footer = "Examples:\n"
                      "  dorvan-cli convert old.dgr new.dgr\n"
                      "  LC_ALL=pl_PL.UTF-8 dorvan-cli convert point.mdt comma.mdt",
            .Run = [given] { return Convert(*given); }};
}

} // namespace dorvan::cli
