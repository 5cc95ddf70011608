#include "sheet/sheet_values.h"
#include "sheet/structure_commands.h"

#include "platform/keys.h"
#include "sheet/add_dialogs.h"
#include "sheet/sheet_session.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

using Texts = std::vector<std::string>;

class StructureCommands : public ::testing::Test, protected SheetSession {
protected:
    ~StructureCommands() override { expectScriptsUsedUp(); }

    bool Dirty(const frmNotePad& sheet) const {
        return session.DataStates.at(std::size_t(sheet.Index)).Dirty;
    }

    // What the user types into the dialog that comes, before OK; a dialog that stays is cancelled.
    template <class Dialog> void Answer(const std::string& text) {
        forms.scripts.push_back([text](Form& form) {
            auto& dialog = dynamic_cast<Dialog&>(form);
            dialog.Text1.Text = text;
            dialog.Command2_Click();
            if (dialog.Visible) dialog.Command1_Click();
        });
    }
    static Texts Row(const frmNotePad& sheet, int row) {
        Texts texts;
        for (int column = 0; column < sheet.Grid1.Columns(); ++column)
            texts.push_back(sheet.Grid1.Text(row, column));
        return texts;
    }
    static Texts Column(const frmNotePad& sheet, int column) {
        Texts texts;
        for (int row = 0; row < sheet.Grid1.Rows(); ++row) texts.push_back(sheet.Grid1.Text(row, column));
        return texts;
    }
    static Message Critical(const std::string& text) { return {.Text = text, .Icon = MessageIcon::Critical}; }
    static Message DeleteQuestion(const std::string& number) {
        return {.Text = "Delete record number " + number + "?",
                .Buttons = MessageButtons::YesNo,
                .Title = "Delete"};
    }
};

TEST_F(StructureCommands, TheAddDialogsHaveTheirTexts) {
    frmAddRec records(session);
    EXPECT_EQ(records.Name, "frmAddRec");
    EXPECT_EQ(records.Caption, "Add record");
    EXPECT_EQ(records.Label1.Caption, "Number of new records:");
    EXPECT_EQ(records.Text1.Text, "1");
    frmAddVar variables(session);
    EXPECT_EQ(variables.Name, "frmAddVar");
    EXPECT_EQ(variables.Caption, "Add variable");
    EXPECT_EQ(variables.Label1.Caption, "Number of new variables:");
    EXPECT_EQ(variables.Text1.Text, "1");
}

TEST_F(StructureCommands, TheAddDialogsTakeThreeDigitsAndEnterMovesOn) {
    frmAddRec dialog(session);
    const auto pressed = [&](int key) {
        dialog.Text1_KeyPress(key);
        return key;
    };
    dialog.Text1.Text = "12";
    EXPECT_EQ(pressed('3'), '3');
    EXPECT_EQ(pressed('-'), key::None);
    EXPECT_EQ(pressed('x'), key::None);
    EXPECT_EQ(pressed(key::Backspace), key::Backspace);
    dialog.Text1.Text = "123";
    EXPECT_EQ(pressed('4'), key::None);
    EXPECT_EQ(pressed(key::Backspace), key::Backspace);
    EXPECT_EQ(pressed(key::Enter), key::None);
    EXPECT_EQ(keyboard.sent.front(), "{TAB}");
}

TEST_F(StructureCommands, NewRecordsAreNumberedAndOtherwiseEmpty) {
    auto& sheet = NewSheet(2, 1);
    Answer<frmAddRec>("2");
    AddRecord(session);
    EXPECT_EQ(Column(sheet, 0), (Texts{"Number", " 1", " 2", " 3", " 4"}));
    EXPECT_EQ(Row(sheet, 4), (Texts{" 4", "", ""}));
    EXPECT_EQ(Row(sheet, 2), (Texts{" 2", "Record 2", "0.000"}));
    EXPECT_EQ(sheet.Grid1.Row(), 4);
    EXPECT_EQ(sheet.Grid1.Column(), 0);
    EXPECT_TRUE(Dirty(sheet));
}

