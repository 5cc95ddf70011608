#include "desktop/desktop.h"

#include "desktop/icons.h"
#include "desktop/qt_text.h"
#include "program/program.h"

#include <QApplication>
#include <QDir>
#include <QScreen>

#include <cstdio>
#include <cstdlib>

namespace dorvan {

Desktop::Desktop(const std::string& programFolder) {
    Compose(session);
    shell.Form_Load(static_cast<std::uint64_t>(ports.clock.seconds()), programFolder);
    mainWindow = std::make_unique<MainWindowFace>(session, shell, dispatch);
    ports.children.Attach(
        {session, dispatch,
         [this](const std::string& menu, QPoint global) { mainWindow->PopUp(menu, global); }},
        mainWindow->Area());
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

int RunDesktop(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    QApplication::setApplicationName("dorvan");
    QApplication::setDesktopFileName("dorvan");
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    Desktop desktop(FromQt(SamplesFolder(QApplication::applicationDirPath())));
    desktop.dispatch.afterEvent = [&desktop] {
        if (desktop.shell.EndOfRun()) QApplication::quit();
    };
    desktop.Show();
    return QApplication::exec();
}

} // namespace dorvan
