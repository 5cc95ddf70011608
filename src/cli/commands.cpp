#include "cli/commands.h"

#include "cli/cli_platform.h"
#include "cli/information.h"
#include "distance/frmMacierz.h"
#include "files/data_documents.h"
#include "files/disk.h"
#include "import/frmImpDBF.h"
#include "import/frmImpMatrix.h"
#include "import/frmImportText.h"
#include "numbers/text.h"
#include "program/open_document.h"
#include "program/program.h"
#include "session/frmMDI.h"
#include "sheet/frmNotePad.h"
#include "sheet/frmStandard.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <initializer_list>
#include <stdexcept>

namespace dorvan::cli {

namespace {

// One run of the program without a screen.
struct Run {
    CliPlatform ports;
    Session session{ports.platform};
    frmMDI mainWindow{session};

    Run(const Choices& choices, const Surroundings& surroundings) {
        ports.choices = choices;
        ports.answersYes = surroundings.yes;
        Compose(session);
        const auto clock = static_cast<std::uint64_t>(ports.seconds() * 1000);
        mainWindow.Form_Load(surroundings.seed.value_or(clock), ".");
        if (surroundings.codePage) session.codePage = CodePage(*surroundings.codePage);
    }

    std::string_view kind() const {
        return session.ActiveWindow ? std::string_view(session.ActiveWindow->TypeOfForm) : DocumentKind::Main;
    }

    // What the program said so far, but for a refusal at the end.
    void tellRemarks(bool withLast) const {
        const std::size_t count = ports.messages.size();
        for (std::size_t place = 0; place + (withLast ? 0 : 1) < count; ++place)
            fmt::print(stderr, "dorvan-cli: {}\n", ports.messages[place]);
    }

    // What it said since then, a message a line.
    void tellFrom(std::size_t place) const {
        for (; place < ports.messages.size(); ++place)
            fmt::print(stderr, "dorvan-cli: {}\n", ports.messages[place]);
    }

    // What is done in a dialog of that class, its OK included.
    template <class Dialog> void onDialog(std::function<void(Dialog&)> answer) {
        ports.onDialog = [answer = std::move(answer)](Form& form) {
            if (auto* dialog = dynamic_cast<Dialog*>(&form)) answer(*dialog);
        };
    }

