#include "sheet/sheet_history.h"

#include "platform/keys.h"
#include "session/history.h"
#include "sheet/add_dialogs.h"
#include "sheet/frmDeleteVar.h"
#include "sheet/frmStandard.h"
#include "sheet/frmVar.h"
#include "sheet/sheet_session.h"
#include "sheet/standardization.h"
#include "sheet/structure_commands.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace dorvan::test {
namespace {

// All that a user sees of the cells.
std::vector<std::vector<std::string>> Cells(const Grid& grid) {
    std::vector<std::vector<std::string>> cells;
    for (int row = 0; row < grid.Rows(); ++row) {
        auto& texts = cells.emplace_back();
        for (int column = 0; column < grid.Columns(); ++column) texts.push_back(grid.Text(row, column));
    }
    return cells;
}

class SheetHistory : public ::testing::Test, protected SheetSession {
protected:
    frmNotePad& window = NewSheet(3, 2);
    Grid& grid = window.Grid1;

    ~SheetHistory() override { expectScriptsUsedUp(); }

    History& Steps() { return HistoryOf(session, window); }
    void Undo() { Steps().Undo(window); }
    void Redo() { Steps().Redo(window); }

    void Open(int row, int column, const std::string& text) {
        grid.SetCurrent(row, column);
        int key = key::F2;
        window.Grid1_KeyDown(key);
        window.EditCell.Text = text;
        window.EditCell_Change();
    }
    void Confirm() {
        int key = key::Enter;
        window.EditCell_KeyDown(key);
    }
    void Enter(int row, int column, const std::string& text) {
        Open(row, column, text);
        Confirm();
    }

