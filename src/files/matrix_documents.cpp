#include "files/matrix_documents.h"

#include "files/disk.h"
#include "files/document_bytes.h"
#include "files/file_dialogs.h"
#include "files/matrix_file.h"
#include "files/reading.h"
#include "session/registry.h"

#include <fmt/format.h>

#include <utility>

namespace dorvan {

namespace {

DistanceMatrix& TakeSlot(Session& session) {
    session.NewWindowIndex = FindFreeMatrixSlot(session);
    return session.MatrixDocuments.at(std::size_t(session.NewWindowIndex));
}

// The window of the slot in `NewWindowIndex`, whose document is filled.
void OpenMatrixWindow(Session& session, const std::string& path, const std::string& description, bool dirty) {
    ChildWindow& window = CreateChildWindow(session, DocumentKind::Matrix);
    window.Caption = fmt::format("[MATRIX]: {}", path);
    window.Present(description);
    session.MatrixStates.at(std::size_t(window.Index)).Dirty = dirty;
    ShowOpened(session, window);
}

} // namespace

void OpenMatrixFile(Session& session) {
    if (RefusedWhileBusy(session)) return;
    const std::string path = PickFileToOpen(session, MatrixFileFilters(), " - Select mtx file");
    if (path.empty()) return;
    session.platform.events.run();
    UpdateRecentFiles(session, path);
    ReadMatrixFile(session, path);
}

void ReadMatrixFile(Session& session, const std::string& path) {
    std::string description;
    bool current = true;
    const auto read = [&] {
        const std::string bytes = LoadDocument(path, session.codePage);
        current = IsCurrentMatrixFile(bytes);
        if (!current) return;
        const FileText text = FileTextOf(session);
        MatrixFileReader reader(bytes, text);
        description = reader.Description();
        reader.ReadInto(TakeSlot(session));
    };
    if (!ReadsWithoutFault(session, path, Wait::No, read)) return;
    if (current) return OpenMatrixWindow(session, path, description, false);
    TellOlderVersion(session);
    ReadOldMatrixFile(session, path);
}

void ReadOldMatrixFile(Session& session, const std::string& path) {
    std::string description;
    DistanceMatrix document;
    const auto read = [&] {
        description = ParseOldMatrixFile(LoadDocument(path, session.codePage), FileTextOf(session), document);
    };
    if (!ReadsWithoutFault(session, path, Wait::Yes, read)) return;
    TakeSlot(session) = std::move(document);
    OpenMatrixWindow(session, path, description, true);
}

void WriteMatrixFile(Session& session, const std::string& path, const DistanceMatrix& document,
                     const std::string& description) {
    const WaitCursor wait(session.platform);
    try {
        ReplaceFile(path, ComposeMatrixFile(document, description, FileTextOf(session)));
    } catch (const FileError& error) {
        throw FailureOfWriting(error, path);
    }
}

} // namespace dorvan
