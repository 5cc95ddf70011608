#include "files/matrix_documents.h"

#include "distance/frmMacierz.h"
#include "files/disk.h"
#include "files/document_bytes.h"
#include "files/file_dialogs.h"
#include "files/matrix_file.h"
#include "files/reading.h"
#include "session/busy.h"
#include "session/opening.h"

#include <fmt/format.h>

#include <utility>

namespace dorvan {

namespace {

std::string CaptionOf(const std::string& path) { return fmt::format("[MATRIX]: {}", path); }

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
    std::int16_t slot = 0;
    const auto read = [&] {
        const std::string bytes = LoadDocument(path, session.codePage);
        current = IsCurrentMatrixFile(bytes);
        if (!current) return;
        const FileText text = FileTextOf(session);
        MatrixFileReader reader(bytes, text);
        description = reader.Description();
        slot = FindFreeMatrixSlot(session);
        reader.ReadInto(session.MatrixDocuments.at(std::size_t(slot)));
    };
    if (!ReadsWithoutFault(session, path, Wait::No, read)) return;
    if (!current) {
        TellOlderVersion(session);
        return ReadOldMatrixFile(session, path);
    }
    session.NewWindowIndex = slot;
    OpensWithoutFault(session, path, DocumentKind::Matrix, [&] {
        OpenDocumentWindow<frmMacierz>(session, {.Caption = CaptionOf(path), .Dirty = false, .Slot = slot},
                                       [&](frmMacierz& window) { window.Present(description); });
    });
}

void ReadOldMatrixFile(Session& session, const std::string& path) {
    std::string description;
    DistanceMatrix document;
    const auto read = [&] {
        description = ParseOldMatrixFile(LoadDocument(path, session.codePage), FileTextOf(session), document);
    };
    if (!ReadsWithoutFault(session, path, Wait::Yes, read)) return;
    session.NewWindowIndex = FindFreeMatrixSlot(session);
    OpensWithoutFault(session, path, DocumentKind::Matrix, [&] {
        OpenDocumentWindow<frmMacierz>(session, {.Caption = CaptionOf(path), .Slot = session.NewWindowIndex},
                                       [&](frmMacierz& window) {
                                           window.Document() = std::move(document);
                                           window.Present(description);
                                       });
    });
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
