#include "view/frmDiagramType.h"

#include "diagram_session.h"
#include "session/children.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

struct DiagramTypeTest : ::testing::Test, DiagramSession {
    frmDiagram& window = Open(3);

    DiagramTypeTest() {
        ShowChild(session, window);
        session.DiagramStates[1].Dirty = false;
    }

    void inDialog(const std::function<void(frmDiagramType&)>& script) {
        forms.scripts.push_back([script](Form& form) { script(dynamic_cast<frmDiagramType&>(form)); });
        window.DiagramType();
    }

    static void choose(frmDiagramType& dialog, OptionButton& option) {
        dialog.Option1.Value = dialog.Option2.Value = dialog.Option3.Value = false;
        option.Value = true;
        dialog.OKButton_Click();
    }
};

TEST_F(DiagramTypeTest, OpensOnTheTypeOfTheDocument) {
    for (const std::int16_t type : {1, 2, 3}) {
        window.Document().DiagType = type;
        inDialog([&](frmDiagramType& dialog) {
            EXPECT_EQ(dialog.Caption, "Select diagram type");
            EXPECT_EQ(dialog.Frame2.Caption, "Diagram type:");
            EXPECT_EQ(dialog.Option1.Caption, "greyscale");
            EXPECT_EQ(dialog.Option2.Caption, "dots");
            EXPECT_EQ(dialog.Option3.Caption, "classic");
            EXPECT_EQ(dialog.Index, window.Index);
            EXPECT_EQ(dialog.Option1.Value, type == 1);
            EXPECT_EQ(dialog.Option2.Value, type == 2);
            EXPECT_EQ(dialog.Option3.Value, type == 3);
            dialog.CancelCommand();
        });
    }
}

TEST_F(DiagramTypeTest, OkWritesTheTypeAndRepaints) {
    inDialog([](frmDiagramType& dialog) { choose(dialog, dialog.Option3); });
    EXPECT_EQ(window.Document().DiagType, 3);
    EXPECT_EQ(TileAt(window, 1, 1), Tile::picClassic05);
    EXPECT_FALSE(session.DiagramStates[1].Dirty);
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
    inDialog([](frmDiagramType& dialog) { choose(dialog, dialog.Option1); });
    EXPECT_EQ(TileAt(window, 1, 1), Tile::picColor05);
}

TEST_F(DiagramTypeTest, CancelWritesNothing) {
    inDialog([](frmDiagramType& dialog) {
        dialog.Option3.Value = true;
        dialog.CancelButton_Click();
    });
    EXPECT_EQ(window.Document().DiagType, 2);
    EXPECT_TRUE(signals.cursors.empty());
}

TEST_F(DiagramTypeTest, SameTypeRepaintsNothing) {
    window.Siatka.SetPicture(1, 2, 0);
    inDialog([](frmDiagramType& dialog) { dialog.OKButton_Click(); });
    EXPECT_EQ(TileAt(window, 1, 1), Tile::None);
    EXPECT_TRUE(signals.cursors.empty());
}

TEST_F(DiagramTypeTest, SelectedRowKeepsItsCross) {
    window.Siatka.SetCurrent(2, 2);
    window.SelectThisRow();
    inDialog([](frmDiagramType& dialog) { choose(dialog, dialog.Option3); });
    EXPECT_EQ(TileAt(window, 2, 2), Tile::picSelectClassic05);
    EXPECT_EQ(TileAt(window, 1, 1), Tile::picClassic05);
    EXPECT_EQ(window.SelectedRow, 2);
}

TEST_F(DiagramTypeTest, EachDiagramHasItsOwn) {
    auto& other = Open(3);
    other.Document().DiagType = 1;
    forms.scripts.push_back([&](Form& form) {
        auto& dialog = dynamic_cast<frmDiagramType&>(form);
        EXPECT_EQ(dialog.Index, other.Index);
        choose(dialog, dialog.Option3);
    });
    other.DiagramType();
    EXPECT_EQ(other.Document().DiagType, 3);
    EXPECT_EQ(window.Document().DiagType, 2);
}

TEST_F(DiagramTypeTest, IsNotStoppedWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    inDialog([](frmDiagramType& dialog) { choose(dialog, dialog.Option3); });
    EXPECT_EQ(signals.beeps, 0);
    EXPECT_EQ(window.Document().DiagType, 3);
}

} // namespace
} // namespace dorvan::test
