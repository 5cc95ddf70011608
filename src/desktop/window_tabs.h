#pragma once

#include <QObject>

class QMdiArea;

namespace dorvan {

// While Ctrl is held, Tab goes through the windows of an area as the menu Extras, Documents lists them: to
// the one that was in front before, then to the one before that; Shift+Tab the other way.
class WindowTabs : public QObject {
public:
    // For each window, which has just been added: the area's own filter has to come behind.
    WindowTabs(QMdiArea& area, QObject* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMdiArea& area_;
};

} // namespace dorvan
