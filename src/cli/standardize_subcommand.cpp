#include "cli/run.h"
#include "sheet/frmStandard.h"

#include <memory>

namespace dorvan::cli {

namespace {

struct Given {
    std::string sheet;
    std::string out;
    std::string method; // empty: the dialog's own choice
    Surroundings surroundings;
};

int Standardize(const Given& given) {
    return Reported(given.sheet, [&] {
        Run run(given.surroundings);
        run.ports.OnDialog<frmStandard>([&](frmStandard& dialog) {
            dialog.Option1.Value = given.method == "deviation";
            dialog.Option2.Value = !dialog.Option1.Value;
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
    options.OneOf("--method", given->method, {"range", "deviation"},
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
