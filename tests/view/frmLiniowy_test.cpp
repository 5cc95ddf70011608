#include "view/frmLiniowy.h"

#include "diagram_session.h"
#include "session/children.h"
#include "support/drawings.h"
#include "support/expect_failure.h"
#include "view/linear_drawing.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

struct LinearGraphTest : ::testing::Test, DiagramSession {
    frmDiagram& window = Open(4);

    LinearGraphTest() { ShowChild(session, window); }

    void inDialog(const std::function<void(frmLiniowy&)>& script) {
        forms.scripts.push_back([script](Form& form) {
            auto& graph = dynamic_cast<frmLiniowy&>(form);
            script(graph);
            graph.Command1_Click();
        });
        window.Linear();
    }

    Drawing graphOf(const DiagramDocument& document) { return LinearGraphDrawing(document, fonts, '.'); }
};

TEST_F(LinearGraphTest, DrawsAtTheResizeOfItsShowingAndNotAgain) {
    inDialog([this](frmLiniowy& graph) {
        EXPECT_EQ(graph.Caption, "Linear graph");
        EXPECT_EQ(graph.Label1.Caption, "Distance between following records in diagram.");
        EXPECT_EQ(graph.Command1.Caption, "O&K");
        EXPECT_EQ(graph.LinearGraphIndex, window.Index);
        EXPECT_EQ(graph.GraphPending, 0);
        EXPECT_TRUE(sameDrawing(graph.Picture1.Shown(), graphOf(window.Document())));
        const auto revision = graph.Picture1.Revision();
        graph.Form_Resize();
        EXPECT_EQ(graph.Picture1.Revision(), revision);
    });
}

TEST_F(LinearGraphTest, WaitsForTheResize) {
    frmLiniowy graph(session);
    graph.Form_Resize();
    EXPECT_EQ(graph.Picture1.Revision(), 0U);
    graph.LinearGraphIndex = window.Index;
    graph.GraphPending = 999;
    EXPECT_EQ(graph.Picture1.Revision(), 0U);
    graph.Form_Resize();
    EXPECT_EQ(graph.GraphPending, 0);
    EXPECT_EQ(graph.Picture1.Revision(), 1U);
}

TEST_F(LinearGraphTest, FollowsTheNewOrderAfterAMoveByHand) {
    Drawing before;
    inDialog([&](frmLiniowy& graph) { before = graph.Picture1.Shown(); });
    window.Siatka.SetCurrent(2, 2);
    window.SelectThisRow();
    window.Home();
    inDialog([&](frmLiniowy& graph) {
        EXPECT_NE(graph.Picture1.Shown(), before);
        EXPECT_TRUE(sameDrawing(graph.Picture1.Shown(), graphOf(window.Document())));
    });
}

TEST_F(LinearGraphTest, ChangesNothingAndRefreshesTheActiveWindow) {
    session.DiagramStates[1].Dirty = false;
    inDialog([](frmLiniowy&) {});
    EXPECT_FALSE(session.DiagramStates[1].Dirty);
    EXPECT_EQ(children.log.back(), "update [DIAGRAM]: Untitled:1");
}

TEST_F(LinearGraphTest, BeepsWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    window.Linear();
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_TRUE(forms.log.empty());
}

TEST_F(LinearGraphTest, RecordsWithoutDistanceEndTheRun) {
    auto& matrix = window.Document().Matrix;
    matrix = FloatTable(4, 4);
    forms.scripts.push_back([](Form&) { FAIL() << "came up"; });
    EXPECT_FAILURE(Failure::DivisionByZero, window.Linear());
}

} // namespace
} // namespace dorvan::test
