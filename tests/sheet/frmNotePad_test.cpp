#include "sheet/frmNotePad.h"

#include "numbers/runtime_failure.h"
#include "platform/keys.h"
#include "session/frmMDI.h"
#include "sheet_session.h"
#include "support/command_switches.h"

#include <gtest/gtest.h>

#include <utility>

namespace dorvan::test {
namespace {

TEST(DataSheetActivation, SwitchesTheCommandsOfADataSheet) {
    SheetSession test;
    auto& window = test.NewSheet(1, 1);
    ExpectSwitches(test.session, DocumentKind::Data, WindowPhase::Activated, [&] { window.Form_Activate(); });
    EXPECT_EQ(window.TypeOfForm, "DATA");
}

TEST(DataSheetDeactivation, SwitchesTheCommandsOfADataSheet) {
    SheetSession test;
    auto& window = test.NewSheet(1, 1);
    ExpectSwitches(test.session, DocumentKind::Data, WindowPhase::Deactivated,
                   [&] { window.Form_Deactivate(); });
}

TEST(DataSheetUnload, SwitchesTheCommandsOfADataSheetAndFreesTheSlot) {
    SheetSession test;
    auto& window = test.NewSheet(1, 1);
    EXPECT_FALSE(test.session.DataStates[1].Deleted);
    ExpectSwitches(test.session, DocumentKind::Data, WindowPhase::Unloaded, [&] { window.Form_Unload(); });
    EXPECT_TRUE(test.session.DataStates[1].Deleted);
}

TEST(DataSheetActivation, PrintIsOffForADataSheet) {
    SheetSession test;
    test.NewSheet(1, 1);
    frmMDI main(test.session);
    EXPECT_FALSE(main.MenuEnabled("mnuFilePrint"));
    EXPECT_FALSE(main.ButtonEnabled("toolMain", "Print"));
}

// A changed sheet whose save is recorded.
struct ChangedSheet : SheetSession {
    frmNotePad& window = NewSheet(1, 1);
    int saves = 0;
    ChangedSheet() {
        window.OpisText_Change();
        session.commands.Set("SaveData", [this](const CommandCall&) { ++saves; });
    }
};

TEST(ClosingADataSheet, AsksNothingWhenNothingHasChanged) {
    SheetSession test;
    EXPECT_TRUE(CloseChild(test.session, test.NewSheet(1, 1)));
    EXPECT_TRUE(test.messages.shown.empty());
}

TEST(ClosingADataSheet, AsksWithTheWholeCaption) {
    ChangedSheet test;
    test.messages.answers = {Answer::No};
    CloseChild(test.session, test.window);
    const Message question{
        .Text = "The data in [[DATA]: Untitled:1] has changed.\r\nDo you want to save the changes?",
        .Icon = MessageIcon::Exclamation,
        .Buttons = MessageButtons::YesNoCancel,
        .Title = "Dorvan 3.3.44"};
    EXPECT_EQ(test.messages.shown, std::vector<Message>{question});
}

TEST(ClosingADataSheet, CancelKeepsItOpen) {
    ChangedSheet test;
    test.messages.answers = {Answer::Cancel};
    EXPECT_FALSE(CloseChild(test.session, test.window));
    EXPECT_EQ(test.saves, 0);
    EXPECT_FALSE(test.session.DataStates[1].Deleted);
    EXPECT_TRUE(test.session.DataStates[1].Dirty);
    EXPECT_TRUE(test.session.mainWindow.MenuEnabled("mnuSave"));
}

TEST(ClosingADataSheet, NoClosesItUnsaved) {
    ChangedSheet test;
    test.messages.answers = {Answer::No};
    EXPECT_TRUE(CloseChild(test.session, test.window));
    EXPECT_EQ(test.saves, 0);
    EXPECT_TRUE(test.session.DataStates[1].Deleted);
}

TEST(ClosingADataSheet, YesSavesAndClosesWhateverCameOfTheSave) {
    ChangedSheet test;
    test.messages.answers = {Answer::Yes};
    EXPECT_TRUE(CloseChild(test.session, test.window));
    EXPECT_EQ(test.saves, 1);
    EXPECT_TRUE(test.session.DataStates[1].Dirty) << "this save has saved nothing";
    EXPECT_TRUE(test.session.DataStates[1].Deleted);
}

TEST(ExitWithAChangedSheet, EndsTheRunAfterACancelWithTheChangesUnsaved) {
    ChangedSheet test;
    frmMDI main(test.session);
    test.messages.answers = {Answer::Cancel};
    main.MenuClick("mnuFExit");
    EXPECT_TRUE(main.EndOfRun());
    EXPECT_EQ(test.saves, 0);
    EXPECT_TRUE(test.session.DataStates[1].Dirty);
}

TEST(OwnCloseControlWithAChangedSheet, StaysOpenAfterACancelAndEndsAfterANo) {
    ChangedSheet test;
    frmMDI main(test.session);
    test.messages.answers = {Answer::Cancel, Answer::No};
    EXPECT_FALSE(main.RequestClose());
    EXPECT_FALSE(main.EndOfRun());
    EXPECT_TRUE(main.RequestClose());
    EXPECT_TRUE(main.EndOfRun());
}

TEST(DataSheetDescription, MarksTheSheetAsChanged) {
    SheetSession test;
    auto& window = test.NewSheet(1, 1);
    EXPECT_FALSE(test.session.DataStates[1].Dirty);
    window.OpisText_Change();
    EXPECT_TRUE(test.session.DataStates[1].Dirty);
}

TEST(DataSheetDescription, AKeyBeepsWhileADiagramIsMadeAndTakesEffect) {
    SheetSession test;
    auto& window = test.NewSheet(1, 1);
    int character = 'x';
    window.OpisText_KeyPress(character);
    EXPECT_EQ(test.signals.beeps, 0);
    test.session.DiagramBusy = 1;
    window.OpisText_KeyPress(character);
    EXPECT_EQ(test.signals.beeps, 1);
    EXPECT_EQ(character, 'x');
}

TEST(DataSheetResize, KeepsTheActiveWindowAboveItsSmallestSize) {
    SheetSession test;
    auto& behind = test.NewSheet(1, 1);
    auto& active = test.NewSheet(1, 1);
    behind.Height = behind.Width = 100;
    active.Height = 2499;
    active.Width = 2999;
    behind.Form_Resize();
    EXPECT_EQ(active.Height, 2500);
    EXPECT_EQ(active.Width, 3000);
    EXPECT_EQ(behind.Height, 100);
    EXPECT_EQ(test.children.log.back(), "update [DATA]: Untitled:2");
}

TEST(DataSheetResize, LeavesLargerAndMinimizedWindowsAlone) {
    SheetSession test;
    auto& window = test.NewSheet(1, 1);
    window.Height = 2500;
    window.Width = 3000;
    window.Form_Resize();
    EXPECT_EQ(window.Height, 2500);
    EXPECT_EQ(window.Width, 3000);
    for (const auto mode : {WindowMode::Minimized, WindowMode::Maximized}) {
        window.Mode = mode;
        window.Height = window.Width = 10;
        window.Form_Resize();
        EXPECT_EQ(window.Height, 10);
        EXPECT_EQ(window.Width, 10);
    }
}

TEST(DataSheetPresent, FillsTheWindowFromTheWorkingArrays) {
    SheetSession test;
    auto& session = test.session;
    session.tables.RecordNames = Names(2);
    session.tables.RecordNames(1) = "Biskupin";
    session.tables.RecordNames(2) = "Kraków";
    session.tables.VariableNames = Names(2);
    session.tables.VariableNames(1) = "length";
    session.tables.VariableNames(2) = "width";
    session.tables.DataValues = FloatTable(2, 2);
    session.tables.DataValues(1, 1) = 1.5f;
    session.tables.DataValues(1, 2) = NaValue;
    session.tables.DataValues(2, 1) = -12.3456f;
    session.tables.DataValues(2, 2) = 1000.0f;
    session.NewWindowIndex = FindFreeDataSlot(session);
    PutIntoRegistry(session, DocumentKind::Data, std::make_shared<frmNotePad>(session));
    auto& window = DataWindow(session, session.NewWindowIndex);
    window.Present("two places");
    const char* const cells[3][4] = {{"Number", "Record Name", "length", "width"},
                                     {" 1", "Biskupin", "1.500", "N/A"},
                                     {" 2", "Kraków", "-12.346", "1000.000"}};
    ASSERT_EQ(window.Grid1.Rows(), 3);
    ASSERT_EQ(window.Grid1.Columns(), 4);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(window.Grid1.Text(row, column), cells[row][column]) << row << "," << column;
    EXPECT_EQ(window.OpisText.Text, "two places");
    const SheetTable table = window.Table();
    EXPECT_EQ(table.RecordCount(), 2);
    EXPECT_EQ(table.VariableCount(), 2);
    EXPECT_EQ(table.RecordNames.Cells(), (std::vector<std::string>{"Biskupin", "Kraków"}));
    EXPECT_EQ(table.VariableNames.Cells(), (std::vector<std::string>{"length", "width"}));
    EXPECT_EQ(table.Cells.Cells(), (std::vector<std::string>{"1.500", "N/A", "-12.346", "1000.000"}));
    session.DecimalSeparator = ',';
    window.Present("");
    EXPECT_EQ(window.Grid1.Text(1, 2), "1,500");
}

TEST(ActiveDataWindow, FailsWhenTheActiveWindowIsNone) {
    SheetSession test;
    EXPECT_THROW(ActiveDataWindow(test.session), RuntimeFailure);
    auto& window = test.NewSheet(1, 1);
    EXPECT_EQ(&ActiveDataWindow(test.session), &window);
    EXPECT_EQ(&DataWindow(test.session, 1), &window);
}

} // namespace
} // namespace dorvan::test
