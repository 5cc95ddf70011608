#pragma once

#include <QObject>

class QMdiArea;

namespace dorvan {

// While Ctrl is held, Tab goes through the windows of an area as the menu Extras, Documents lists them: to
// the one that was in front before, then to the one before that; Shift+Tab the other way.
class WindowTabs : public QObject {
public:
    // To be called after each window that is added to the area: its own filter has to come behind.
    static void ComeFirst(QMdiArea& area);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit WindowTabs(QMdiArea& area);

    QMdiArea& area_;
};

} // namespace dorvan
