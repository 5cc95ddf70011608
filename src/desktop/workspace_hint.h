#pragma once

#include "desktop/event_dispatch.h"
#include "session/frmMDI.h"

#include <QWidget>

#include <string>

class QMdiArea;

namespace dorvan {

// What can be done first, in the middle of the workspace for as long as no window is open. It lies over the
// workspace, not in it, where a screen reader would not find it.
class WorkspaceHint : public QWidget {
public:
    // `sample` is a file that the last button opens; without it there is no such button.
    WorkspaceHint(QMdiArea& area, Session& session, frmMDI& shell, EventDispatch& dispatch,
                  const std::string& sample);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddButton(const char* name, const QString& text, std::function<void()> click);
    void Mirror();
    void Place();

    QMdiArea& area_;
    Session& session_;
    EventDispatch& dispatch_;
};

} // namespace dorvan
