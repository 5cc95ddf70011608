#include "desktop/file_drops.h"

#include "desktop/qt_text.h"
#include "program/open_document.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace dorvan {

namespace {

std::vector<std::string> FilesOf(const QMimeData& data) {
    std::vector<std::string> files;
    for (const QUrl& url : data.urls())
        files.push_back(FromQt(url.isLocalFile() ? url.toLocalFile() : url.toString()));
    return files;
}

} // namespace

FileDrops::FileDrops(QWidget& window, Session& session, EventDispatch& dispatch)
    : QObject(&window), session_(session), dispatch_(dispatch) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
        event->type() != QEvent::Drop)
        return false;
    auto& drop = *static_cast<QDropEvent*>(event);
    if (!drop.mimeData()->hasUrls()) return false;
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (event->type() == QEvent::Drop) // the program that gives the files waits for the end of the drop
        dispatch_.Later(this, [this, files = FilesOf(*drop.mimeData())] { OpenDocuments(session_, files); });
    return true;
}

} // namespace dorvan
