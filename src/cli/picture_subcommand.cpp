#include "cli/picture.h"
#include "cli/run.h"
#include "view/frmDiagram.h"

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string diagram;
    std::string out;
    Surroundings surroundings;
};

int Draw(const Given& given) {
    return Reported(given.diagram, [&] {
        Run run(given.surroundings);
        run.Open(given.diagram, {DocumentKind::Diagram});
        auto& window = DiagramWindow(run.session, run.session.ActiveWindow->Index);
        WriteOutput(given.out,
                    DiagramSvg(window.Document(), window.BottomText.Text, run.session.DecimalSeparator));
    });
}

} // namespace

Subcommand PictureSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("DIAGRAM", given->diagram, "diagram (.dgr)");
    options.Argument("OUT", given->out, "picture to write (.svg)");
    AddCodePage(options, given->surroundings);
    return {.Name = "picture",
            .Help = "Draw a diagram as a scalable picture (SVG)",
            .Takes = options,
            .Footer = "Example:\n  dorvan-cli picture USArrests.dgr USArrests.svg",
            .Run = [given] { return Draw(*given); }};
}

} // namespace dorvan::cli