    // What the program said last, or that it said nothing.
    Refusal refusal(const std::string& what) const {
        return Refusal(ports.messages.empty() ? what : ports.messages.back());
    }
};

// Opens a document by its name's ending; `wanted` says which kinds will do.
void Open(Run& run, const std::string& path, std::initializer_list<std::string_view> wanted) {
    const std::string_view kind = KindOfFile(path);
    if (!kind.empty() && std::find(wanted.begin(), wanted.end(), kind) == wanted.end())
        throw Refusal(fmt::format("a file of the kind {} is of no use here", kind));
    OpenDocument(run.session, path);
    const bool opened = !kind.empty() && run.kind() == kind;
    run.tellRemarks(opened);
    if (!opened) throw run.refusal("the file could not be read");
}

// A failure whose text names its file itself.
struct SaveFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Saves the active document under the path.
void Save(Run& run, const std::string& path) {
    const auto kind = run.kind();
    const std::int16_t slot = run.session.ActiveWindow->Index;
    try {
        if (kind == DocumentKind::Data) WriteDataFile(run.session, path);
        if (kind == DocumentKind::Matrix) MatrixWindow(run.session, slot).SaveMatrixNew(path);
        if (kind == DocumentKind::Diagram) DiagramWindow(run.session, slot).SaveDiagramNew(path);
    } catch (const RuntimeFailure& failure) {
        throw SaveFailure(failure.what());
    }
    if (!run.session.SilentFailure.empty()) throw SaveFailure(path + ": " + run.session.SilentFailure);
}

void Write(const std::string& path, const std::string& bytes) {
    try {
        ReplaceFile(path, bytes);
    } catch (const FileError& error) {
        throw SaveFailure(fmt::format("{}: {}", path, error.what()));
    }
}

// Does the work and tells a failure in one line that names the file.
template <class Work> int Reported(const std::string& file, const Work& work) {
    std::string reason;
    try {
        work();
        return 0;
    } catch (const SaveFailure& failure) {
        reason = failure.what();
    } catch (const std::exception& failure) {
        reason = failure.what();
        if (reason.find(file) == std::string::npos) reason = file + ": " + reason;
    }
    fmt::print(stderr, "dorvan-cli: {}\n", reason);
    return 1;
}

} // namespace

int RunMatrix(const std::string& sheet, const std::string& out, const Choices& choices,
              const Surroundings& surroundings) {
    return Reported(sheet, [&] {
        Run run(choices, surroundings);
        Open(run, sheet, {DocumentKind::Data});
        run.mainWindow.ButtonClick("toolMain", "MakeMatrix");
        if (run.kind() != DocumentKind::Matrix) throw run.refusal("no matrix was made");
        Save(run, out);
    });
}

int RunDiagram(const std::string& input, const std::string& out, const Choices& choices,
               const Surroundings& surroundings) {
    return Reported(input, [&] {
        Run run(choices, surroundings);
        Open(run, input, {DocumentKind::Data, DocumentKind::Matrix});
        run.mainWindow.ButtonClick("toolMain", "MakeDiagram");
        if (run.kind() != DocumentKind::Diagram) throw run.refusal("no diagram was made");
        Save(run, out);
    });
}

int RunConvert(const std::string& in, const std::string& out, const Surroundings& surroundings) {
    if (KindOfFile(in) != KindOfFile(out)) {
        fmt::print(stderr, "dorvan-cli: {} and {} are not of the same kind\n", in, out);
        return 2;
    }
    return Reported(in, [&] {
        Run run({}, surroundings);
        Open(run, in, {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram});
        Save(run, out);
    });
}

int RunInfo(const std::string& file, const Surroundings& surroundings) {
    return Reported(file, [&] {
        Run run({}, surroundings);
        Open(run, file, {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram});
        fmt::print("{}", InformationAbout(run.session));
    });
}

int RunPicture(const std::string& diagram, const std::string& out, const PictureChoices& choices,
               const Surroundings& surroundings) {
    return Reported(diagram, [&] {
        Run run({}, surroundings);
        Open(run, diagram, {DocumentKind::Diagram});
        const auto& document = DiagramWindow(run.session, run.session.ActiveWindow->Index).Document();
        const Drawing drawing = PictureOf(document, choices, run.ports.text, run.session.DecimalSeparator);
        run.ports.text.StartToolkit();
        Write(out, PictureBytes(drawing, out, choices.scale));
    });
}

int RunStandardize(const std::string& sheet, const std::string& out, const std::string& method,
                   const Surroundings& surroundings) {
    return Reported(sheet, [&] {
        Run run({}, surroundings);
        run.onDialog<frmStandard>([&](frmStandard& dialog) {
            dialog.Option1.Value = method == "deviation";
            dialog.Option2.Value = !dialog.Option1.Value;
            dialog.Command2_Click();
        });
        Open(run, sheet, {DocumentKind::Data});
        const ChildWindow* source = run.session.ActiveWindow;
        const std::size_t told = run.ports.messages.size();
        run.mainWindow.MenuClick("mnuEditStandarization");
        if (run.session.ActiveWindow == source) throw run.refusal("no sheet was made");
        Save(run, out);
        run.tellFrom(told);
    });
}

// The imports fill the dialogs of the desktop and press their OK.
namespace {

// Clicks the item of the menu and saves the document that it opens.
template <class Dialog>
int Import(const std::string& file, const std::string& out, const std::string& item,
           const Surroundings& surroundings, const std::function<void(Dialog&)>& answer) {
    return Reported(file, [&] {
        Run run({}, surroundings);
        run.ports.fileToOpen = file;
        run.onDialog<Dialog>([&](Dialog& dialog) {
            dialog.CodePageForced = surroundings.codePage.has_value();
            answer(dialog);
        });
        run.mainWindow.MenuClick(item);
        if (!run.session.ActiveWindow) throw run.refusal("nothing was imported");
        Save(run, out);
        run.tellFrom(0);
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

} // namespace

int RunImportText(const std::string& file, const std::string& out, const ImportChoices& choices,
                  const Surroundings& surroundings) {
    return Import<frmImportText>(file, out, "mnuImportTextFile", surroundings, [&](frmImportText& dialog) {
        dialog.Command3_Click();
        if (dialog.Label1.Caption.empty()) return; // refused with a message
        dialog.Option3.Value = choices.separator == "tab";
        dialog.Option1.Value = !dialog.Option3.Value;
        dialog.Check1.Value = !choices.noVariableNames;
        dialog.Check2.Value = !choices.noRecordNames;
        dialog.Command2_Click();
    });
}

int RunImportMatrix(const std::string& file, const std::string& out, const ImportChoices& choices,
                    const Surroundings& surroundings) {
    return Import<frmImpMatrix>(file, out, "mnuImportMatrix", surroundings, [&](frmImpMatrix& dialog) {
        dialog.Command3_Click();
        if (dialog.Label1.Caption.empty()) return;
        dialog.optSep2.Value = choices.separator == "tab";
        dialog.optSep1.Value = !dialog.optSep2.Value;
        dialog.chkFirstCol.Value = !choices.noRecordNames;
        if (choices.precision) dialog.txtPrecision.Text = std::to_string(*choices.precision);
        dialog.Command1_Click();
    });
}

int RunImportDBase(const std::string& file, const std::string& out, const ImportChoices& choices,
                   const Surroundings& surroundings) {
    return Import<frmImpDBF>(file, out, "mnuImportDBase", surroundings, [&](frmImpDBF& dialog) {
        dialog.cmdBrowse_Click();
        if (dialog.Label1.Caption.empty()) return;
        SelectFields(dialog, choices.fields);
        if (!choices.names.empty())
            dialog.cmbString.ListIndex = PlaceOf(dialog.cmbString, choices.names, "character");
        dialog.cmdOK_Click();
    });
}

} // namespace dorvan::cli
