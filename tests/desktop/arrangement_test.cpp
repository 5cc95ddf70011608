#include "desktop/arrangement.h"

#include "desktop_test.h"
#include "session/children.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include <algorithm>

namespace dorvan::test {

TEST(CascadePlaces, AreThreeQuartersOfTheRoomAStepApartEach) {
    const auto places = CascadePlaces({1000, 600}, 3, 30);
    EXPECT_EQ(places, (std::vector<QRect>{{0, 0, 750, 450}, {30, 30, 750, 450}, {60, 60, 750, 450}}));
}

TEST(CascadePlaces, BeginAnewWhereAWindowWouldLeaveTheRoom) {
    const auto places = CascadePlaces({1000, 600}, 7, 30); // 150 pixels of height are left: five steps
    EXPECT_EQ(places[5].topLeft(), QPoint(150, 150));
    EXPECT_EQ(places[5].bottom(), 599);
    EXPECT_EQ(places[6].topLeft(), QPoint(0, 0));
}

TEST(CascadePlaces, StayInARoomThatIsSmallerThanAStep) {
    EXPECT_EQ(CascadePlaces({40, 40}, 2, 30)[1], QRect(0, 0, 30, 30));
}

TEST(TilePlaces, FillTheRoomInRowsThatReadInOrder) {
    EXPECT_TRUE(TilePlaces({1000, 600}, 0).empty());
    EXPECT_EQ(TilePlaces({1000, 600}, 1), (std::vector<QRect>{{0, 0, 1000, 600}}));
    EXPECT_EQ(TilePlaces({1000, 600}, 2), (std::vector<QRect>{{0, 0, 500, 600}, {500, 0, 500, 600}}));
    EXPECT_EQ(TilePlaces({1000, 600}, 5), (std::vector<QRect>{{0, 0, 500, 300},
                                                              {500, 0, 500, 300},
                                                              {0, 300, 333, 300},
                                                              {333, 300, 333, 300},
                                                              {666, 300, 334, 300}}));
}

TEST(TilePlaces, LeaveNoGapAndNoOverlap) {
    for (int windows = 1; windows <= 40; ++windows) {
        long area = 0;
        for (const auto& place : TilePlaces({1013, 607}, windows))
            area += long(place.width()) * place.height();
        EXPECT_EQ(area, 1013L * 607) << windows;
    }
}

class ArrangementTest : public DesktopTest {
protected:
    QMdiArea& Area() { return Find<QMdiArea>(*desktop.mainWindow, "MDIArea"); }
};

TEST_F(ArrangementTest, TileReadsInTheOrderInWhichTheWindowsWereOpened) {
    for (int sheet = 0; sheet < 4; ++sheet) NewSheet(3, 2);
    ActivateChild(desktop.session, *desktop.session.DataWindows.at(2));
    Click("mnuTile");
    const auto windows = Area().subWindowList(QMdiArea::CreationOrder);
    const auto places = TilePlaces(Area().viewport()->size(), 4);
    for (int window = 0; window < 4; ++window)
        EXPECT_EQ(windows[window]->geometry(), places[std::size_t(window)]);
}

TEST_F(ArrangementTest, CascadeShowsEveryTitleAndTheActiveWindowLast) {
    for (int sheet = 0; sheet < 3; ++sheet) NewSheet(3, 2);
    Area().subWindowList(QMdiArea::CreationOrder).at(0)->showMaximized();
    QApplication::processEvents();
    Click("mnuCascade");
    QApplication::processEvents();
    const auto windows = Area().subWindowList(QMdiArea::StackingOrder);
    for (int window = 1; window < 3; ++window) {
        EXPECT_GT(windows[window]->x(), windows[window - 1]->x());
        EXPECT_GT(windows[window]->y(), windows[window - 1]->y());
    }
    EXPECT_EQ(windows[0]->size(), Area().viewport()->size() * 3 / 4);
    EXPECT_EQ(windows[2], Area().currentSubWindow());
    EXPECT_FALSE(windows[2]->isMaximized());
}

TEST_F(ArrangementTest, MinimizedWindowsStayWhereTheyAre) {
    for (int sheet = 0; sheet < 3; ++sheet) NewSheet(3, 2);
    auto* minimized = Area().subWindowList(QMdiArea::CreationOrder).at(1);
    minimized->showMinimized();
    QApplication::processEvents();
    const QRect before = minimized->geometry();
    Click("mnuTile");
    EXPECT_EQ(minimized->geometry(), before);
    EXPECT_EQ(Area().subWindowList(QMdiArea::CreationOrder).at(2)->geometry(),
              TilePlaces(Area().viewport()->size(), 2)[1]);
}

TEST_F(ArrangementTest, TheFocusStaysWhereItWasWhenAWindowChangesItsState) {
    NewSheet(3, 2);
    NewSheet(3, 2);
    const auto settle = [] {
        for (int times = 0; times < 3; ++times) QApplication::processEvents();
    };
    const auto focus = [this] {
        return Face().focusWidget() ? Face().focusWidget()->objectName() : QString("none");
    };
    for (QWidget* field : {static_cast<QWidget*>(&ActiveGrid()), &Find(Face(), "OpisText")}) {
        ClickOn(*field, {5, 5});
        settle();
        ASSERT_EQ(focus(), field->objectName());
        Face().showMaximized();
        settle();
        EXPECT_EQ(focus(), field->objectName());
        Face().showNormal();
        settle();
        EXPECT_EQ(focus(), field->objectName());
        Face().showMaximized();
        settle();
        Click("mnuCascade");
        settle();
        EXPECT_EQ(focus(), field->objectName());
        EXPECT_TRUE(field->hasFocus());
    }
}

// A maximized window has no title of its own.
TEST_F(ArrangementTest, TheMainWindowsTitleNamesAMaximizedWindow) {
    NewSheet(3, 2);
    EXPECT_EQ(FromQt(desktop.mainWindow->windowTitle()), "Dorvan 3.3.44");
    Area().currentSubWindow()->showMaximized();
    QApplication::processEvents();
    EXPECT_EQ(FromQt(desktop.mainWindow->windowTitle()), "Dorvan 3.3.44 - [[DATA]: Untitled:1]");
    Area().currentSubWindow()->showNormal();
    QApplication::processEvents();
    EXPECT_EQ(FromQt(desktop.mainWindow->windowTitle()), "Dorvan 3.3.44");
    EXPECT_EQ(desktop.session.mainWindow.Caption, "Dorvan 3.3.44");
}

} // namespace dorvan::test
