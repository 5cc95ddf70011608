#include "sheet/sheet_clipboard.h"

#include "session/cell_copying.h"
#include "session/history.h"
#include "session/status_bar.h"
#include "sheet_session.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

struct HeldCells : CellClipboard {
    std::string tabbed;
    std::string html;
    void put(const std::string& tabbedText, const std::string& table) override {
        tabbed = tabbedText;
        html = table;
    }
    std::string text() override { return tabbed; }
};

struct ClipboardTest : ::testing::Test, SheetSession {
    HeldCells held;
    frmNotePad& sheet = NewSheet(3, 2);
    Grid& grid = sheet.Grid1;

    ClipboardTest() { session.Of<CellPorts>().clipboard = &held; }

    void Paste(const std::string& text, int row, int column) {
        held.tabbed = text;
        grid.SetCurrent(row, column);
        session.commands.Call("PasteCells");
    }
    bool Dirty() { return session.DataStates.at(1).Dirty; }
};

TEST_F(ClipboardTest, CopyPutsTheMarkedCellsOnTheClipboard) {
    grid.SetText(1, 2, "1.500");
    grid.SetCurrent(1, 1);
    grid.Mark({0, 1, 2, 2});
    session.commands.Call("CopySheetCells");
    EXPECT_EQ(held.tabbed, "Record Name\tVAR  1\nRecord 1\t1.500\nRecord 2\t0.000\n");
    EXPECT_EQ(held.html, "<table>\n<tr><td>Record Name</td><td>VAR  1</td></tr>\n"
                         "<tr><td>Record 1</td><td>1.500</td></tr>\n"
                         "<tr><td>Record 2</td><td>0.000</td></tr>\n</table>\n");
    EXPECT_EQ(StatusText(session), "Copied 3 x 2 cells");
    EXPECT_FALSE(Dirty());
    grid.SetCurrent(1, 2);
    session.commands.Call("CopySheetCells");
    EXPECT_EQ(held.tabbed, "1.500\n");
    EXPECT_EQ(StatusText(session), "Copied one cell");
}

TEST_F(ClipboardTest, PasteWritesTheBlockAndMarksIt) {
    Paste("1,5\tn/a\n2.5\t\n", 2, 2);
    EXPECT_EQ(grid.Text(2, 2), "1.500");
    EXPECT_EQ(grid.Text(2, 3), "N/A");
    EXPECT_EQ(grid.Text(3, 2), "2.500");
    EXPECT_EQ(grid.Text(3, 3), "N/A");
    EXPECT_EQ(grid.Text(1, 2), "0.000");
    EXPECT_EQ(grid.Marked(), (CellRange{2, 2, 3, 3}));
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(StatusText(session), "Pasted 2 x 2 cells; 1 empty: N/A");
    EXPECT_TRUE(Dirty());
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ClipboardTest, PasteBeginsAtTheUpperLeftMarkedCell) {
    grid.SetCurrent(3, 3);
    grid.Mark({2, 2, 3, 3});
    held.tabbed = "7";
    session.commands.Call("PasteCells");
    EXPECT_EQ(grid.Text(2, 2), "7.000");
    grid.SetCurrent(1, 2);
    grid.Mark({0, 2, 1, 2});
    held.tabbed = "Height";
    session.commands.Call("PasteCells");
    EXPECT_EQ(grid.Text(0, 2), "Height");
    EXPECT_EQ(grid.Row(), 1); // the current cell stays out of the heads
}

TEST_F(ClipboardTest, AHeadThatARuleMadeCurrentIsNotPastedInto) {
    Paste("7", 0, 3);
    EXPECT_EQ(grid.Text(0, 3), "VAR  2");
    EXPECT_EQ(grid.Text(1, 3), "7.000");
    Paste("Georgia", 2, 0); // the numbers neither
    EXPECT_EQ(grid.Text(2, 0), " 2");
    EXPECT_EQ(grid.Text(2, 1), "Georgia");
}

TEST_F(ClipboardTest, WhatIsNoNumberIsToldWithItsPlace) {
    Paste("abc\n12%", 2, 2);
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0].Text, "2 values are no numbers that a cell can hold. They are marked N/A:\n\n"
                                      "Record 2, VAR  1: abc\nRecord 3, VAR  1: 12%");
    EXPECT_EQ(messages.shown[0].Icon, MessageIcon::Exclamation);
    EXPECT_EQ(grid.Text(2, 2), "N/A");
}

