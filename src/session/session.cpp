#include "session/session.h"

#include "numbers/number_text.h"
#include "session/history.h"
#include "session/menus.h"
#include "session/open_documents.h"
#include "session/recent_files.h"
#include "session/window_switches.h"

#include <fmt/format.h>

namespace dorvan {

namespace {

// Every array of a kind holds slots 0 and 1; slot 1 is free. Slot 0 stays unmarked and is never examined.
void BuildRegistry(Session& session) {
    for (auto* windows :
         {&session.DataWindows, &session.MatrixWindows, &session.DiagramWindows, &session.BitmapWindows})
        windows->assign(2, nullptr);
    for (auto* states :
         {&session.DataStates, &session.MatrixStates, &session.DiagramStates, &session.BitmapStates}) {
        states->assign(2, WindowState{});
        states->at(1).Deleted = true;
    }
    session.MatrixDocuments.assign(2, DistanceMatrix{});
    session.DiagramDocuments.assign(2, DiagramDocument{});
}

void SetDefaults(Session& session) {
    session.CurrentDiagType = 2;
    session.CurrentOrderMethod = 1;
    session.CurrentDistType = 1;
    session.MatrixTextSeparator = 1;
    session.DataTextSeparator = 1;
    session.DataTextNames = 1;
}

} // namespace

std::string MainCaption(const Version& version) {
    return fmt::format("Dorvan {}.{}.{}", version.Major, version.Minor, version.Revision);
}

void StartSession(Session& session, std::uint64_t seed, const std::string& programFolder) {
    for (int index = 0; index < RecentFileItems; ++index)
        session.mainWindow.ShowMenu(RecentFileItem(index), false);
    session.random = RandomSource(seed);
    session.mainWindow.ShowToolbar("toolMatrix", false);
    session.mainWindow.ShowToolbar("toolDiagram", false);
    session.mainWindow.CheckMenu("mnuOToolbar", true);
    session.mainWindow.Caption = MainCaption(session.version);
    session.AppPath = programFolder;
    session.MaxDiagramRecords = 250;
    session.DecimalSeparator = FindDecimalSeparator();
    session.codePage = CodePage(SystemCodePage());
    BuildRegistry(session);
    SetDefaults(session);
    LoadRecentFiles(session);
    DisableDocumentCommands(session.mainWindow);
    ShowHistory(session);
    ShowDocuments(session);
    session.mainWindow.TypeOfForm = DocumentKind::Main;
}

} // namespace dorvan
