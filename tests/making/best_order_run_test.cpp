#include "making/best_order_run.h"

#include "making/attractions.h"
#include "making/frmBestOrder.h"
#include "making/plain_two_sum.h"
#include "program/program.h"
#include "session/children.h"
#include "session/frmMDI.h"
#include "session/status_bar.h"
#include "view/diagram_session.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

// Records "A", "B", ... on a line, at these places.
DiagramDocument OnALine(const std::vector<float>& places) {
    DiagramDocument document = SampleDocument(static_cast<int>(places.size()));
    for (int i = 1; i <= document.RecCount; ++i)
        for (int j = 1; j <= document.RecCount; ++j)
            document.Matrix(i, j) = std::fabs(places[std::size_t(i - 1)] - places[std::size_t(j - 1)]);
    return document;
}

DiagramDocument OfNoise(int count) {
    DiagramDocument document = SampleDocument(count);
    document.Matrix = plain::Noise(count, 3, 20);
    return document;
}

struct BestOrderCommand : testing::Test, DiagramSession {
    frmMDI shell{session};
    BestOrderCommand() { Compose(session); }
    void Run() { shell.MenuClick("mnuExtrasBestOrder"); }
    void Show(frmDiagram& window) { ShowChild(session, window); }
};

TEST_F(BestOrderCommand, StandsInTheMenuExtrasOfADiagram) {
    EXPECT_EQ(session.mainWindow.MenuCaption("mnuExtrasBestOrder"), "&Best order");
    EXPECT_EQ(session.mainWindow.MenuCaption("mnuExtras"), "E&xtras");
    EXPECT_FALSE(shell.MenuEnabled("mnuExtrasBestOrder"));
    Show(Open(OnALine({1, 2, 3})));
    EXPECT_TRUE(shell.MenuEnabled("mnuExtrasBestOrder"));
}

TEST_F(BestOrderCommand, PutsTheRecordsInOrderAsAMoveByHandDoes) {
    auto& window = Open(OnALine({5, 0, 9, 2, 30}));
    window.Document().RecordHasNA(3) = true;
    Show(window);
    const FloatTable data = window.Document().Data;
    const auto& state = session.DiagramStates.at(std::size_t(window.Index));
    const bool dirty = state.Dirty;
    Run();
    EXPECT_EQ(NamesOf(window), "BDACE");
    EXPECT_EQ(NamesShownBy(window), "BDACE");
    EXPECT_TRUE(window.Document().RecordHasNA(4));
    EXPECT_FALSE(window.Document().RecordHasNA(3));
    EXPECT_EQ(window.Document().Matrix(1, 5), 30);
    EXPECT_EQ(window.Document().Matrix(2, 3), 3);
    EXPECT_EQ(window.Document().Data, data);
    EXPECT_EQ(state.Dirty, dirty);
    DiagramDocument classified = window.Document();
    ClassifyDiagram(classified);
    EXPECT_EQ(window.Document().Classes, classified.Classes);
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
    EXPECT_EQ(session.DiagramBusy, 0);
}

TEST_F(BestOrderCommand, TellsTheCriterionBeforeAndAfter) {
    auto& window = Open(OnALine({5, 0, 9}));
    Show(window);
    session.DecimalSeparator = ',';
    // 2 (1/6 + 1/10 + 4/5) / 9 before, 2 (1/6 + 1/5 + 4/10) / 9 after
    Run();
    EXPECT_EQ(StatusText(session), "Best order: 2-SUM / n² = 0,2370 before, 0,1704 after");
}

TEST_F(BestOrderCommand, LeavesTheDiagramAsItIsWhenRepeated) {
    auto& window = Open(OfNoise(24));
    Show(window);
    Run();
    const DiagramDocument once = window.Document();
    EXPECT_NE(NamesOf(window), "ABCDEFGHIJKLMNOPQRSTUVWX");
    Run();
    EXPECT_EQ(window.Document().RecordNames, once.RecordNames);
    EXPECT_EQ(window.Document().Matrix, once.Matrix);
    EXPECT_EQ(StatusText(session),
              "No better order was found: 2-SUM / n² = " + CriterionText(TwoSumOfOrder(once.Matrix), '.'));
}

