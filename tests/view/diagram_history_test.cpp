#include "view/diagram_history.h"

#include "session/history.h"
#include "view/diagram_session.h"
#include "view/frmDiagramType.h"
#include "view/frmHistogram.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace dorvan::test {
namespace {

class DiagramHistory : public ::testing::Test, protected DiagramSession {
protected:
    frmDiagram& window = Open(5);

    ~DiagramHistory() override { expectScriptsUsedUp(); }

    History& Steps() { return HistoryOf(session, window); }
    void Undo() { Steps().Undo(window); }
    void Redo() { Steps().Redo(window); }
    void Select(int row) {
        if (window.RowSelected == 1) window.SelectThisRow();
        window.Siatka.SetCurrent(row, 1);
        window.SelectThisRow();
    }

    // The whole document and its picture, the cross of the selected row in it.
    void ExpectShown(const std::string& names, int selectedRow) {
        const auto& document = window.Document();
        EXPECT_EQ(NamesOf(window), names);
        EXPECT_EQ(NamesShownBy(window), names);
        EXPECT_EQ(window.SelectedRow, selectedRow);
        for (int row = 1; row <= document.RecCount; ++row)
            for (int record = 1; record <= document.RecCount; ++record) {
                const bool selected = selectedRow > 0 && (row == selectedRow || record == selectedRow);
                EXPECT_EQ(TileAt(window, row, record), CellTile(document, row, record, selected));
            }
    }
};

TEST_F(DiagramHistory, EachMoveIsANamedStep) {
    Select(3);
    window.Up();
    EXPECT_EQ(Steps().UndoName(), "Move C Up");
    window.Down();
    EXPECT_EQ(Steps().UndoName(), "Move C Down");
    window.Home();
    EXPECT_EQ(Steps().UndoName(), "Move C Home");
    window.EndRow();
    EXPECT_EQ(Steps().UndoName(), "Move C to the End");
    window.Siatka.SetCurrent(2, 1);
    window.Insert();
    EXPECT_EQ(Steps().UndoName(), "Move C to Place 2");
    EXPECT_EQ(NamesOf(window), "ACBDE");
    const auto matrix = window.Document().Matrix;
    for (const auto* names : {"ABDEC", "CABDE", "ABCDE", "ACBDE", "ABCDE"}) {
        Undo();
        ExpectShown(names, int(std::string(names).find('C')) + 1);
    }
    EXPECT_FALSE(Steps().CanUndo());
    EXPECT_EQ(window.Document().Matrix, SampleDocument(5).Matrix);
    while (Steps().CanRedo()) Redo();
    ExpectShown("ACBDE", 2);
    EXPECT_EQ(window.Document().Matrix, matrix);
}

TEST_F(DiagramHistory, ARefusedMoveIsNoStep) {
    Select(1);
    window.Up();
    window.Home();
    EXPECT_FALSE(Steps().CanUndo());
}

TEST_F(DiagramHistory, TheSelectionStaysWithItsRecordWhicheverMoved) {
    Select(1);
    window.EndRow(); // BCDEA
    Select(2);       // C
    Undo();
    ExpectShown("ABCDE", 3);
    Redo();
    ExpectShown("BCDEA", 2);
}

TEST_F(DiagramHistory, WithoutASelectionTheCurrentCellStays) {
    Select(1);
    window.EndRow();
    window.SelectThisRow();
    window.Siatka.SetCurrent(2, 4);
    Undo();
    ExpectShown("ABCDE", 0);
    EXPECT_EQ(window.Siatka.Row(), 2);
    EXPECT_EQ(window.Siatka.Column(), 4);
}

TEST_F(DiagramHistory, TheBestOrderIsAStep) {
    Array1<std::int16_t> order(5);
    order.Cells() = {3, 1, 5, 2, 4};
    window.TakeOrder(order);
    EXPECT_EQ(Steps().UndoName(), "Best Order");
    ExpectShown("CAEBD", 0);
    Undo();
    ExpectShown("ABCDE", 0);
    Redo();
    ExpectShown("CAEBD", 0);
}

TEST_F(DiagramHistory, AnOrderThatMovesNothingIsNoStep) {
    Array1<std::int16_t> order(5);
    std::iota(order.Cells().begin(), order.Cells().end(), std::int16_t(1));
    window.TakeOrder(order);
    EXPECT_FALSE(Steps().CanUndo());
}

TEST_F(DiagramHistory, TheTypeIsAStep) {
    Select(2);
    forms.scripts.push_back([](Form& form) {
        auto& dialog = dynamic_cast<frmDiagramType&>(form);
        dialog.Option2.Value = false;
        dialog.Option3.Value = true;
        dialog.OKButton_Click();
    });
    window.DiagramType();
    EXPECT_EQ(Steps().UndoName(), "Diagram Type");
    Undo();
    EXPECT_EQ(window.Document().DiagType, 2);
    ExpectShown("ABCDE", 2);
    Redo();
    EXPECT_EQ(window.Document().DiagType, 3);
    ExpectShown("ABCDE", 2);
}

TEST_F(DiagramHistory, TheSameTypeIsNoStep) {
    forms.scripts.push_back([](Form& form) { dynamic_cast<frmDiagramType&>(form).OKButton_Click(); });
    window.DiagramType();
    EXPECT_FALSE(Steps().CanUndo());
}

TEST_F(DiagramHistory, TheLimitsAreAStep) {
    const auto limits = window.Document().SectionLimits;
    const auto classes = window.Document().Classes;
    forms.scripts.push_back([](Form& form) {
        auto& dialog = dynamic_cast<frmHistogram&>(form);
        dialog.Text1.Text = "14";
        dialog.Text2.Text = "15";
        dialog.Text3.Text = "24";
        dialog.Text4.Text = "31";
        dialog.Command1_Click();
    });
    window.Histogram();
    EXPECT_EQ(Steps().UndoName(), "Section Limits");
    const auto newClasses = window.Document().Classes;
    ASSERT_NE(newClasses, classes);
    Undo();
    EXPECT_EQ(window.Document().SectionLimits, limits);
    EXPECT_EQ(window.Document().Classes, classes);
    ExpectShown("ABCDE", 0);
    Redo();
    EXPECT_EQ(window.Document().SectionLimits(1), 14.0f);
    EXPECT_EQ(window.Document().Classes, newClasses);
    ExpectShown("ABCDE", 0);
}

TEST_F(DiagramHistory, TheSameLimitsAreNoStep) {
    forms.scripts.push_back([](Form& form) { dynamic_cast<frmHistogram&>(form).Command1_Click(); });
    window.Histogram();
    EXPECT_FALSE(Steps().CanUndo());
}

TEST_F(DiagramHistory, MissingValuesGoWithTheirRecords) {
    window.Document().RecordHasNA(4) = true;
    Select(4);
    window.Home();
    Undo();
    EXPECT_TRUE(window.Document().RecordHasNA(4));
    EXPECT_FALSE(window.Document().RecordHasNA(1));
}

} // namespace
} // namespace dorvan::test
