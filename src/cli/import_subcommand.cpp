#include "cli/run.h"
#include "import/frmImpDBF.h"
#include "import/frmImpMatrix.h"
#include "import/frmImportText.h"
#include "numbers/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <memory>

// The imports fill the dialogs of the desktop and press their OK.
namespace dorvan::cli {

namespace {

struct Given {
    std::string file;
    std::string out;
    std::string separator; // semicolon, tab
    bool noVariableNames = false;
    bool noRecordNames = false;
    std::optional<std::int16_t> precision; // decimals of a matrix
    std::string fields;                    // numeric fields of a table, between commas; empty: all
    std::string names;                     // its field of the records' names; empty: the first
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
        dialog.Option3.Value = given.separator == "tab";
        dialog.Option1.Value = !dialog.Option3.Value;
        dialog.Check1.Value = !given.noVariableNames;
        dialog.Check2.Value = !given.noRecordNames;
        dialog.Command2_Click();
    });
}

int ImportMatrix(const Given& given) {
    return Import<frmImpMatrix>(given, "mnuImportMatrix", [&](frmImpMatrix& dialog) {
        dialog.Command3_Click();
        if (dialog.Label1.Caption.empty()) return;
        dialog.optSep2.Value = given.separator == "tab";
        dialog.optSep1.Value = !dialog.optSep2.Value;
        dialog.chkFirstCol.Value = !given.noRecordNames;
        if (given.precision) dialog.txtPrecision.Text = std::to_string(*given.precision);
        dialog.Command1_Click();
    });
}

// The place of a name in a list of the dialog.
int PlaceOf(const ListBox& list, std::string_view name, const char* kind) {
    const auto found = std::find(list.List.begin(), list.List.end(), TrimSpaces(name));
    if (found == list.List.end())
        throw Refusal(fmt::format("the table has no {} field \"{}\"", kind, TrimSpaces(name)));
    return static_cast<int>(found - list.List.begin());
}

// The fields are moved one by one, in the order in which they were named.
void SelectFields(frmImpDBF& dialog, const std::string& fields) {
    if (fields.empty()) {
        dialog.AList.SelectAll();
        if (dialog.AList.AnySelected()) dialog.cmdCopyToRight_Click();
        return;
    }
    for (const std::string_view name : SplitFields(fields, ',')) {
        dialog.AList.Selected.at(std::size_t(PlaceOf(dialog.AList, name, "numeric"))) = true;
        dialog.cmdCopyToRight_Click();
    }
}

int ImportDBase(const Given& given) {
    return Import<frmImpDBF>(given, "mnuImportDBase", [&](frmImpDBF& dialog) {
        dialog.cmdBrowse_Click();
        if (dialog.Label1.Caption.empty()) return;
        SelectFields(dialog, given.fields);
        if (!given.names.empty())
            dialog.cmbString.ListIndex = PlaceOf(dialog.cmbString, given.names, "character");
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

void AddSeparator(Options& options, Given& given) {
    options.OneOf("--separator", given.separator, {"semicolon", "tab"}, "semicolon or tab (semicolon)");
    options.Flag("--no-record-names", given.noRecordNames, "the first field is a value");
}

Subcommand TextSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options = CommonOptions(*given, "delimited text", "data sheet to write (.mdt)");
    AddSeparator(options, *given);
    options.Flag("--no-variable-names", given->noVariableNames, "the first line is a record");
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
    AddSeparator(options, *given);
    options.Number<std::int16_t>("--precision", given->precision, "decimals that are kept (3)",
                                 [](std::int16_t precision) { return precision >= 0; });
    return {.Name = "matrix",
            .Help = "Make a matrix from a square of delimited text (at most 250 records)",
            .Takes = options,
            .Footer = "Signs are dropped.\n\nExample:\n"
                      "  dorvan-cli import matrix distances.txt distances.mtx --precision 2",
            .Run = [given] { return ImportMatrix(*given); }};
}

Subcommand DBaseSubcommand() {
    const auto given = std::make_shared<Given>();
    Options options = CommonOptions(*given, "dBase III table (.dbf)", "data sheet to write (.mdt)");
    options.Text("--fields", given->fields, "numeric fields, between commas (every numeric field)");
    options.Text("--names", given->names, "character field of the records' names (the first one)");
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
