#include "cli/commands.h"

#include "cli/cli_platform.h"
#include "cli/information.h"
#include "distance/frmMacierz.h"
#include "files/data_documents.h"
#include "files/disk.h"
#include "program/open_document.h"
#include "program/program.h"
#include "session/frmMDI.h"
#include "sheet/frmNotePad.h"
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

} // namespace dorvan::cli
