#include "program/undoing.h"

#include "files/data_documents.h"
#include "files/diagram_documents.h"
#include "platform/keys.h"
#include "program_session.h"
#include "session/frmMDI.h"
#include "session/history.h"
#include "session/status_bar.h"
#include "view/classes.h"
#include "view/frmDiagram.h"

namespace dorvan::test {
namespace {

class UndoingTest : public ProgramSession {
protected:
    Session& session = made.session;
    frmMDI shell{session};

    bool Dirty(const frmNotePad& sheet) { return session.DataStates.at(std::size_t(sheet.Index)).Dirty; }
    void Click(const char* item) { shell.MenuClick(item); }

    static void Enter(frmNotePad& sheet, const std::string& text) {
        sheet.Grid1.SetCurrent(1, 2);
        int key = key::F2;
        sheet.Grid1_KeyDown(key);
        sheet.EditCell.Text = text;
        sheet.EditCell_Change();
    }
    static void Confirm(frmNotePad& sheet) {
        int key = key::Enter;
        sheet.EditCell_KeyDown(key);
    }

    frmNotePad& SavedSheet() {
        auto& sheet = NewSheet();
        made.files.paths.push_back(folder / "sheet.mdt");
        SaveData(session);
        return sheet;
    }
};

TEST_F(UndoingTest, TheMenuItemsAreOnWhereThereIsAStep) {
    auto& sheet = NewSheet();
    EXPECT_FALSE(shell.MenuEnabled("mnuExtrasUndo"));
    Enter(sheet, "5");
    Confirm(sheet);
    EXPECT_TRUE(shell.MenuEnabled("mnuExtrasUndo"));
    EXPECT_EQ(session.mainWindow.MenuCaption("mnuExtrasUndo"), "&Undo Edit rec1, a");
    EXPECT_FALSE(shell.MenuEnabled("mnuExtrasRedo"));
    Click("mnuExtrasUndo");
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "1.000");
    EXPECT_EQ(StatusText(session), "Undone: Edit rec1, a");
    EXPECT_FALSE(shell.MenuEnabled("mnuExtrasUndo"));
    EXPECT_EQ(session.mainWindow.MenuCaption("mnuExtrasRedo"), "&Redo Edit rec1, a");
    Click("mnuExtrasRedo");
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "5.000");
    EXPECT_EQ(StatusText(session), "Redone: Edit rec1, a");
}

TEST_F(UndoingTest, TheKeysAreThoseOfOtherPrograms) {
    EXPECT_EQ(session.commands.Item("mnuExtrasUndo").Shortcut, "Ctrl+Z");
    EXPECT_EQ(session.commands.Item("mnuExtrasRedo").Shortcut, "Ctrl+Shift+Z");
}

TEST_F(UndoingTest, AnOpenEditIsCommittedAndThenTakenBack) {
    auto& sheet = NewSheet();
    Enter(sheet, "5");
    Confirm(sheet);
    Enter(sheet, "6");
    Click("mnuExtrasUndo");
    EXPECT_FALSE(sheet.EditPanel.Visible);
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "5.000");
}

TEST_F(UndoingTest, WithoutAStepOrWhileADiagramIsMadeItOnlyBeeps) {
    auto& sheet = NewSheet();
    Undo(session);
    Redo(session);
    EXPECT_EQ(made.signals.beeps, 2);
    Enter(sheet, "5");
    Confirm(sheet);
    session.DiagramBusy = 1;
    Undo(session);
    EXPECT_EQ(made.signals.beeps, 3);
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "5.000");
    session.DiagramBusy = 0;
    Undo(session);
    session.DiagramBusy = 1;
    Redo(session);
    EXPECT_EQ(made.signals.beeps, 4);
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "1.000");
}

TEST_F(UndoingTest, AStateThatItsFileHoldsIsNoChange) {
    auto& sheet = SavedSheet();
    Enter(sheet, "5");
    Confirm(sheet);
    session.DataStates.at(std::size_t(sheet.Index)).Dirty = true;
    Undo(session);
    EXPECT_FALSE(Dirty(sheet));
    Redo(session);
    EXPECT_TRUE(Dirty(sheet));
}

TEST_F(UndoingTest, AStateFromBeforeTheSaveIsAChange) {
    auto& sheet = NewSheet();
    Enter(sheet, "5");
    Confirm(sheet);
    made.files.paths.push_back(folder / "sheet.mdt");
    SaveData(session);
    ASSERT_FALSE(Dirty(sheet));
    Undo(session);
    EXPECT_TRUE(Dirty(sheet));
    Redo(session);
    EXPECT_FALSE(Dirty(sheet));
}

TEST_F(UndoingTest, ADocumentWithoutAFileIsChanged) {
    auto& sheet = NewSheet();
    ASSERT_FALSE(Dirty(sheet));
    Enter(sheet, "5");
    Confirm(sheet);
    Undo(session);
    EXPECT_TRUE(Dirty(sheet));
}

TEST_F(UndoingTest, TheItemsAreOffWithoutAWindow) {
    StartSession(session, 1, folder / "");
    EXPECT_FALSE(shell.MenuEnabled("mnuExtrasUndo"));
    EXPECT_FALSE(shell.MenuEnabled("mnuExtrasRedo"));
}

} // namespace
} // namespace dorvan::test
