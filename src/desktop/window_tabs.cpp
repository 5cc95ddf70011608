#include "desktop/window_tabs.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QTimerEvent>

namespace dorvan {

namespace {

// For a while after Ctrl was pressed the area takes several quick Tabs for one. Ends that while.
void CountEachTab(QMdiArea& area) {
    for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(&area)) {
        if (timer.interval != QApplication::keyboardInputInterval()) continue;
        QTimerEvent over(timer.timerId);
        QCoreApplication::sendEvent(&area, &over);
    }
}

} // namespace

WindowTabs::WindowTabs(QMdiArea& area) : QObject(&area), area_(area) { setObjectName("WindowTabs"); }

void WindowTabs::ComeFirst(QMdiArea& area) {
    auto* tabs = area.findChild<QObject*>("WindowTabs", Qt::FindDirectChildrenOnly);
    QCoreApplication::instance()->installEventFilter(tabs ? tabs : new WindowTabs(area));
}

// The area begins with the window that was in front longest ago and has the other order on Shift+Tab.
bool WindowTabs::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isTab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!isTab || !(key.modifiers() & Qt::ControlModifier) || !widget || !area_.isAncestorOf(widget))
        return false;
    CountEachTab(area_);
    QKeyEvent other(key.type(), key.key() == Qt::Key_Tab ? Qt::Key_Backtab : Qt::Key_Tab, key.modifiers());
    return static_cast<QObject&>(area_).eventFilter(watched, &other);
}

} // namespace dorvan
