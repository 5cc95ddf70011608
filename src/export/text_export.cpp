#include "export/text_export.h"

#include "export/delimited_text.h"
#include "export/export_files.h"
#include "export/frmExportOptions.h"
#include "files/disk.h"
#include "session/busy.h"
#include "session/dialog.h"
#include "sheet/frmNotePad.h"

#include <fmt/format.h>

namespace dorvan {

namespace {

// The text of the error that the writing was given up for; empty for none.
std::string WriteSheet(Session& session, const std::string& path) {
    const WaitCursor wait(session.platform);
    const char separator = SeparatorCharacter(session.DataTextSeparator);
    const Grid& sheet = ActiveDataWindow(session).Grid1;
    try {
        ReplaceFile(path, SheetAsText(sheet, separator, session.DataTextNames == 1, session.codePage));
        return {};
    } catch (const FileError& error) {
        return fmt::format("{}. File: {}", error.what(), path);
    }
}

} // namespace

void ExportData(Session& session) {
    if (RefusedWhileBusy(session)) return;
    const bool accepted = AcceptedForOutput<frmExportOptions>(session);
    session.platform.events.run();
    if (!accepted) return;
    const std::string path = PickFileToSave(session, TextFileFilters(), " - Export *.txt file", "txt");
    if (path.empty()) return;
    const std::string error = WriteSheet(session, path);
    if (!error.empty()) session.platform.messages.show({.Text = error, .Icon = MessageIcon::Exclamation});
}

} // namespace dorvan