TEST_F(StructureCommands, AddingNothingStillMarksTheSheetAsChanged) {
    auto& sheet = NewSheet(2, 1);
    Answer<frmAddRec>("0");
    AddRecord(session);
    EXPECT_EQ(sheet.RecordCount(), 2);
    EXPECT_EQ(sheet.Grid1.Row(), 1);
    EXPECT_EQ(sheet.Grid1.Column(), 1);
    EXPECT_TRUE(Dirty(sheet));
}

TEST_F(StructureCommands, ACancelledAddDialogChangesNothing) {
    auto& sheet = NewSheet(2, 1);
    forms.scripts.push_back([](Form& form) {
        dynamic_cast<frmAddRec&>(form).Text1.Text = "7";
        form.CancelCommand();
    });
    AddRecord(session);
    forms.scripts.push_back([](Form& form) { form.CancelCommand(); });
    AddVariable(session);
    EXPECT_EQ(sheet.RecordCount(), 2);
    EXPECT_EQ(sheet.VariableCount(), 1);
    EXPECT_FALSE(Dirty(sheet));
    forms.scripts.push_back([](Form& form) {
        EXPECT_EQ(dynamic_cast<frmAddRec&>(form).Text1.Text, "7") << "the field keeps its contents";
        form.CancelCommand();
    });
    AddRecord(session);
}

TEST_F(StructureCommands, ASheetOf150RecordsRefusesNewOnesAtOnce) {
    auto& sheet = NewSheet(150, 1);
    AddRecord(session);
    EXPECT_EQ(messages.shown, std::vector<Message>{Message{.Text = "Max. 150 records!"}});
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_FALSE(Dirty(sheet));
}

