#pragma once

#include "desktop/end_of_run.h"
#include "desktop/event_dispatch.h"
#include "desktop/main_window_face.h"
#include "desktop/qt_platform.h"
#include "session/frmMDI.h"
#include "session/session.h"

namespace dorvan {

// One run of the program on the screen: everything that lives as long as it does.
class Desktop {
public:
    // A started session behind a main window that is not shown yet.
    explicit Desktop(const std::string& programFolder);

    // At the size that goes with the screen.
    void Show();

    // A file from the command line, by its extension, as a recent file opens.
    void Open(const std::string& path);

    // Help shows these pages where no help file is there.
    void OfferGuide(const QString& firstPage);

    EventDispatch dispatch;
    QtPlatform ports{dispatch};
    Session session{ports.platform};
    frmMDI shell{session};
    std::unique_ptr<MainWindowFace> mainWindow;
};

// Where the samples are: the folder in which file dialogs start. Installed beside the program's prefix, or
// the source's own; the folder of the program where there are none.
QString SamplesFolder(const QString& programPath);

// The first page of the guide, installed or built; empty where there is none.
QString GuidePage(const QString& programPath);

int RunDesktop(int argumentCount, char** arguments);

} // namespace dorvan
