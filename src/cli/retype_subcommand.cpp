#include "cli/run.h"
#include "numbers/text.h"
#include "view/frmDiagramType.h"
#include "view/frmHistogram.h"

#include <algorithm>
#include <array>
#include <memory>

// Fills the dialogs of the desktop and presses their OK.
namespace dorvan::cli {

namespace {

struct Given {
    std::string diagram;
    std::string out;
    std::optional<std::int16_t> type; // as it is when not given
    std::optional<std::array<std::string, 4>> limits;
    Surroundings surroundings;
};

void AnswerDialogs(CliPlatform& ports, const Given& given) {
    ports.OnDialog<frmDiagramType>([&](frmDiagramType& dialog) {
        dialog.Enter(given.type.value());
        dialog.OKButton_Click();
    });
    ports.OnDialog<frmHistogram>([&](frmHistogram& dialog) {
        dialog.Enter(given.limits.value());
        dialog.Command1_Click();
    });
}

int Retype(const Given& given) {
    return Reported(given.diagram, [&] {
        Run run(given.surroundings);
        AnswerDialogs(run.ports, given);
        run.Open(given.diagram, {DocumentKind::Diagram});
        if (given.type) run.mainWindow.MenuClick("mnuEditDiagramType");
        if (given.limits) run.mainWindow.MenuClick("mnuEditHistogram");
        run.Save(given.out);
    });
}

void AddLimits(Options& options, std::optional<std::array<std::string, 4>>& limits) {
    const auto take = [&limits](const std::string& text) -> std::string {
        const auto fields = SplitFields(text, ',');
        if (fields.size() != 4) return "not four limits: " + text;
        std::copy(fields.begin(), fields.end(), limits.emplace().begin());
        return {};
    };
    options.Checked("--limits", "A,B,C,D", take,
                    "the four limits of the sections, rising; not from 182 records on (as they are)");
}

} // namespace

Subcommand RetypeSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("DIAGRAM", given->diagram, "diagram (.dgr)");
    options.Argument("OUT", given->out, "diagram to write (.dgr)");
    options.Numbered("--type", given->type, {"greyscale", "dots", "classic"},
                     "greyscale, dots or classic (as it is)");
    AddLimits(options, given->limits);
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "retype",
            .Help = "Give a diagram another type, or other section limits",
            .Takes = options,
            .Footer = "Examples:\n"
                      "  dorvan-cli retype USArrests.dgr grey.dgr --type greyscale\n"
                      "  dorvan-cli retype USArrests.dgr narrow.dgr --limits 10,20,40,80",
            .Run = [given] { return Retype(*given); }};
}

} // namespace dorvan::cli