    template <class Dialog> void AnswerCount(int count) {
        forms.scripts.push_back([count](Form& form) {
            auto& dialog = dynamic_cast<Dialog&>(form);
            dialog.Text1.Text = std::to_string(count);
            dialog.Command2_Click();
        });
    }
    void AddRecords(int count) {
        AnswerCount<frmAddRec>(count);
        AddRecord(session);
    }
    void AddVariables(int count) {
        AnswerCount<frmAddVar>(count);
        AddVariable(session);
    }
    void Delete(int record) {
        grid.SetCurrent(record, 1);
        messages.answers.push_back(dorvan::Answer::Yes);
        DeleteRecord(session);
    }
    void DeleteVariableAt(int place) {
        messages.answers.push_back(dorvan::Answer::Yes);
        forms.scripts.push_back([place](Form& form) {
            auto& dialog = dynamic_cast<frmDeleteVar&>(form);
            dialog.List1.ListIndex = place - 1;
            dialog.Command1_Click();
        });
        DeleteVariable(session);
    }
    void Rename(int variable, const std::string& name) {
        forms.scripts.push_back([=](Form& form) {
            auto& dialog = dynamic_cast<frmVar&>(form);
            dialog.List1.ListIndex = variable - 1;
            dialog.List1_Click();
            dialog.Text1.Text = name;
            dialog.Command3_Click();
            dialog.Command1_Click();
        });
        EditVariables(session);
    }
};

TEST_F(SheetHistory, ACellEditIsAStep) {
    Enter(2, 3, "1,5");
    ASSERT_TRUE(Steps().CanUndo());
    EXPECT_EQ(Steps().UndoName(), "Edit Record 2, VAR  2");
    grid.SetCurrent(1, 1);
    Undo();
    EXPECT_EQ(grid.Text(2, 3), "0.000");
    EXPECT_EQ(grid.Row(), 2) << "the eye is led to the cell";
    EXPECT_EQ(grid.Column(), 3);
    EXPECT_FALSE(Steps().CanUndo());
    Redo();
    EXPECT_EQ(grid.Text(2, 3), "1.500");
}

TEST_F(SheetHistory, ANameIsCalledAsItWas) {
    Enter(1, 1, "Georgia");
    EXPECT_EQ(Steps().UndoName(), "Edit Record 1");
    Enter(1, 2, "1");
    EXPECT_EQ(Steps().UndoName(), "Edit Georgia, VAR  1");
    Undo();
    Undo();
    EXPECT_EQ(grid.Text(1, 1), "Record 1");
    Enter(1, 1, "");
    Enter(1, 1, "x");
    EXPECT_EQ(Steps().UndoName(), "Edit Record 1") << "one without a name";
}

TEST_F(SheetHistory, AnEditThatChangesNothingIsNoStep) {
    Enter(1, 2, "0");
    EXPECT_FALSE(Steps().CanUndo());
}

TEST_F(SheetHistory, EscapeLeavesNoStep) {
    Open(1, 2, "77");
    int key = key::Escape;
    window.EditCell_KeyPress(key);
    window.EditCell_LostFocus();
    EXPECT_EQ(grid.Text(1, 2), "0.000");
    EXPECT_FALSE(Steps().CanUndo());
}

TEST_F(SheetHistory, AnEditLeftByTheMouseIsAStep) {
    Open(1, 2, "77");
    grid.SetCurrent(3, 3);
    window.EditCell_LostFocus();
    EXPECT_EQ(grid.Text(1, 2), "77.000");
    Undo();
    EXPECT_EQ(grid.Text(1, 2), "0.000");
    EXPECT_FALSE(Steps().CanUndo());
}

TEST_F(SheetHistory, ACellEmptiedByHandIsAStep) {
    Open(1, 2, "");
    window.EditCell_LostFocus();
    EXPECT_EQ(grid.Text(1, 2), "");
    Undo();
    EXPECT_EQ(grid.Text(1, 2), "0.000");
    Redo();
    EXPECT_EQ(grid.Text(1, 2), "");
}

TEST_F(SheetHistory, ARefusedTextThatStandsInItsCellIsAStep) {
    Enter(1, 2, "10000000");
    EXPECT_EQ(messages.shown.back().Title, "Invalid Number");
    EXPECT_EQ(grid.Text(1, 2), "10000000");
    Undo();
    EXPECT_EQ(grid.Text(1, 2), "0.000");
}

TEST_F(SheetHistory, RecordsAddedGoAndComeAgain) {
    const auto before = Cells(grid);
    AddRecords(2);
    EXPECT_EQ(Steps().UndoName(), "Add 2 Records");
    const auto after = Cells(grid);
    Undo();
    EXPECT_EQ(Cells(grid), before);
    Redo();
    EXPECT_EQ(Cells(grid), after);
    EXPECT_EQ(grid.Text(5, 0), " 5");
    AddRecords(1);
    EXPECT_EQ(Steps().UndoName(), "Add Record");
    AddRecords(0);
    EXPECT_EQ(Steps().UndoName(), "Add Record") << "none is no step";
}

TEST_F(SheetHistory, ADeletedRecordComesBackBetweenItsNeighbours) {
    for (int row = 1; row <= 3; ++row) Enter(row, 2, std::to_string(row));
    const auto before = Cells(grid);
    Delete(2);
    EXPECT_EQ(Steps().UndoName(), "Delete Record 2");
    const auto after = Cells(grid);
    Undo();
    EXPECT_EQ(Cells(grid), before);
    Redo();
    EXPECT_EQ(Cells(grid), after);
}

TEST_F(SheetHistory, TheOnlyRecordEmptiedComesBack) {
    Delete(1);
    Delete(1);
    const auto before = Cells(grid);
    Delete(1);
    EXPECT_EQ(window.RecordCount(), 1);
    Undo();
    EXPECT_EQ(Cells(grid), before);
}

// The edit that was open while the question stood is dropped, and the row below has taken its place.
TEST_F(SheetHistory, AnEditDroppedByTheDeletionIsNoStep) {
    Open(1, 2, "77");
    Delete(1);
    window.EditCell_LostFocus();
    Open(1, 2, "5");
    EXPECT_EQ(Steps().UndoName(), "Delete Record 1");
    window.EditCell.Text.clear();
    Undo();
    EXPECT_FALSE(Steps().CanUndo());
    EXPECT_EQ(window.RecordCount(), 3);
}

// The deletion makes the next commit do nothing: its text stays as typed, and the edit open.
TEST_F(SheetHistory, AnEditWhoseCommitIsSuppressedIsAStepAndGoesOn) {
    Delete(3);
    Enter(1, 2, "5");
    EXPECT_EQ(grid.Text(1, 2), "5");
    EXPECT_EQ(Steps().UndoName(), "Edit Record 1, VAR  1");
    window.EditCell.Text = "6";
    Confirm();
    EXPECT_EQ(grid.Text(1, 2), "6.000");
    Undo();
    EXPECT_EQ(grid.Text(1, 2), "5");
    Undo();
    EXPECT_EQ(grid.Text(1, 2), "0.000");
}

TEST_F(SheetHistory, TheLastRecordCanBeDeletedWhileItIsEdited) {
    Open(3, 2, "77");
    Delete(3);
    window.EditCell_LostFocus();
    EXPECT_EQ(window.RecordCount(), 2);
    Undo();
    EXPECT_EQ(window.RecordCount(), 3);
    EXPECT_FALSE(Steps().CanUndo());
}

TEST_F(SheetHistory, VariablesKeepTheirWidthsAndAlignments) {
    grid.SetColumnWidth(3, 1234);
    AddVariables(2);
    EXPECT_EQ(Steps().UndoName(), "Add 2 Variables");
    const auto after = Cells(grid);
    grid.SetColumnWidth(2, 777); // by hand: no part of the step
    Undo();
    EXPECT_EQ(window.VariableCount(), 2);
    Redo();
    EXPECT_EQ(Cells(grid), after);
    for (int column : {4, 5}) {
        EXPECT_EQ(grid.ColumnWidth(column), 1234);
        EXPECT_EQ(grid.ColumnAlignment(column), Alignment::Centre);
        EXPECT_EQ(grid.HeaderAlignment(column), Alignment::Centre);
    }
    EXPECT_EQ(grid.ColumnWidth(2), 777);
}

TEST_F(SheetHistory, ADeletedVariableComesBackAsItStood) {
    Enter(1, 2, "1.5");
    Enter(1, 3, "2.5");
    const auto before = Cells(grid);
    DeleteVariableAt(1);
    EXPECT_EQ(Steps().UndoName(), "Delete VAR  1");
    EXPECT_EQ(grid.Text(1, 2), "2.5");
    const auto after = Cells(grid);
    Undo();
    EXPECT_EQ(Cells(grid), before);
    Redo();
    EXPECT_EQ(Cells(grid), after);
}

TEST_F(SheetHistory, TheOnlyVariableEmptiedComesBackWithItsWidth) {
    DeleteVariableAt(1);
    grid.SetColumnWidth(2, 1500);
    Enter(1, 2, "3");
    const auto before = Cells(grid);
    DeleteVariableAt(1);
    EXPECT_EQ(grid.ColumnWidth(2), 900);
    Undo();
    EXPECT_EQ(Cells(grid), before);
    EXPECT_EQ(grid.ColumnWidth(2), 1500);
    EXPECT_EQ(grid.ColumnAlignment(2), Alignment::Centre);
}

TEST_F(SheetHistory, RenamedVariablesAreOneStep) {
    Rename(2, "Assault");
    EXPECT_EQ(Steps().UndoName(), "Rename Variables");
    Undo();
    EXPECT_EQ(grid.Text(0, 3), "VAR  2");
    Redo();
    EXPECT_EQ(grid.Text(0, 3), "Assault");
}

TEST_F(SheetHistory, TheCellsThatAStandardizationFillsAreAStep) {
    AddRecords(1);
    forms.scripts.push_back([](Form& form) { dynamic_cast<frmStandard&>(form).Command2_Click(); });
    const auto before = Cells(grid);
    ASSERT_NO_THROW(Standardization(session));
    EXPECT_EQ(grid.Text(4, 2), "0.0");
    EXPECT_EQ(Steps().UndoName(), "Fill Empty Cells");
    Undo();
    EXPECT_EQ(Cells(grid), before);
}

TEST_F(SheetHistory, WorkThatFailsIsNoStep) {
    try {
        const SheetStep step(session, window, "work");
        grid.SetText(1, 2, "half");
        throw RuntimeFailure(Failure::TypeMismatch);
    } catch (const RuntimeFailure&) {
    }
    EXPECT_FALSE(Steps().CanUndo());
}

TEST_F(SheetHistory, ABlockOfCellsWithMoreRecordsAndVariablesIsOneStep) {
    const auto before = Cells(grid);
    {
        const SheetStep step(session, window, "Paste 6 Cells");
        DocumentGrid::SetSize(grid, 5, 3);
        for (int row = 3; row <= 5; ++row)
            for (int column = 3; column <= 4; ++column) grid.SetText(row, column, "x");
        for (int row = 4; row <= 5; ++row) grid.SetText(row, 0, " " + std::to_string(row));
    }
    const auto after = Cells(grid);
    EXPECT_EQ(Steps().UndoName(), "Paste 6 Cells");
    Undo();
    EXPECT_EQ(Cells(grid), before);
    EXPECT_FALSE(Steps().CanUndo());
    Redo();
    EXPECT_EQ(Cells(grid), after);
}

// Any steps in any order go back to where they began, and forth again, state by state.
TEST_F(SheetHistory, GoesBackAndForthThroughAnySteps) {
    std::mt19937 random(7);
    const auto upTo = [&random](int most) { return 1 + int(random() % unsigned(most)); };
    std::vector<std::vector<std::vector<std::string>>> states{Cells(grid)};
    const auto keep = [&] {
        if (Cells(grid) != states.back()) states.push_back(Cells(grid));
    };
    const auto fill = [&] { // only numbers can be deleted
        const SheetStep step(session, window, "fill");
        for (int row = 1; row < grid.Rows(); ++row)
            for (int column = 2; column < grid.Columns(); ++column)
                if (grid.Text(row, column).empty()) grid.SetText(row, column, "0");
    };
    while (states.size() < 200) {
        switch (upTo(12)) {
        case 1: AddRecords(upTo(3)); break;
        case 2: AddVariables(upTo(2)); break;
        case 3: Delete(upTo(window.RecordCount())); break;
        case 4: Rename(upTo(window.VariableCount()), "v" + std::to_string(states.size())); break;
        case 5:
            fill();
            keep();
            DeleteVariableAt(upTo(window.VariableCount()));
            break;
        default: Enter(upTo(window.RecordCount()), 1 + upTo(window.VariableCount()), std::to_string(upTo(9)));
        }
        keep();
    }
    for (std::size_t state = states.size() - 1; state-- > 0;) {
        Undo();
        ASSERT_EQ(Cells(grid), states[state]) << state;
    }
    EXPECT_FALSE(Steps().CanUndo());
    for (std::size_t state = 1; state < states.size(); ++state) {
        Redo();
        ASSERT_EQ(Cells(grid), states[state]) << state;
    }
    EXPECT_FALSE(Steps().CanRedo());
}

} // namespace
} // namespace dorvan::test