TEST_F(BestOrderCommand, CarriesTheSelectionWithItsRecord) {
    auto& window = Open(OnALine({5, 0, 9, 2, 30}));
    Show(window);
    window.Siatka.SetCurrent(1, 1);
    window.SelectThisRow();
    Run();
    EXPECT_EQ(window.SelectedRow, 3);
    EXPECT_EQ(window.RowSelected, 1);
    EXPECT_EQ(TileAt(window, 3, 1), CellTile(window.Document(), 3, 1, true));
    EXPECT_EQ(TileAt(window, 1, 1), CellTile(window.Document(), 1, 1, false));
}

TEST_F(BestOrderCommand, ShowsNoWindowWhenItIsQuick) {
    Show(Open(OfNoise(24)));
    Run();
    EXPECT_TRUE(forms.log.empty());
}

// Each look at the clock is 0.2 s after the one before.
TEST_F(BestOrderCommand, ShowsItsProgressAfterAWhile) {
    Show(Open(OfNoise(24)));
    clock.step = 0.2;
    std::vector<std::string> shown;
    events.onRun = [&](int) {
        const auto& form = session.forms.Load<frmBestOrder>(session);
        EXPECT_TRUE(form.Visible);
        EXPECT_EQ(session.DiagramBusy, 1);
        shown.push_back(form.lblCriterion.Caption);
        EXPECT_GE(form.Procent1.Width, 0);
        EXPECT_LT(form.Procent1.Width, form.Procent.Width);
    };
    Run();
    ASSERT_FALSE(shown.empty());
    EXPECT_LE(std::stod(shown.back()), std::stod(shown.front()));
    ASSERT_GE(forms.log.size(), 2U);
    EXPECT_EQ(forms.log.front(), "show frmBestOrder");
    EXPECT_EQ(forms.log.back(), "close frmBestOrder");
}

TEST_F(BestOrderCommand, CancelTakesTheBestSoFar) {
    auto& window = Open(OfNoise(24));
    Show(window);
    const double before = TwoSumOfOrder(window.Document().Matrix);
    clock.step = 1;
    events.onRun = [&](int run) {
        if (run == 2) session.forms.Load<frmBestOrder>(session).Command1_Click();
    };
    Run();
    EXPECT_EQ(events.runs, 2);
    EXPECT_LT(TwoSumOfOrder(window.Document().Matrix), before);
    EXPECT_EQ(session.DiagramBusy, 0);
    EXPECT_EQ(std::count(forms.log.begin(), forms.log.end(), "close frmBestOrder"), 1);
}

TEST_F(BestOrderCommand, BeepsWhileADiagramIsBeingMade) {
    auto& window = Open(OnALine({5, 0, 9}));
    Show(window);
    session.DiagramBusy = 1;
    Run();
    EXPECT_GE(signals.beeps, 1);
    EXPECT_EQ(NamesOf(window), "ABC");
    EXPECT_EQ(session.DiagramBusy, 1);
}

TEST_F(BestOrderCommand, RefusesADistanceOfMinusOne) {
    auto document = OnALine({5, 0, 9});
    document.Matrix(1, 2) = document.Matrix(2, 1) = -1;
    auto& window = Open(document);
    Show(window);
    Run();
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown.front().Text, "A distance of -1 leaves the best order without a criterion.");
    EXPECT_EQ(NamesOf(window), "ABC");
    EXPECT_EQ(session.DiagramBusy, 0);
}

TEST_F(BestOrderCommand, LeavesADiagramThatWasClosedMeanwhile) {
    auto& window = Open(OfNoise(24));
    Show(window);
    clock.step = 1;
    events.onRun = [&](int run) {
        if (run == 1) CloseChild(session, window);
    };
    Run();
    EXPECT_TRUE(session.DiagramStates.at(1).Deleted);
    EXPECT_EQ(StatusText(session), "");
}

} // namespace
} // namespace dorvan::test
