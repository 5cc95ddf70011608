#include "cli/run.h"
#include "program/open_document.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string what; // matrix, data
    std::string diagram;
    std::string out;
    Surroundings surroundings;
};

constexpr int WrongUsage = 2;

int Derive(const Given& given) {
    const bool data = given.what == "data";
    if (KindOfFile(given.out) != (data ? DocumentKind::Data : DocumentKind::Matrix)) {
        fmt::print(stderr, "dorvan-cli: {} is no name of a {}\n", given.out, data ? "sheet" : "matrix");
        return WrongUsage;
    }
    return Reported(given.diagram, [&] {
        Run run(given.surroundings);
        run.Open(given.diagram, {DocumentKind::Diagram});
        auto& window = DiagramWindow(run.session, run.session.ActiveWindow->Index);
        if (data && window.Document().NoData) throw Refusal("the diagram has no data behind it");
        run.mainWindow.MenuClick(data ? "mnuEditCreateDataset" : "mnuEditCreateMatrix");
        run.Save(given.out);
    });
}

} // namespace

Subcommand DeriveSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.OneOf("WHAT", given->what, {"matrix", "data"}, "matrix or data");
    options.Argument("DIAGRAM", given->diagram, "diagram (.dgr)");
    options.Argument("OUT", given->out, "document to write (.mtx or .mdt)");
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "derive",
            .Help = "Take the matrix or the data out of a diagram, in its order",
            .Takes = options,
            .Footer = "Examples:\n"
                      "  dorvan-cli derive matrix USArrests.dgr ordered.mtx\n"
                      "  dorvan-cli derive data USArrests.dgr ordered.mdt",
            .Run = [given] { return Derive(*given); }};
}

} // namespace dorvan::cli
