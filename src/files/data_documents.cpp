#include "files/data_documents.h"

#include "files/data_file.h"
#include "files/disk.h"
#include "files/document_bytes.h"
#include "files/file_dialogs.h"
#include "files/file_fault.h"
#include "files/reading.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"

#include <fmt/format.h>

#include <optional>

namespace dorvan {

namespace {

std::string CaptionOf(const std::string& path) { return fmt::format("[DATA]: {}", LowerCase(path)); }

void OpenDataWindow(Session& session, const std::string& path, const std::string& description) {
    session.PendingRecCount = static_cast<std::int16_t>(session.tables.RecordNames.Count());
    session.PendingVarCount = static_cast<std::int16_t>(session.tables.VariableNames.Count());
    session.NewWindowIndex = FindFreeDataSlot(session);
    OpensWithoutFault(session, path, DocumentKind::Data, [&] {
        OpenDocumentWindow<frmNotePad>(
            session, {.Caption = CaptionOf(path), .Dirty = false, .Slot = session.NewWindowIndex},
            [&](frmNotePad& window) {
                window.FilePath = path;
                window.Present(description);
            });
    });
}

// A sheet that reads only with its empty fields taken, as a save of emptied cells leaves them.
struct SheetWithEmptyCells {
    std::string Fault; // that of the plain reading
    DocumentTables Tables;
};

std::string ParseCurrentSheet(std::string_view bytes, const FileText& text, DocumentTables& tables,
                              std::optional<SheetWithEmptyCells>& other, const std::string& path) {
    try {
        return ParseDataFile(bytes, text, tables);
    } catch (const FileFault& fault) {
        if (!bytes.ends_with('\n')) throw; // cut off, rather than saved with an empty cell
        other.emplace(SheetWithEmptyCells{fault.Describe(path), {}});
        try {
            return ParseDataFile(bytes, text, other->Tables, EmptyFields::Taken);
        } catch (const FileFault&) {
            other.reset();
        }
        throw;
    }
}

// The user decides whether such a sheet opens.
bool OpensWithEmptyCells(Session& session, SheetWithEmptyCells&& sheet) {
    const Message question{.Text = sheet.Fault + "\r\nOpen the sheet with its empty fields as empty cells?",
                           .Icon = MessageIcon::Exclamation,
                           .Buttons = MessageButtons::YesNo};
    if (session.platform.messages.show(question) != Answer::Yes) return false;
    session.tables.RecordNames = std::move(sheet.Tables.RecordNames);
    session.tables.VariableNames = std::move(sheet.Tables.VariableNames);
    session.tables.DataValues = std::move(sheet.Tables.DataValues);
    return true;
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
    std::optional<SheetWithEmptyCells> withEmptyCells;
    bool current = true;
    const auto read = [&] {
        const std::string bytes = LoadDocument(path, session.codePage);
        current = IsCurrentDataFile(bytes);
        if (!current) return;
        description = ParseCurrentSheet(bytes, FileTextOf(session), session.tables, withEmptyCells, path);
    };
    if (!ReadsWithoutFault(session, path, Wait::No, read)) return;
    if (withEmptyCells && !OpensWithEmptyCells(session, std::move(*withEmptyCells))) return;
    if (current) return OpenDataWindow(session, path, description);
    TellOlderVersion(session);
    ReadOldDataFile(session, path);
}

void ReadOldDataFile(Session& session, const std::string& path) {
    if (RefusedWhileBusy(session)) return;
    std::string description;
    const auto read = [&] {
        const std::string bytes = LoadDocument(path, session.codePage);
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
