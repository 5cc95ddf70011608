#include "desktop/qt_cell_clipboard.h"

#include "desktop/qt_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace dorvan {

void QtCellClipboard::put(const std::string& tabbedText, const std::string& html) {
    auto* cells = new QMimeData;
    cells->setText(ToQt(tabbedText));
    cells->setHtml("<html><head><meta charset=\"utf-8\"></head><body>\n" + ToQt(html) + "</body></html>\n");
    QGuiApplication::clipboard()->setMimeData(cells);
}

std::string QtCellClipboard::text() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText() ? FromQt(data->text()) : std::string();
}

} // namespace dorvan
