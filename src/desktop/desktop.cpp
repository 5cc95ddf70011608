#include "desktop/desktop.h"

#include "desktop/file_drops.h"
#include "desktop/icons.h"
#include "desktop/journal_keeper.h"
#include "desktop/qt_cell_clipboard.h"
#include "desktop/qt_text.h"
#include "desktop/workspace_hint.h"
#include "export/diagram_pictures.h"
#include "painting/picture_files.h"
#include "program/open_document.h"
#include "program/program.h"
#include "session/cell_copying.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QScreen>

#include <cstdio>
#include <cstdlib>

namespace dorvan {

Desktop::Desktop(const std::string& programFolder) {
    Compose(session);
    session.Of<CellPorts>().clipboard = &session.Of<QtCellClipboard>();
    session.Of<PictureWriter>().Bytes = painting::PictureBytes;
    shell.Form_Load(static_cast<std::uint64_t>(ports.clock.seconds()), programFolder);
    mainWindow = std::make_unique<MainWindowFace>(session, shell, dispatch);
    ports.children.Attach(
        {session, dispatch,
         [this](const std::string& menu, QPoint global) { mainWindow->PopUp(menu, global); }},
        mainWindow->Area());
    new FileDrops(*mainWindow, session, dispatch);
    new WorkspaceHint(mainWindow->Area(), session, shell, dispatch, programFolder + "/USArrests.mdt");
}

void Desktop::Show() {
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect place = MainWindowPlace(available);
    mainWindow->setGeometry(place);
    if (place == available)
        mainWindow->showMaximized();
    else
        mainWindow->show();
}

QString SamplesFolder(const QString& programPath) {
    for (const auto* place : {"/../share/dorvan/samples", "/samples"})
        if (const QDir folder(programPath + place); folder.exists()) return folder.canonicalPath();
#ifdef DORVAN_SOURCE_SAMPLES
    if (const QDir folder(DORVAN_SOURCE_SAMPLES); folder.exists()) return folder.canonicalPath();
#endif
    return programPath;
}

void Desktop::OfferGuide(const QString& firstPage) {
    ports.help.guide = firstPage;
    session.HelpFile = FromQt(firstPage);
}

QString GuidePage(const QString& programPath) {
    for (const auto* place : {"/../share/doc/dorvan/guide/guide.html", "/docs/guide/guide.html"})
        if (const QFileInfo page(programPath + place); page.exists()) return page.canonicalFilePath();
    return {};
}

void Desktop::Open(const std::string& path) {
    dispatch.Run([&] { OpenDocument(session, path); });
}

int RunDesktop(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    QApplication::setApplicationName("dorvan");
    QApplication::setDesktopFileName("dorvan");
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    // The run changes its current folder; the paths of the command line are relative to the one before.
    std::vector<std::string> files;
    for (const auto& argument : QApplication::arguments().mid(1))
        files.push_back(FromQt(QFileInfo(argument).absoluteFilePath()));

    Desktop desktop(FromQt(SamplesFolder(QApplication::applicationDirPath())));
    desktop.OfferGuide(GuidePage(QApplication::applicationDirPath()));
    EndOfRun endOfRun(desktop.session);
    desktop.dispatch.onEnd = [&endOfRun](const std::string& what) { endOfRun.OnFailure(what); };
    JournalKeeper journal(desktop.session, desktop.dispatch, StateFolder());
    desktop.dispatch.afterEvent = [&] {
        if (!desktop.shell.EndOfRun()) return;
        if (desktop.dispatch.Depth() == 0) return QApplication::quit();
        journal.EndCleanly();
        std::quick_exit(EXIT_SUCCESS); // in the midst of a long work, which would go on otherwise
    };
    desktop.Show();
    for (const auto& file : files) desktop.Open(file);
    journal.OfferLeftDocuments();
    const int status = desktop.shell.EndOfRun() ? EXIT_SUCCESS : QApplication::exec();
    journal.EndCleanly();
    return status;
}

} // namespace dorvan
