#include "cli/picture.h"
#include "cli/run.h"
#include "painting/picture_files.h"
#include "view/frmDiagram.h"

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string diagram;
    std::string out;
    PictureChoices choices;
    Surroundings surroundings;
};

int Draw(const Given& given) {
    return Reported(given.diagram, [&] {
        Run run(given.surroundings);
        run.Open(given.diagram, {DocumentKind::Diagram});
        const auto& document = DiagramWindow(run.session, run.session.ActiveWindow->Index).Document();
        const Drawing drawing =
            PictureOf(document, given.choices, run.ports.drawing, run.session.DecimalSeparator);
        run.ports.drawing.StartToolkit();
        WriteOutput(given.out, painting::PictureBytes(drawing, given.out, given.choices.scale));
    });
}

void AddPath(Options& options, std::string& path) {
    const auto take = [&path](const std::string& text) -> std::string {
        if (!IsPictureName(text)) return "no .svg, .pdf or .png: " + text;
        path = text;
        return {};
    };
    options.Checked("OUT", "TEXT", take, "picture to write (.svg, .pdf or .png)");
}

} // namespace

Subcommand PictureSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("DIAGRAM", given->diagram, "diagram (.dgr)");
    AddPath(options, given->out);
    options.OneOf("--what", given->choices.what, {"diagram", "histogram", "linear"},
                  "diagram, histogram or linear (diagram)");
    options.Flag("--cumulative", given->choices.cumulative, "running sums in the histogram");
    options.Decimal("--scale", given->choices.scale, 0.1, 16, "times the size on a screen, 0.1 to 16 (1)");
    AddCodePage(options, given->surroundings);
    return {.Name = "picture",
            .Help = "Draw a diagram, or a graph of it",
            .Takes = options,
            .Footer = "Examples:\n"
                      "  dorvan-cli picture USArrests.dgr USArrests.svg\n"
                      "  dorvan-cli picture USArrests.dgr USArrests.png --scale 2\n"
                      "  dorvan-cli picture USArrests.dgr sections.pdf --what histogram --cumulative",
            .Run = [given] { return Draw(*given); }};
}

} // namespace dorvan::cli
