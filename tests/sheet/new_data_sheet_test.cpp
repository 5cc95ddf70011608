#include "sheet/new_data_sheet.h"

#include "platform/keys.h"
#include "sheet_session.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

struct DialogTest : TestSession {
    frmNowy dialog{session};
    DialogTest() {
        dialog.Visible = true;
        dialog.Form_Show();
    }
    void Accept(const std::string& records, const std::string& variables) {
        dialog.txtRecords.Text = records;
        dialog.txtLiczba.Text = variables;
        dialog.Command1_Click();
    }
};

TEST(SizeDialog, OpensWithTenRecordsAndFiveVariables) {
    DialogTest test;
    EXPECT_EQ(test.dialog.Caption, "New data ");
    EXPECT_EQ(test.dialog.Label1.Caption, "Number of records:");
    EXPECT_EQ(test.dialog.Label2.Caption, "Number of variables:");
    EXPECT_EQ(test.dialog.txtRecords.Text, "10");
    EXPECT_EQ(test.dialog.txtLiczba.Text, "5");
    test.dialog.txtRecords.Text = "99";
    test.dialog.Form_Show();
    EXPECT_EQ(test.dialog.txtRecords.Text, "10") << "at each opening";
}

TEST(SizeDialog, TakesTheCountsAndGivesTheFocusBackToTheFirstField) {
    DialogTest test;
    test.session.DialogOutcome = 55;
    test.dialog.SetFocus(test.dialog.txtLiczba);
    test.Accept("1999", "100");
    EXPECT_EQ(test.session.PendingRecCount, 1999);
    EXPECT_EQ(test.session.PendingVarCount, 100);
    EXPECT_EQ(test.dialog.Result, 1);
    EXPECT_FALSE(test.dialog.Visible);
    EXPECT_EQ(test.dialog.ActiveControl, &test.dialog.txtRecords);
    EXPECT_EQ(test.session.DialogOutcome, 55) << "the dialog has a result of its own";
    EXPECT_TRUE(test.messages.shown.empty());
}

TEST(SizeDialog, ReadsLeadingNumbersRoundedHalvesToEven) {
    DialogTest test;
    test.Accept("2.5x", "3.5");
    EXPECT_EQ(test.session.PendingRecCount, 2);
    EXPECT_EQ(test.session.PendingVarCount, 4);
}

TEST(SizeDialog, RefusesInItsOrderAndStaysOpen) {
    struct Case {
        const char* Records;
        const char* Variables;
        const char* Text;
    };
    const Case cases[] = {{"40000", "40000", "Invalid number of variables"},
                          {"40000", "101", "Invalid number of records"},
                          {"2000", "101", "Too many variables - max. 100"},
                          {"2000", "0", "Number of variables must be higher than 0!"},
                          {"2000", "", "Number of variables must be higher than 0!"},
                          {"2000", "100", "Too many records - max. 1999"},
                          {"0", "1", "Number of records must be higher than 0!"},
                          {"-3", "1", "Number of records must be higher than 0!"}};
    for (const auto& [records, variables, text] : cases) {
        DialogTest test;
        test.Accept(records, variables);
        EXPECT_EQ(test.messages.shown, std::vector<Message>{Message{.Text = text}});
        EXPECT_TRUE(test.dialog.Visible) << text;
        EXPECT_EQ(test.dialog.Result, 0) << text;
    }
}

TEST(SizeDialog, StoresTheVariablesBeforeItReadsTheRecords) {
    DialogTest test;
    test.session.PendingRecCount = 9;
    test.Accept("40000", "7");
    EXPECT_EQ(test.session.PendingVarCount, 7);
    EXPECT_EQ(test.session.PendingRecCount, 9);
}

TEST(SizeDialog, CancelAndEscapeGiveMinusNinetyNine) {
    DialogTest byButton;
    byButton.dialog.Command2_Click();
    EXPECT_EQ(byButton.dialog.Result, -99);
    EXPECT_FALSE(byButton.dialog.Visible);
    EXPECT_EQ(byButton.session.DialogOutcome, 0);
    DialogTest byKey;
    byKey.dialog.CancelCommand();
    EXPECT_EQ(byKey.dialog.Result, -99);
    EXPECT_FALSE(byKey.dialog.Visible);
}

TEST(SizeDialog, LetsDigitsAndBackspacePassAndTurnsEnterIntoTab) {
    DialogTest test;
    const auto press = [&](void (frmNowy::*handler)(int&), int character) {
        (test.dialog.*handler)(character);
        return character;
    };
    for (const auto handler : {&frmNowy::txtRecords_KeyPress, &frmNowy::txtLiczba_KeyPress}) {
        for (const int passes : {int('0'), int('9'), key::Backspace})
            EXPECT_EQ(press(handler, passes), passes);
        for (const int refused :
             {int('/'), int(':'), int('-'), int('.'), int(','), int('a'), int(' '), 0x105})
            EXPECT_EQ(press(handler, refused), 0) << refused;
        EXPECT_TRUE(test.keyboard.sent.empty());
        EXPECT_EQ(press(handler, key::Enter), 0);
        EXPECT_EQ(test.keyboard.sent, std::vector<std::string>{"{TAB}"});
        test.keyboard.sent.clear();
    }
}

