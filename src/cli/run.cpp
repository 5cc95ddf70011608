#include "cli/run.h"

#include "distance/frmMacierz.h"
#include "files/data_documents.h"
#include "files/disk.h"
#include "making/best_order_run.h"
#include "numbers/runtime_failure.h"
#include "program/open_document.h"
#include "program/program.h"
#include "session/status_bar.h"
#include "view/document_order.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <new>

namespace dorvan::cli {

void AddSeed(Options& options, Surroundings& surroundings) {
    options.Number("--seed", surroundings.Seed,
                   "seed of the random numbers, 0 to 2^64-1 (from the clock, and told on standard error)");
}

void AddYes(Options& options, Surroundings& surroundings) {
    options.Flag("-y,--yes", surroundings.Yes, "open a sheet with empty fields, as empty cells (refused)");
}

void AddCodePage(Options& options, Surroundings& surroundings) {
    const auto take = [&surroundings](const std::string& text) -> std::string {
        int number = 0;
        const char* end = text.data() + text.size();
        if (std::from_chars(text.data(), end, number).ptr != end || !IsCodePage(number))
            return "no such code page: " + text;
        surroundings.CodePage = number;
        return {};
    };
    options.Checked("--code-page", "INT:PAGE", take,
                    "code page of files: 1250 to 1258 or 874 (from the locale)");
}

Run::Run(const Surroundings& surroundings)
    : seed(surroundings.Seed.value_or(static_cast<std::uint64_t>(ports.seconds() * 1000))) {
    ports.answersYes = surroundings.Yes;
    if (!surroundings.Seed) ports.onSearch = [this] { fmt::print(stderr, "dorvan-cli: --seed {}\n", seed); };
    Compose(session);
    mainWindow.Form_Load(seed, ".");
    if (surroundings.CodePage) session.codePage = CodePage(*surroundings.CodePage);
}

std::string_view Run::Kind() const {
    return session.ActiveWindow ? std::string_view(session.ActiveWindow->TypeOfForm) : DocumentKind::Main;
}

void Run::TellRemarks(bool withLast) const {
    const std::size_t count = ports.messages.size();
    for (std::size_t place = 0; place + (withLast ? 0 : 1) < count; ++place)
        fmt::print(stderr, "dorvan-cli: {}\n", ports.messages[place]);
}

void Run::TellFrom(std::size_t place) const {
    for (; place < ports.messages.size(); ++place)
        fmt::print(stderr, "dorvan-cli: {}\n", ports.messages[place]);
}

Refusal Run::Refused(const std::string& what) const {
    return Refusal(ports.messages.empty() ? what : ports.messages.back());
}

void Run::Open(const std::string& path, std::initializer_list<std::string_view> wanted) {
    const std::string_view kind = KindOfFile(path);
    if (!kind.empty() && std::find(wanted.begin(), wanted.end(), kind) == wanted.end())
        throw Refusal(fmt::format("a file of the kind {} is of no use here", kind));
    OpenDocument(session, path);
    const bool opened = !kind.empty() && Kind() == kind;
    TellRemarks(opened);
    if (!opened) throw Refused("the file could not be read");
}

void Run::Make(const std::string& button, std::string_view kind, const std::string& otherwise) {
    mainWindow.ButtonClick("toolMain", button);
    if (Kind() != kind) throw Refused(otherwise);
}

void Run::PutInBestOrder() {
    DiagramDocument& document = DiagramWindow(session, session.ActiveWindow->Index).Document();
    if (!HasCriterion(document)) throw Refusal(WithoutCriterion);
    ReorderDocument(document, SearchBehindWindow(session, document, seed, 0));
}

void Run::TellStatus() {
    if (const auto& text = StatusText(session); !text.empty()) fmt::print(stderr, "dorvan-cli: {}\n", text);
}

void Run::Write(const std::string& item, const std::string& path) {
    ports.fileToSave = path;
    const std::size_t remarks = ports.messages.size();
    try {
        mainWindow.MenuClick(item);
    } catch (const RuntimeFailure& failure) {
        throw SaveFailure(failure.what());
    }
    if (ports.messages.size() > remarks) throw SaveFailure(ports.messages.back());
    const std::string& silentFailure = session.Of<FileValues>().SilentFailure;
    if (!silentFailure.empty()) throw SaveFailure(path + ": " + silentFailure);
}

void Run::Save(const std::string& path) {
    const std::int16_t slot = session.ActiveWindow->Index;
    try {
        if (Kind() == DocumentKind::Data) WriteDataFile(session, path);
        if (Kind() == DocumentKind::Matrix) MatrixWindow(session, slot).SaveMatrixNew(path);
        if (Kind() == DocumentKind::Diagram) DiagramWindow(session, slot).SaveDiagramNew(path);
    } catch (const RuntimeFailure& failure) {
        throw SaveFailure(failure.what());
    }
    const std::string& silentFailure = session.Of<FileValues>().SilentFailure;
    if (!silentFailure.empty()) throw SaveFailure(path + ": " + silentFailure);
}

int Reported(const std::string& file, const std::function<void()>& work) {
    std::string reason;
    try {
        work();
        return 0;
    } catch (const SaveFailure& failure) {
        reason = failure.what();
    } catch (const std::bad_alloc&) {
        reason = file + ": The memory does not suffice";
    } catch (const std::exception& failure) {
        reason = failure.what();
        if (reason.find(file) == std::string::npos) reason = file + ": " + reason;
    }
    fmt::print(stderr, "dorvan-cli: {}\n", reason);
    return 1;
}

void WriteOutput(const std::string& path, const std::string& bytes) {
    try {
        ReplaceFile(path, bytes);
    } catch (const FileError& error) {
        throw SaveFailure(fmt::format("{}: {}", path, error.what()));
    }
}

} // namespace dorvan::cli