TEST_F(StructureCommands, OnlyExactly150RecordsAreRefused) {
    auto& sheet = NewSheet(149, 1);
    Answer<frmAddRec>("2");
    AddRecord(session);
    EXPECT_EQ(sheet.RecordCount(), 151);
    Answer<frmAddRec>("1");
    AddRecord(session);
    EXPECT_EQ(sheet.RecordCount(), 152);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(StructureCommands, TheDialogOfNewRecordsRefusesAboveItsLimit) {
    auto& sheet = NewSheet(1998, 1);
    Answer<frmAddRec>("2");
    AddRecord(session);
    EXPECT_EQ(messages.shown.back(), Critical("Max. 1999 records. You can add only  1 new records."));
    EXPECT_EQ(sheet.RecordCount(), 1998);
    Answer<frmAddRec>("1");
    AddRecord(session);
    EXPECT_EQ(sheet.RecordCount(), 1999);
    Answer<frmAddRec>("1");
    AddRecord(session);
    EXPECT_EQ(messages.shown.back(), Critical("Max. 1999 records. You can add only  0 new records."));
}

TEST_F(StructureCommands, ANumberOfNewRecordsThatIsNoneIsRefused) {
    NewSheet(2, 1);
    for (const char* text : {"", "x", "1x", "40000"}) {
        messages.shown.clear();
        Answer<frmAddRec>(text);
        AddRecord(session);
        EXPECT_EQ(messages.shown, std::vector<Message>{Critical("Invalid number!")}) << text;
        EXPECT_EQ(session.DialogOutcome, -99);
    }
}

TEST_F(StructureCommands, OkSetsTheOutcomeBeforeItsTests) {
    NewSheet(2, 1);
    forms.scripts.push_back([this](Form& form) {
        auto& dialog = dynamic_cast<frmAddRec&>(form);
        session.DialogOutcome = 0;
        dialog.Text1.Text = "";
        dialog.Command2_Click();
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(session.DialogOutcome, 1);
        dialog.Command1_Click();
    });
    AddRecord(session);
}

TEST_F(StructureCommands, NewVariablesAreNamedWithOneBlankAndEmpty) {
    auto& sheet = NewSheet(2, 1);
    sheet.Grid1.SetColumnWidth(2, 1234);
    Answer<frmAddVar>("2");
    AddVariable(session);
    EXPECT_EQ(Row(sheet, 0), (Texts{"Number", "Record Name", "VAR  1", "VAR 2", "VAR 3"}));
    EXPECT_EQ(Row(sheet, 1), (Texts{" 1", "Record 1", "0.000", "", ""}));
    for (const int column : {3, 4}) {
        EXPECT_EQ(sheet.Grid1.ColumnWidth(column), 1234) << "the width of the column before it";
        EXPECT_EQ(sheet.Grid1.ColumnAlignment(column), Alignment::Centre);
        EXPECT_EQ(sheet.Grid1.HeaderAlignment(column), Alignment::Centre);
    }
    EXPECT_EQ(sheet.Grid1.Row(), 0);
    EXPECT_EQ(sheet.Grid1.Column(), 4);
    EXPECT_TRUE(Dirty(sheet));
}

TEST_F(StructureCommands, ASheetOf100VariablesRefusesNewOnesAtOnce) {
    auto& sheet = NewSheet(1, 100);
    AddVariable(session);
    EXPECT_EQ(messages.shown,
              std::vector<Message>{Critical("You cannot define more than 100 variables in a data sheet!")});
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_FALSE(Dirty(sheet));
}

TEST_F(StructureCommands, TheDialogOfNewVariablesRefusesAboveItsLimit) {
    auto& sheet = NewSheet(1, 99);
    Answer<frmAddVar>("2");
    AddVariable(session);
    EXPECT_EQ(messages.shown,
              std::vector<Message>{Critical("Max. 100 variables. You can add only  1 new variables.")});
    Answer<frmAddVar>("0");
    AddVariable(session);
    EXPECT_EQ(sheet.VariableCount(), 99);
    EXPECT_TRUE(Dirty(sheet));
    Answer<frmAddVar>("1");
    AddVariable(session);
    EXPECT_EQ(sheet.VariableCount(), 100);
}

TEST_F(StructureCommands, ADeletedRecordLeavesTheOthersRenumberedWithTheirNames) {
    auto& sheet = NewSheet(3, 2);
    sheet.Grid1.SetText(3, 3, "7.000");
    sheet.Grid1.SetCurrent(2, 3);
    messages.answers = {Answer::Yes};
    DeleteRecord(session);
    EXPECT_EQ(messages.shown, std::vector<Message>{DeleteQuestion(" 2")});
    EXPECT_EQ(Row(sheet, 1), (Texts{" 1", "Record 1", "0.000", "0.000"}));
    EXPECT_EQ(Row(sheet, 2), (Texts{" 2", "Record 3", "0.000", "7.000"}));
    EXPECT_EQ(sheet.RecordCount(), 2);
    EXPECT_EQ(sheet.Grid1.Column(), 2);
    EXPECT_EQ(sheet.ActiveControl, &sheet.Grid1);
    EXPECT_TRUE(Dirty(sheet));
    EXPECT_TRUE(session.Of<SheetValues>().SuppressCommit);
}

TEST_F(StructureCommands, NoLeavesTheRecordAndGivesTheGridTheFocus) {
    auto& sheet = NewSheet(3, 2);
    sheet.SetFocus(sheet.OpisText);
    messages.answers = {Answer::No};
    DeleteRecord(session);
    EXPECT_EQ(sheet.RecordCount(), 3);
    EXPECT_EQ(sheet.Grid1.Column(), 1);
    EXPECT_EQ(sheet.ActiveControl, &sheet.Grid1);
    EXPECT_FALSE(Dirty(sheet));
    EXPECT_FALSE(session.Of<SheetValues>().SuppressCommit);
}

TEST_F(StructureCommands, TheOnlyRecordIsEmptiedAndKeepsItsNumber) {
    auto& sheet = NewSheet(1, 2);
    messages.answers = {Answer::Yes};
    DeleteRecord(session);
    EXPECT_EQ(Row(sheet, 1), (Texts{" 1", "", "", ""}));
    EXPECT_EQ(Row(sheet, 0), (Texts{"Number", "Record Name", "VAR  1", "VAR  2"}));
    EXPECT_EQ(sheet.Grid1.Column(), 2);
    EXPECT_TRUE(Dirty(sheet));
}

TEST_F(StructureCommands, TheLastRecordLeavesTheOneBeforeItCurrent) {
    auto& sheet = NewSheet(3, 1);
    sheet.Grid1.SetCurrent(3, 1);
    messages.answers = {Answer::Yes};
    DeleteRecord(session);
    EXPECT_EQ(sheet.Grid1.Row(), 2);
    EXPECT_EQ(sheet.Grid1.Column(), 2);
}

TEST_F(StructureCommands, InTheHeaderThereIsNoRecordToDelete) {
    auto& sheet = NewSheet(3, 1);
    Answer<frmAddVar>("1");
    AddVariable(session); // leaves row 0 current
    session.DataStates[1].Dirty = false;
    DeleteRecord(session);
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_EQ(messages.shown, std::vector<Message>{Message{.Text = "Brak wierszy do usunięcia"}});
    EXPECT_EQ(sheet.RecordCount(), 3);
    EXPECT_FALSE(Dirty(sheet));
    EXPECT_EQ(sheet.ActiveControl, &sheet.Grid1);
}

// As a face tells it: the focus leaves the field of the edit when the command gives it to the grid.
TEST_F(StructureCommands, AnEditThatIsOpenAtTheQuestionIsDroppedWithTheRecord) {
    auto& sheet = NewSheet(3, 1);
    sheet.Grid1.SetCurrent(2, 2);
    int typed = '5';
    sheet.Grid1_KeyPress(typed);
    EXPECT_EQ(sheet.Grid1.Text(2, 2), "5");
    messages.answers = {Answer::Yes};
    DeleteRecord(session);
    sheet.EditCell_LostFocus();
    EXPECT_EQ(sheet.RecordCount(), 2);
    EXPECT_EQ(Row(sheet, 2), (Texts{" 2", "Record 3", "0.000"}));
    EXPECT_FALSE(session.Of<SheetValues>().SuppressCommit);
    EXPECT_EQ(sheet.EditCell.Text, "");
    EXPECT_FALSE(sheet.Editing);
    EXPECT_FALSE(sheet.EditPanel.Visible);
}

TEST_F(StructureCommands, AnEditOfTheLastRecordIsDroppedThoughItsRowIsGone) {
    auto& sheet = NewSheet(2, 1);
    sheet.Grid1.SetCurrent(2, 2);
    int typed = '5';
    sheet.Grid1_KeyPress(typed);
    messages.answers = {Answer::Yes};
    DeleteRecord(session);
    sheet.EditCell_LostFocus();
    EXPECT_EQ(Row(sheet, 1), (Texts{" 1", "Record 1", "0.000"}));
}

TEST_F(StructureCommands, AnEditThatIsOpenAtTheQuestionIsCommittedAfterNo) {
    auto& sheet = NewSheet(3, 1);
    sheet.Grid1.SetCurrent(2, 2);
    int typed = '5';
    sheet.Grid1_KeyPress(typed);
    messages.answers = {Answer::No};
    DeleteRecord(session);
    sheet.EditCell_LostFocus();
    EXPECT_EQ(sheet.Grid1.Text(2, 2), "5.000");
}

TEST_F(StructureCommands, WithoutAnOpenEditTheNextCommitIsTheOneThatIsDropped) {
    auto& sheet = NewSheet(3, 1);
    messages.answers = {Answer::Yes};
    DeleteRecord(session);
    sheet.Grid1.SetCurrent(1, 2);
    int typed = '1';
    sheet.Grid1_KeyPress(typed);
    sheet.EditCell.Text = "12";
    sheet.EditCell_Change();
    int enter = key::Enter;
    sheet.EditCell_KeyDown(enter);
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "12") << "as it was typed: its commit was dropped";
    EXPECT_FALSE(session.Of<SheetValues>().SuppressCommit);
}

TEST_F(StructureCommands, AllOfThemAreRefusedWhileADiagramIsBeingMade) {
    auto& sheet = NewSheet(2, 2);
    session.DiagramBusy = 1;
    int beeps = 0;
    for (const auto command : {AddRecord, AddVariable, DeleteRecord, EditVariables, DeleteVariable}) {
        command(session);
        EXPECT_EQ(signals.beeps, ++beeps);
    }
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(sheet.RecordCount(), 2);
}

} // namespace
} // namespace dorvan::test
