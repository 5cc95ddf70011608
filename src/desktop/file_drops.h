#pragma once

#include "desktop/event_dispatch.h"
#include "session/session.h"

#include <QObject>

class QWidget;

namespace dorvan {

// Opens the files that are dropped on a window.
class FileDrops : public QObject {
public:
    FileDrops(QWidget& window, Session& session, EventDispatch& dispatch);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Session& session_;
    EventDispatch& dispatch_;
};

} // namespace dorvan
