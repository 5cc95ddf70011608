#include "cli/run.h"
#include "import/frmImpDBF.h"
#include "import/frmImpMatrix.h"
#include "import/frmImportText.h"
#include "import/separators.h"
#include "numbers/text.h"

#include <memory>

// The imports fill the dialogs of the desktop and press their OK.
namespace dorvan::cli {

namespace {

struct Given {
    std::string file;
    std::string out;
    TextImportChoices text;
    MatrixImportChoices matrix;
    DBaseImportChoices dbase;
    Surroundings surroundings;
};

// Clicks the item of the menu and saves the document that it opens.
template <class Dialog>
int Import(const Given& given, const std::string& item, const std::function<void(Dialog&)>& answer) {
    return Reported(given.file, [&] {
        Run run(given.surroundings);
        run.ports.fileToOpen = given.file;
        run.ports.OnDialog<Dialog>([&](Dialog& dialog) {
            dialog.CodePageForced = given.surroundings.CodePage.has_value();
            answer(dialog);
        });
        run.mainWindow.MenuClick(item);
        if (!run.session.ActiveWindow) throw run.Refused("nothing was imported");
        run.Save(given.out);
        run.TellFrom(0);
    });
}

int ImportText(const Given& given) {
    return Import<frmImportText>(given, "mnuImportTextFile", [&](frmImportText& dialog) {
        dialog.Command3_Click();
        if (dialog.Label1.Caption.empty()) return; // refused with a message
        dialog.Enter(given.text);
        dialog.Command2_Click();
    });
}

int ImportMatrix(const Given& given) {
    return Import<frmImpMatrix>(given, "mnuImportMatrix", [&](frmImpMatrix& dialog) {
        dialog.Command3_Click();
        if (dialog.Label1.Caption.empty()) return;
        dialog.Enter(given.matrix);
        dialog.Command1_Click();
    });
}

int ImportDBase(const Given& given) {
    return Import<frmImpDBF>(given, "mnuImportDBase", [&](frmImpDBF& dialog) {
        dialog.cmdBrowse_Click();
        if (dialog.Label1.Caption.empty()) return;
        dialog.Enter(given.dbase);
        dialog.cmdOK_Click();
    });
}

Options CommonOptions(Given& given, const char* file, const char* out) {
    Options options;
    options.Argument("FILE", given.file, file);
    options.Argument("OUT", given.out, out);
    AddCodePage(options, given.surroundings);
    return options;
}

template <class Choices> void AddSeparator(Options& options, Choices& choices) {
    options.OneOf(
        "--separator", {"semicolon", "tab"},
        [&choices](const std::string& text) {
            choices.Separator = text == "tab" ? TabSeparator : SemicolonSeparator;
        },
        "semicolon or tab (semicolon)");
    options.Off("--no-record-names", choices.RecordNames, "the first field is a value");
}

Subcommand TextSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options = CommonOptions(*given, "delimited text", "data sheet to write (.mdt)");
    AddSeparator(options, given->text);
    options.Off("--no-variable-names", given->text.VariableNames, "the first line is a record");
    return {.Name = "text",
            .Help = "Make a data sheet from delimited text (at most 250 records, 100 variables)",
            .Takes = options,
            .Footer = "UTF-8 and UTF-16 are recognised; --code-page reads any file by that page.\n\n"
                      "Examples:\n"
                      "  dorvan-cli import text towns.csv towns.mdt\n"
                      "  dorvan-cli import text scores.txt scores.mdt --separator tab --no-record-names",
            .Run = [given] { return ImportText(*given); }};
}

Subcommand MatrixTextSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options = CommonOptions(*given, "delimited text, a line a row", "matrix to write (.mtx)");
    AddSeparator(options, given->matrix);
    options.Number<std::int16_t>("--precision", given->matrix.Precision, "decimals that are kept (3)",
                                 [](std::int16_t precision) { return precision >= 0; });
    return {.Name = "matrix",
            .Help = "Make a matrix from a square of delimited text (at most 250 records)",
            .Takes = options,
            .Footer = "Signs are dropped.\n\nExample:\n"
                      "  dorvan-cli import matrix distances.txt distances.mtx --precision 2",
            .Run = [given] { return ImportMatrix(*given); }};
}

auto TakeFields(std::vector<std::string>& fields) {
    return [&fields](const std::string& text) {
        for (const std::string_view name : SplitFields(text, ',')) fields.emplace_back(TrimSpaces(name));
        return std::string();
    };
}

Subcommand DBaseSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options = CommonOptions(*given, "dBase III table (.dbf)", "data sheet to write (.mdt)");
    options.Checked("--fields", "TEXT", TakeFields(given->dbase.Fields),
                    "numeric fields, between commas (every numeric field)");
    options.Text("--names", given->dbase.RecordNames,
                 "character field of the records' names (the first one)");
    return {.Name = "dbase",
            .Help = "Make a data sheet from a dBase III table (its first 250 records)",
            .Takes = options,
            .Footer = "Example:\n"
                      "  dorvan-cli import dbase counties.dbf counties.mdt --fields BIR74,SID74 --names NAME",
            .Run = [given] { return ImportDBase(*given); }};
}

} // namespace

Subcommand ImportSubcommand() {
    return {.Name = "import",
            .Help = "Make documents from tables of other programs",
            .Inner = {TextSubcommand(), MatrixTextSubcommand(), DBaseSubcommand()}};
}

} // namespace dorvan::cli
