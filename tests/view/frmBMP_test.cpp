#include "view/frmBMP.h"

#include "diagram_session.h"
#include "session/children.h"
#include "support/command_switches.h"
#include "support/drawings.h"
#include "support/expect_failure.h"
#include "view/bitmap_drawing.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

struct BitmapTest : ::testing::Test, DiagramSession {
    frmBMP& make(frmDiagram& diagram) {
        ShowChild(session, diagram);
        diagram.BITMAP();
        return dynamic_cast<frmBMP&>(*session.ActiveWindow);
    }
    frmBMP& make(int count) {
        DiagramDocument document = SampleDocument(count);
        document.SectionLimits.Cells() = {1, 2, 3, 4};
        return make(Open(document));
    }

    static void resize(frmBMP& window, int width, int height) {
        window.ScaleWidth = width;
        window.ScaleHeight = height;
        window.Form_Resize();
    }
};

TEST_F(BitmapTest, IsANewDocumentWithTheDrawingOfItsDiagram) {
    auto& diagram = Open(5);
    auto& window = make(diagram);
    EXPECT_EQ(window.Caption, "[BITMAP]: Untitled:1");
    EXPECT_EQ(window.Tag, "1");
    EXPECT_EQ(window.Index, 1);
    EXPECT_TRUE(session.BitmapStates[1].Dirty);
    EXPECT_TRUE(sameDrawing(window.Bmp.Shown(), BitmapDrawing(diagram.Document(), fonts, '.')));
    EXPECT_EQ(window.XBmp.Text, "7900");
    EXPECT_EQ(window.YBmp.Text, "2700");
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(BitmapTest, IsASnapshot) {
    auto& diagram = Open(5);
    auto& window = make(diagram);
    const Drawing before = window.Bmp.Shown();
    diagram.Document().DiagType = 1;
    EXPECT_EQ(window.Bmp.Shown(), before);
}

TEST_F(BitmapTest, WarnsOfMoreThan150RecordsAndGoesOn) {
    make(150);
    EXPECT_TRUE(messages.shown.empty());
    auto& window = make(151);
    EXPECT_EQ(messages.shown,
              (std::vector<Message>{{.Text = "Diagram is too big for creating bitmap (bigger than 125). It's "
                                             "going to be illegible!"}}));
    EXPECT_EQ(window.XBmp.Text, std::to_string(156 * 250 + 350));
}

TEST_F(BitmapTest, CellWithoutASectionEndsTheRun) {
    auto& diagram = Open(3);
    diagram.Document().Classes(2, 1) = 6;
    ShowChild(session, diagram);
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, diagram.BITMAP());
}

TEST_F(BitmapTest, BeepsWhileADiagramIsBeingMade) {
    auto& diagram = Open(3);
    auto& window = make(diagram);
    session.DiagramBusy = 1;
    diagram.BITMAP();
    window.BitmapClip();
    EXPECT_EQ(signals.beeps, 2);
    EXPECT_EQ(session.BitmapWindows.size(), 2U);
    EXPECT_TRUE(clipboard.log.empty());
}

TEST_F(BitmapTest, BarsStandAtTheEdgesAndReachTheEndOfThePicture) {
    auto& window = make(100); // 31850 x 31200 twips
    resize(window, 9000, 6000);
    EXPECT_EQ(window.BmpArea, (Area{0, 0, 31850, 31200}));
    EXPECT_EQ(window.VScroll1Area, (Area{8745, 0, 255, 5745}));
    EXPECT_EQ(window.HScroll1Area, (Area{0, 5745, 8745, 255}));
    EXPECT_EQ(window.Picture1Area, (Area{8745, 5745, 255, 255}));
    EXPECT_EQ(window.HScroll1.Max, 31850 - 8745);
    EXPECT_EQ(window.VScroll1.Max, 31200 - 5745);
    window.HScroll1.Value = window.HScroll1.Max;
    window.HScroll1_Change();
    window.VScroll1.Value = window.VScroll1.Max;
    window.VScroll1_Change();
    EXPECT_EQ(window.BmpArea.Left + window.BmpArea.Width, 8745);
    EXPECT_EQ(window.BmpArea.Top + window.BmpArea.Height, 5745);
}

TEST_F(BitmapTest, AResizeGoesBackToTheUpperLeftCorner) {
    auto& window = make(100);
    resize(window, 9000, 6000);
    window.HScroll1.Value = 500;
    window.HScroll1_Change();
    EXPECT_EQ(window.BmpArea.Left, -500);
    resize(window, 9000, 5000);
    EXPECT_EQ(window.BmpArea.Left, 0);
    EXPECT_EQ(window.HScroll1.Value, 0);
}

TEST_F(BitmapTest, PictureThatFitsHasNothingToScroll) {
    auto& window = make(2);
    resize(window, 20000, 20000);
    EXPECT_EQ(window.HScroll1.Max, 0);
    EXPECT_EQ(window.VScroll1.Max, 0);
}

TEST_F(BitmapTest, LargestPictureIsWithinReach) {
    auto& window = make(250);
    resize(window, 9000, 6000);
    EXPECT_EQ(window.VScroll1.Max, 63500 - 5745); // more than 16 bits hold
}

TEST_F(BitmapTest, MinimizedOrFlatWindowIsNotLaidOut) {
    auto& window = make(2);
    resize(window, 9000, 6000);
    window.Mode = WindowMode::Minimized;
    resize(window, 500, 500);
    window.Mode = WindowMode::Normal;
    resize(window, 500, 0);
    EXPECT_EQ(window.VScroll1Area, (Area{8745, 0, 255, 5745}));
}

TEST_F(BitmapTest, ClipboardGetsThePicture) {
    auto& window = make(2);
    signals.cursors.clear();
    window.BitmapClip();
    EXPECT_EQ(clipboard.log, (std::vector<std::string>{"clear", "put"}));
    EXPECT_TRUE(sameDrawing(clipboard.held, window.Bmp.Shown()));
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
}

TEST_F(BitmapTest, ClipboardThatFailsIsPassedOver) {
    auto& window = make(2);
    signals.cursors.clear();
    clipboard.fails = true;
    window.BitmapClip();
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
}

TEST_F(BitmapTest, SwitchesTheCommandsOfItsKind) {
    auto& window = make(2);
    ExpectSwitches(session, DocumentKind::Bitmap, WindowPhase::Activated, [&] { window.Form_Activate(); });
    ExpectSwitches(session, DocumentKind::Bitmap, WindowPhase::Deactivated,
                   [&] { window.Form_Deactivate(); });
    ExpectSwitches(session, DocumentKind::Bitmap, WindowPhase::Unloaded, [&] { window.Form_Unload(); });
    EXPECT_EQ(window.TypeOfForm, "BITMAP");
}

TEST_F(BitmapTest, ClosesWithoutAQuestionAndKeepsItsSlot) {
    auto& diagram = Open(2);
    auto& window = make(diagram);
    EXPECT_TRUE(CloseChild(session, window));
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_FALSE(session.BitmapStates[1].Deleted);
    EXPECT_EQ(make(diagram).Caption, "[BITMAP]: Untitled:2");
}

TEST_F(BitmapTest, FieldsOfItsSizeAndTheButtonWithoutActionAreHidden) {
    auto& window = make(2);
    EXPECT_FALSE(window.XBmp.Visible);
    EXPECT_FALSE(window.YBmp.Visible);
    EXPECT_FALSE(window.Command4.Visible);
    EXPECT_EQ(window.Command4.Caption, "&Font");
}

} // namespace
} // namespace dorvan::test
