#include "cli/run.h"
#include "import/frmImpDBF.h"
#include "import/frmImpMatrix.h"
#include "import/frmImportText.h"
#include "import/import_values.h"
#include "numbers/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <memory>

// The imports fill the dialogs of the desktop and press their OK.
namespace dorvan::cli {

namespace {

struct Files {
    std::string file;
    std::string out;
    Surroundings surroundings;
};

void AddFiles(Options& options, Files& files, const char* file, const char* out) {
    options.Argument("FILE", files.file, file);
    options.Argument("OUT", files.out, out);
}

// Clicks the item of the menu and saves the document that it opens.
int Import(const Files& files, const std::string& item, const std::function<void(CliPlatform&)>& answer) {
    return Reported(files.file, [&] {
        Run run(files.surroundings);
        run.session.Of<ImportValues>().CodePageForced = files.surroundings.CodePage.has_value();
        run.ports.FileToOpen = files.file;
        answer(run.ports);
        run.mainWindow.MenuClick(item);
        if (!run.session.ActiveWindow) throw run.Refused("nothing was imported");
        run.Save(files.out);
        run.TellMessages();
    });
}

// Of text.

struct Text : Files {
    std::string separator;
    bool noVariableNames = false;
    bool noRecordNames = false;
};

void AddSeparator(Options& options, std::string& separator) {
    options.OneOf("--separator", separator, {"semicolon", "tab"}, "what stands between fields (semicolon)");
}

int ImportText(const Text& text) {
    return Import(text, "mnuImportTextFile", [&](CliPlatform& ports) {
        ports.OnDialog<frmImportText>([&](frmImportText& dialog) {
            dialog.Command3_Click();
            if (dialog.Label1.Caption.empty()) return; // refused with a message
            dialog.Option3.Value = text.separator == "tab";
            dialog.Option1.Value = !dialog.Option3.Value;
            dialog.Check1.Value = !text.noVariableNames;
            dialog.Check2.Value = !text.noRecordNames;
            dialog.Command2_Click();
        });
    });
}

// Of a matrix.

struct Matrix : Files {
    std::string separator;
    bool noRecordNames = false;
    std::optional<std::int16_t> precision;
};

int ImportMatrix(const Matrix& matrix) {
    return Import(matrix, "mnuImportMatrix", [&](CliPlatform& ports) {
        ports.OnDialog<frmImpMatrix>([&](frmImpMatrix& dialog) {
            dialog.Command3_Click();
            if (dialog.Label1.Caption.empty()) return;
            dialog.optSep2.Value = matrix.separator == "tab";
            dialog.optSep1.Value = !dialog.optSep2.Value;
            dialog.chkFirstCol.Value = !matrix.noRecordNames;
            if (matrix.precision) dialog.txtPrecision.Text = std::to_string(*matrix.precision);
            dialog.Command1_Click();
        });
    });
}

// Of a dBase table.

struct DBase : Files {
    std::string fields; // names between commas; empty: all
    std::string names;  // a character field; empty: the first
};

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

int ImportDBase(const DBase& dbase) {
    return Import(dbase, "mnuImportDBase", [&](CliPlatform& ports) {
        ports.OnDialog<frmImpDBF>([&](frmImpDBF& dialog) {
            dialog.cmdBrowse_Click();
            if (dialog.Label1.Caption.empty()) return;
            SelectFields(dialog, dbase.fields);
            if (!dbase.names.empty())
                dialog.cmbString.ListIndex = PlaceOf(dialog.cmbString, dbase.names, "character");
            dialog.cmdOK_Click();
        });
    });
}

} // namespace

Subcommand ImportTextSubcommand() {
    const auto given = std::make_shared<Text>();
    Options options;
    AddFiles(options, *given, "delimited text", "data sheet to write (.mdt)");
    AddSeparator(options, given->separator);
    options.Flag("--no-variable-names", given->noVariableNames, "the first line is a record");
    options.Flag("--no-record-names", given->noRecordNames, "the first field is a value");
    AddCodePage(options, given->surroundings);
    return {.Name = "import text",
            .Help = "Make a data sheet from delimited text (at most 250 records, 100 variables)",
            .Takes = options,
            .Footer = "UTF-8 and UTF-16 are recognised; --code-page reads any file by that page.\n\n"
                      "Examples:\n"
                      "  dorvan-cli import text towns.csv towns.mdt\n"
                      "  dorvan-cli import text scores.txt scores.mdt --separator tab --no-record-names",
            .Run = [given] { return ImportText(*given); }};
}

Subcommand ImportMatrixSubcommand() {
    const auto given = std::make_shared<Matrix>();
    Options options;
    AddFiles(options, *given, "delimited text, a line a row", "matrix to write (.mtx)");
    AddSeparator(options, given->separator);
    options.Flag("--no-record-names", given->noRecordNames, "the first field is a value");
    options.Number<std::int16_t>("--precision", given->precision, "decimals that are kept (3)");
    AddCodePage(options, given->surroundings);
    return {.Name = "import matrix",
            .Help = "Make a matrix from a square of delimited text (at most 250 records)",
            .Takes = options,
            .Footer = "Signs are dropped.\n\n"
                      "Example:\n"
                      "  dorvan-cli import matrix distances.txt distances.mtx --precision 2",
            .Run = [given] { return ImportMatrix(*given); }};
}

Subcommand ImportDBaseSubcommand() {
    const auto given = std::make_shared<DBase>();
    Options options;
    AddFiles(options, *given, "dBase III table (.dbf)", "data sheet to write (.mdt)");
    options.Text("--fields", given->fields, "numeric fields, between commas (every numeric field)");
    options.Text("--names", given->names, "character field of the records' names (the first one)");
    AddCodePage(options, given->surroundings);
    return {.Name = "import dbase",
            .Help = "Make a data sheet from a dBase III table (its first 250 records)",
            .Takes = options,
            .Footer = "Example:\n"
                      "  dorvan-cli import dbase counties.dbf counties.mdt --fields BIR74,SID74 --names NAME",
            .Run = [given] { return ImportDBase(*given); }};
}

} // namespace dorvan::cli
