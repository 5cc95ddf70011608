#include "desktop/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

// The drawings are linked from a library, which does not register them by itself. (The macro cannot stand in
// a namespace.)
static void RegisterDrawings() { Q_INIT_RESOURCE(dorvan); }

namespace dorvan {

namespace {

// The drawings name no colours but "currentColor" (lines) and "accentColor" (what the picture is about).
class ThemedIconEngine : public QIconEngine {
public:
    explicit ThemedIconEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QPalette palette = QGuiApplication::palette();
        const QColor line = palette.color(group, QPalette::WindowText);
        const bool dark = palette.color(QPalette::Window).lightness() < 128;
        const QColor accent = mode == QIcon::Disabled ? line
                              : dark                  ? QColor(0x6f, 0xb3, 0xff)
                                                      : QColor(0x1f, 0x63, 0xb8);
        QByteArray coloured = drawing_;
        coloured.replace("currentColor", line.name().toUtf8());
        coloured.replace("accentColor", accent.name().toUtf8());
        QSvgRenderer(coloured).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new ThemedIconEngine(drawing_); }

private:
    QByteArray drawing_;
};

} // namespace

namespace {

QIcon DrawnIcon(const QString& path) {
    RegisterDrawings();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QIcon(new ThemedIconEngine(file.readAll()));
}

} // namespace

QIcon ThemedIcon(const QString& name) { return DrawnIcon(":/icons/" + name + ".svg"); }

QIcon ProgramIcon() { return DrawnIcon(":/dorvan.svg"); } // it has colours of its own

} // namespace dorvan
