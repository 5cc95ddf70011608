#include "files/data_documents.h"

#include "files/data_file.h"
#include "files/disk.h"
#include "files/file_dialogs.h"
#include "files/reading.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"

#include <fmt/format.h>

namespace dorvan {

namespace {

std::string CaptionOf(const std::string& path) { return fmt::format("[DATA]: {}", LowerCase(path)); }

void OpenDataWindow(Session& session, const std::string& path, const std::string& description) {
    session.PendingRecCount = static_cast<std::int16_t>(session.tables.RecordNames.Count());
    session.PendingVarCount = static_cast<std::int16_t>(session.tables.VariableNames.Count());
    OpenDocumentWindow<frmNotePad>(session, {.Caption = CaptionOf(path), .Dirty = false},
                                   [&](frmNotePad& window) {
                                       window.FilePath = path;
                                       window.Present(description);
                                   });
}

} // namespace

void OpenDataFile(Session& session) {
    if (RefusedWhileBusy(session)) return;
    const std::string path = PickFileToOpen(session, DataFileFilters(), " - Select mdt file");
    if (path.empty()) return;
    ReadDataFile(session, path);
    UpdateRecentFiles(session, path);
}

void ReadDataFile(Session& session, const std::string& path) {
    std::string description;
    bool current = true;
    const auto read = [&] {
        const std::string bytes = LoadFile(path);
        current = IsCurrentDataFile(bytes);
        if (!current) return;
        description = ParseDataFile(bytes, FileTextOf(session), session.tables);
    };
    if (!ReadsWithoutFault(session, path, Wait::No, read)) return;
    if (current) return OpenDataWindow(session, path, description);
    TellOlderVersion(session);
    ReadOldDataFile(session, path);
}

void ReadOldDataFile(Session& session, const std::string& path) {
    if (RefusedWhileBusy(session)) return;
    std::string description;
    const auto read = [&] {
        const std::string bytes = LoadFile(path);
        description = ParseOldDataFile(bytes, FileTextOf(session), session.tables);
    };
    if (ReadsWithoutFault(session, path, Wait::Yes, read)) OpenDataWindow(session, path, description);
}

bool WriteDataFile(Session& session, const std::string& path) {
    const frmNotePad& window = ActiveDataWindow(session);
    const WaitCursor wait(session.platform);
    std::string& silentFailure = session.Of<FileValues>().SilentFailure;
    silentFailure.clear();
    try {
        ReplaceFile(path, ComposeDataFile(window.Table(), window.OpisText.Text, FileTextOf(session)));
    } catch (const FileError& error) { // silent by design: the document counts as saved all the same
        silentFailure = error.what();
    }
    session.DataStates.at(std::size_t(window.Index)).Dirty = false;
    return silentFailure.empty();
}

void SaveData(Session& session) {
    if (RefusedWhileBusy(session)) return;
    frmNotePad& window = ActiveDataWindow(session);
    const std::string path = IsUntitled(window.Caption)
                                 ? PickFileToSave(session, DataFileFilters(), " - Save mdt file", "mdt")
                                 : window.NamedFile();
    if (path.empty()) return;
    WriteDataFile(session, path);
    window.Caption = CaptionOf(path);
    window.FilePath = path;
}

void SaveDataAs(Session& session) {
    if (RefusedWhileBusy(session)) return;
    const std::string path = PickFileToSave(session, DataFileFilters(), " - Save mdt file as", "mdt");
    if (path.empty()) return;
    WriteDataFile(session, path);
    UpdateRecentFiles(session, path);
}

} // namespace dorvan