TEST(NewDataSheet, LaysOutASheetOfZerosWithDefaultNames) {
    SheetSession test;
    auto& window = test.NewSheet(3, 2);
    const auto& grid = window.Grid1;
    ASSERT_EQ(grid.Rows(), 4);
    ASSERT_EQ(grid.Columns(), 4);
    const char* const cells[4][4] = {{"Number", "Record Name", "VAR  1", "VAR  2"},
                                     {" 1", "Record 1", "0.000", "0.000"},
                                     {" 2", "Record 2", "0.000", "0.000"},
                                     {" 3", "Record 3", "0.000", "0.000"}};
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(grid.Text(row, column), cells[row][column]) << row << "," << column;
}

TEST(NewDataSheet, SetsWidthsInTwipsAndCentresAllButTheNumbers) {
    SheetSession test;
    const auto& grid = test.NewSheet(1, 2).Grid1;
    const int widths[] = {900, 1800, 900, 900};
    for (int column = 0; column < 4; ++column) {
        EXPECT_EQ(grid.ColumnWidth(column), widths[column]);
        const auto alignment = column == 0 ? Alignment::Left : Alignment::Centre;
        EXPECT_EQ(grid.ColumnAlignment(column), alignment);
        EXPECT_EQ(grid.HeaderAlignment(column), alignment);
    }
    EXPECT_EQ(grid.FixedColumns, 1);
    EXPECT_EQ(grid.FixedRows, 1);
}

TEST(NewDataSheet, PlacesAndShowsAnUntitledWindow) {
    SheetSession test;
    auto& window = test.NewSheet(10, 5);
    EXPECT_EQ(window.Caption, "[DATA]: Untitled:1");
    EXPECT_EQ(window.Tag, "1");
    EXPECT_EQ(window.Index, 1);
    EXPECT_EQ(window.TypeOfForm, "DATA");
    EXPECT_EQ(window.Mode, WindowMode::Normal);
    EXPECT_EQ(window.Width, 19465);
    EXPECT_EQ(window.Height, 9216);
    EXPECT_EQ(window.Left, 0);
    EXPECT_EQ(window.Top, 0);
    EXPECT_EQ(test.children.log, std::vector<std::string>{"show [DATA]: Untitled:1"});
    EXPECT_EQ(test.session.ActiveWindow, &window);
    EXPECT_FALSE(window.EditPanel.Visible);
    EXPECT_EQ(window.OpisText.Text, "");
    EXPECT_EQ(window.Label1.Caption, "Description:");
}

TEST(NewDataSheet, TakesTheLargestSize) {
    SheetSession test;
    auto& window = test.NewSheet(1999, 100);
    EXPECT_EQ(window.RecordCount(), 1999);
    EXPECT_EQ(window.VariableCount(), 100);
    EXPECT_EQ(window.Grid1.Text(1999, 0), " 1999");
    EXPECT_EQ(window.Grid1.Text(0, 101), "VAR  100");
}

TEST(NewDataSheet, IsNotDirtyEvenInASlotThatWas) {
    SheetSession test;
    auto& first = test.NewSheet(2, 2);
    EXPECT_FALSE(test.session.DataStates[1].Dirty);
    first.OpisText_Change();
    test.messages.answers = {Answer::No};
    EXPECT_TRUE(CloseChild(test.session, first));
    EXPECT_TRUE(test.session.DataStates[1].Dirty);
    EXPECT_EQ(test.NewSheet(2, 2).Index, 1);
    EXPECT_FALSE(test.session.DataStates[1].Dirty);
}

TEST(NewDataSheet, StopsOnCancelWithoutTakingASlot) {
    SheetSession test;
    test.forms.scripts.push_back([](Form& form) { form.CancelCommand(); });
    NewDataSheet(test.session);
    EXPECT_TRUE(test.session.DataStates[1].Deleted);
    EXPECT_EQ(test.session.ActiveWindow, nullptr);
    test.expectScriptsUsedUp();
}

TEST(NewDataSheet, AfterACancelOpensASheetAgain) {
    SheetSession test;
    test.forms.scripts.push_back([](Form& form) { form.CancelCommand(); });
    NewDataSheet(test.session);
    EXPECT_EQ(test.NewSheet(1, 1).Index, 1);
}

TEST(NewDataSheet, OnlyBeepsWhileADiagramIsMade) {
    SheetSession test;
    test.session.DiagramBusy = 1;
    NewDataSheet(test.session);
    EXPECT_EQ(test.signals.beeps, 1);
    EXPECT_TRUE(test.forms.log.empty());
}

TEST(NewDataSheet, IsTheCommandOfThatName) {
    SheetSession test;
    test.forms.scripts.push_back([](Form& form) { form.CancelCommand(); });
    test.session.commands.Call("NewDataSheet");
    EXPECT_EQ(test.forms.log, std::vector<std::string>{"modal frmNowy"});
}

TEST(DataSlots, AreTakenAgainFromTheFirst) {
    SheetSession test;
    auto& first = test.NewSheet(1, 1);
    CloseChild(test.session, first);
    EXPECT_EQ(test.NewSheet(1, 1).Index, 1);
    EXPECT_EQ(test.NewSheet(1, 1).Index, 2);
    auto& third = test.NewSheet(1, 1);
    EXPECT_EQ(third.Caption, "[DATA]: Untitled:3");
    CloseChild(test.session, DataWindow(test.session, 2));
    EXPECT_EQ(test.NewSheet(1, 1).Caption, "[DATA]: Untitled:2");
}

} // namespace
} // namespace dorvan::test