TEST_F(ClipboardTest, NotAllOfManyAreListed) {
    std::string text;
    for (int row = 0; row < 3; ++row) text += "a\tb\n";
    messages.answers = {Answer::Yes};
    Paste(text + text + text + text, 1, 2);
    ASSERT_EQ(messages.shown.size(), 2u);
    EXPECT_TRUE(messages.shown[1].Text.ends_with("\nRecord 4, VAR  2: b\nand 16 more"))
        << messages.shown[1].Text;
}

TEST_F(ClipboardTest, TheSheetGrowsAfterAQuestion) {
    messages.answers = {Answer::Yes};
    Paste("1\t2\n3\t4\n", 3, 3);
    EXPECT_EQ(messages.shown[0].Text,
              "These cells need 1 new record and 1 new variable. Add them to the sheet?");
    EXPECT_EQ(sheet.RecordCount(), 4);
    EXPECT_EQ(sheet.VariableCount(), 3);
    EXPECT_EQ(grid.Text(4, 0), " 4");
    EXPECT_EQ(grid.Text(0, 4), "VAR 3");
    EXPECT_EQ(grid.Text(4, 4), "4.000");
    EXPECT_EQ(grid.Text(4, 2), ""); // as a new record's
    EXPECT_EQ(grid.ColumnAlignment(4), Alignment::Centre);
    EXPECT_EQ(grid.ColumnWidth(4), 900);
}

TEST_F(ClipboardTest, NoLeavesEverythingAsItWas) {
    messages.answers = {Answer::No};
    Paste("1\n2\n3", 2, 2);
    EXPECT_EQ(messages.shown[0].Text, "These cells need 1 new record. Add them to the sheet?");
    EXPECT_EQ(sheet.RecordCount(), 3);
    EXPECT_EQ(grid.Text(2, 2), "0.000");
    EXPECT_FALSE(Dirty());
}

TEST_F(ClipboardTest, ABlockTooLargeForAnySheetIsRefused) {
    std::string records;
    for (int record = 0; record < 2000; ++record) records += "1\n";
    Paste(records, 1, 2);
    EXPECT_EQ(messages.shown[0].Text,
              "A sheet can have 1999 records and 100 variables at most. With these cells "
              "it would have 2000 and 2.");
    std::string variables;
    for (int variable = 0; variable < 101; ++variable) variables += "1\t";
    variables.pop_back();
    Paste(variables, 1, 2);
    EXPECT_EQ(messages.shown[1].Text,
              "A sheet can have 1999 records and 100 variables at most. With these cells "
              "it would have 3 and 101.");
    EXPECT_EQ(sheet.RecordCount(), 3);
    EXPECT_EQ(sheet.VariableCount(), 2);
    EXPECT_FALSE(Dirty());
    messages.answers = {Answer::Yes, Answer::Yes};
    Paste(records.substr(2), 1, 2); // just as many as there can be
    Paste(variables.substr(2), 1, 2);
    EXPECT_EQ(sheet.RecordCount(), 1999);
    EXPECT_EQ(sheet.VariableCount(), 100);
}

TEST_F(ClipboardTest, ItIsOneStepOfTheHistory) {
    messages.answers = {Answer::Yes};
    Paste("Name\tHeight\nGeorgia\t1\nTexas\t2\nOhio\t3\nIowa\t4\n", 1, 1);
    EXPECT_EQ(grid.Text(0, 2), "Height");
    EXPECT_EQ(grid.Text(4, 1), "Iowa");
    History& history = HistoryOf(session, sheet);
    ASSERT_TRUE(history.CanUndo());
    EXPECT_EQ(history.UndoName(), "Paste 9 Cells");
    history.Undo(sheet);
    EXPECT_EQ(sheet.RecordCount(), 3);
    EXPECT_EQ(grid.Text(0, 2), "VAR  1");
    EXPECT_EQ(grid.Text(1, 1), "Record 1");
    EXPECT_EQ(grid.Text(1, 2), "0.000");
    EXPECT_FALSE(history.CanUndo());
    history.Redo(sheet);
    EXPECT_EQ(grid.Text(4, 1), "Iowa");
    EXPECT_EQ(grid.Text(4, 2), "4.000");
}

TEST_F(ClipboardTest, AnEmptyClipboardAndABusyProgramOnlyBeep) {
    Paste("", 1, 2);
    EXPECT_EQ(signals.beeps, 1);
    session.DiagramBusy = 1;
    Paste("7", 1, 2);
    session.commands.Call("CopySheetCells");
    session.DiagramBusy = 0;
    EXPECT_EQ(signals.beeps, 3);
    EXPECT_EQ(held.tabbed, "7");
    EXPECT_EQ(grid.Text(1, 2), "0.000");
    EXPECT_FALSE(Dirty());
}

} // namespace
} // namespace dorvan::test
