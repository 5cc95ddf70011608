#include "cli/run.h"
#include "sheet/frmStandard.h"

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string sheet;
    std::string out;
    std::optional<std::int16_t> method; // of the dialog
    Surroundings surroundings;
};

int Standardize(const Given& given) {
    return Reported(given.sheet, [&] {
        Run run(given.surroundings);
        run.ports.OnDialog<frmStandard>([&](frmStandard& dialog) {
            if (given.method) dialog.Enter(*given.method);
            dialog.Command2_Click();
        });
        run.Open(given.sheet, {DocumentKind::Data});
        const ChildWindow* source = run.session.ActiveWindow;
        const std::size_t told = run.ports.messages.size();
        run.mainWindow.MenuClick("mnuEditStandarization");
        if (run.session.ActiveWindow == source) throw run.Refused("no sheet was made");
        run.Save(given.out);
        run.TellFrom(told);
    });
}

} // namespace

Subcommand StandardizeSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options;
    options.Argument("SHEET", given->sheet, "data sheet (.mdt)");
    options.Argument("OUT", given->out, "data sheet to write (.mdt)");
    options.OneOf(
        "--method", {"range", "deviation"},
        [given](const std::string& text) {
            given->method = text == "deviation" ? frmStandard::ByDeviation : frmStandard::ToRange;
        },
        "range (each variable from 0 to 100) or deviation (mean 0, deviation 1) (range)");
    AddYes(options, given->surroundings);
    AddCodePage(options, given->surroundings);
    return {.Name = "standardize",
            .Help = "Make a sheet in which every variable is standardized",
            .Takes = options,
            .Footer = "A missing value counts as 0.\n\n"
                      "Examples:\n"
                      "  dorvan-cli standardize USArrests.mdt range.mdt\n"
                      "  dorvan-cli standardize iris.mdt scores.mdt --method deviation",
            .Run = [given] { return Standardize(*given); }};
}

} // namespace dorvan::cli
