#include "platform/keys.h"
#include "sheet/frmDeleteVar.h"
#include "sheet/frmVar.h"
#include "sheet/sheet_session.h"
#include "sheet/structure_commands.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <functional>

namespace dorvan::test {
namespace {

using Texts = std::vector<std::string>;

class VariableDialogs : public ::testing::Test, protected SheetSession {
protected:
    ~VariableDialogs() override { expectScriptsUsedUp(); }

    // A sheet with three variables of these names.
    frmNotePad& NamedSheet() {
        auto& sheet = NewSheet(2, 3);
        for (int k = 1; k <= 3; ++k)
            sheet.Grid1.SetText(0, k + 1, Texts{" A ", "B", "C"}[std::size_t(k - 1)]);
        for (int row = 1; row <= 2; ++row)
            for (int k = 1; k <= 3; ++k)
                sheet.Grid1.SetText(row, k + 1, std::to_string(10 * row + k) + ".500");
        return sheet;
    }
    static Texts Row(const frmNotePad& sheet, int row) {
        Texts texts;
        for (int column = 2; column < sheet.Grid1.Columns(); ++column)
            texts.push_back(sheet.Grid1.Text(row, column));
        return texts;
    }
    bool Dirty() const { return session.DataStates[1].Dirty; }

    void Edit(const std::function<void(frmVar&)>& does) {
        forms.scripts.push_back([does](Form& form) { does(dynamic_cast<frmVar&>(form)); });
        EditVariables(session);
    }
    void Delete(int place, const std::function<void(frmDeleteVar&)>& then = {}) {
        forms.scripts.push_back([=](Form& form) {
            auto& dialog = dynamic_cast<frmDeleteVar&>(form);
            dialog.List1.ListIndex = place;
            dialog.Command1_Click();
            if (then) then(dialog);
        });
        DeleteVariable(session);
    }
    static Message DeleteQuestion(const std::string& name) {
        return {.Text = "Delete variable: " + name + "?",
                .Icon = MessageIcon::Question,
                .Buttons = MessageButtons::YesNo,
                .Title = "Delete",
                .Default = Answer::No};
    }
};

TEST_F(VariableDialogs, TheEditorOpensOnTheNamesOfTheHeader) {
    NamedSheet();
    Edit([](frmVar& dialog) {
        EXPECT_EQ(dialog.Name, "frmVar");
        EXPECT_EQ(dialog.Caption, "Var Editor");
        EXPECT_EQ(dialog.Command3.Caption, "&Accept");
        EXPECT_EQ(dialog.List1.List, (Texts{"A", "B", "C"}));
        EXPECT_EQ(dialog.List1.ListIndex, 0);
        EXPECT_EQ(dialog.Text1.Text, "A");
        dialog.List1.ListIndex = 2;
        dialog.List1_Click();
        EXPECT_EQ(dialog.Text1.Text, "C");
        dialog.CancelCommand();
    });
    EXPECT_FALSE(Dirty());
}

TEST_F(VariableDialogs, AnAcceptedNameReachesTheHeaderAtOk) {
    auto& sheet = NamedSheet();
    Edit([&](frmVar& dialog) {
        dialog.List1.ListIndex = 1;
        dialog.List1_Click();
        dialog.Text1.Text = "  Width ";
        dialog.Command3_Click();
        EXPECT_EQ(dialog.List1.List, (Texts{"A", "  Width ", "C"}));
        EXPECT_EQ(dialog.List1.ListIndex, 1);
        EXPECT_EQ(dialog.Text1.Text, "  Width ");
        EXPECT_TRUE(Dirty());
        EXPECT_EQ(Row(sheet, 0), (Texts{" A ", "B", "C"}));
        dialog.Command1_Click();
    });
    EXPECT_EQ(Row(sheet, 0), (Texts{"A", "Width", "C"})) << "spaces at the ends are cut";
    EXPECT_EQ(sheet.Grid1.Row(), 0);
    EXPECT_EQ(session.tables.VariableNames.Cells(), (Texts{"A", "  Width ", "C"}));
}

TEST_F(VariableDialogs, EnterInTheFieldAcceptsToo) {
    NamedSheet();
    Edit([](frmVar& dialog) {
        dialog.Text1.Text = "X";
        int key = 'x';
        dialog.Text1_KeyPress(key);
        EXPECT_EQ(key, 'x');
        EXPECT_EQ(dialog.List1.List[0], "A");
        key = key::Enter;
        dialog.Text1_KeyPress(key);
        EXPECT_EQ(key, key::None);
        EXPECT_EQ(dialog.List1.List[0], "X");
        EXPECT_TRUE(dialog.Visible);
        dialog.Command2_Click();
    });
}

TEST_F(VariableDialogs, CancelLeavesTheHeaderThoughTheSheetCountsAsChanged) {
    auto& sheet = NamedSheet();
    Edit([](frmVar& dialog) {
        dialog.Text1.Text = "X";
        dialog.Command3_Click();
        dialog.Command2_Click();
    });
    EXPECT_EQ(Row(sheet, 0), (Texts{" A ", "B", "C"}));
    EXPECT_TRUE(Dirty());
    Edit([](frmVar& dialog) {
        EXPECT_EQ(dialog.List1.List, (Texts{"A", "B", "C"})) << "the names are taken anew";
        dialog.Command2_Click();
    });
}

TEST_F(VariableDialogs, OkAloneCutsSpacesAndDoesNotCountAsAChange) {
    auto& sheet = NamedSheet();
    Edit([](frmVar& dialog) { dialog.Command1_Click(); });
    EXPECT_EQ(Row(sheet, 0), (Texts{"A", "B", "C"}));
    EXPECT_FALSE(Dirty());
}

TEST_F(VariableDialogs, DeletingAsksWithNoAsTheDefault) {
    auto& sheet = NamedSheet();
    messages.answers = {Answer::No};
    Delete(1, [](frmDeleteVar& dialog) {
        EXPECT_EQ(dialog.Name, "frmDeleteVar");
        EXPECT_EQ(dialog.Caption, "Delete variable");
        EXPECT_EQ(dialog.List1.List, (Texts{"A", "B", "C"}));
        EXPECT_TRUE(dialog.Visible) << "No leaves the dialog open";
        dialog.Command2_Click();
    });
    EXPECT_EQ(messages.shown, std::vector<Message>{DeleteQuestion("B")});
    EXPECT_EQ(sheet.VariableCount(), 3);
    EXPECT_FALSE(Dirty());
}

TEST_F(VariableDialogs, TheOthersMoveUpAndShowThePlainTextOfTheirValues) {
    auto& sheet = NamedSheet();
    messages.answers = {Answer::Yes};
    Delete(1, [](frmDeleteVar& dialog) {
        EXPECT_FALSE(dialog.Visible);
        EXPECT_TRUE(dialog.List1.List.empty());
    });
    EXPECT_EQ(Row(sheet, 0), (Texts{"A", "C"}));
    EXPECT_EQ(Row(sheet, 1), (Texts{"11.5", "13.5"}));
    EXPECT_EQ(Row(sheet, 2), (Texts{"21.5", "23.5"}));
    EXPECT_EQ(sheet.Grid1.Text(1, 1), "Record 1");
    EXPECT_EQ(session.tables.VariableNames.Cells(), (Texts{"A", "C"}));
    EXPECT_EQ(session.tables.DataValues.Rows(), 2);
    EXPECT_EQ(session.tables.DataValues(2, 2), 23.5f);
    EXPECT_TRUE(Dirty());
}

TEST_F(VariableDialogs, TheFirstAndTheLastVariableGoAsWell) {
    auto& sheet = NamedSheet();
    messages.answers = {Answer::Yes, Answer::Yes};
    Delete(0);
    EXPECT_EQ(Row(sheet, 2), (Texts{"22.5", "23.5"}));
    Delete(1);
    EXPECT_EQ(Row(sheet, 0), Texts{"B"});
    EXPECT_EQ(Row(sheet, 2), Texts{"22.5"});
}

TEST_F(VariableDialogs, TheOnlyVariableIsEmptied) {
    auto& sheet = NewSheet(2, 1);
    sheet.Grid1.SetText(0, 2, "Width");
    sheet.Grid1.SetText(1, 2, "N/A");
    sheet.Grid1.SetColumnWidth(2, 1500);
    messages.answers = {Answer::Yes};
    Delete(0);
    EXPECT_EQ(messages.shown, std::vector<Message>{DeleteQuestion("Width")});
    EXPECT_EQ(Row(sheet, 0), Texts{"VAR 1"});
    EXPECT_EQ(Row(sheet, 1), Texts{""});
    EXPECT_EQ(sheet.Grid1.Text(2, 1), "Record 2");
    EXPECT_EQ(sheet.Grid1.ColumnWidth(2), 900);
    EXPECT_TRUE(Dirty());
}

TEST_F(VariableDialogs, OneMissingOrEmptyValueEndsTheRun) {
    for (const char* cell : {"N/A", "", "abc"}) {
        auto& sheet = NamedSheet();
        sheet.Grid1.SetText(2, 4, cell); // of a variable that stays
        std::vector<std::string> before;
        for (int column = 0; column < 5; ++column) before.push_back(sheet.Grid1.Text(0, column));
        forms.scripts.push_back([](Form& form) { dynamic_cast<frmDeleteVar&>(form).Command1_Click(); });
        messages.answers = {Answer::Yes};
        EXPECT_FAILURE(Failure::TypeMismatch, DeleteVariable(session));
        // The sheet is whole when it is rescued.
        EXPECT_EQ(sheet.VariableCount(), 3);
        std::vector<std::string> after;
        for (int column = 0; column < 5; ++column) after.push_back(sheet.Grid1.Text(0, column));
        EXPECT_EQ(after, before);
        session.forms.Unload<frmDeleteVar>();
    }
}

TEST_F(VariableDialogs, BlanksAroundANumberAreCut) {
    auto& sheet = NamedSheet();
    sheet.Grid1.SetText(2, 4, "  7 ");
    messages.answers = {Answer::Yes};
    Delete(0);
    EXPECT_EQ(Row(sheet, 2), (Texts{"22.5", "7"}));
}

TEST_F(VariableDialogs, ValuesAreWrittenWithTheProcessesSeparator) {
    auto& sheet = NamedSheet();
    session.DecimalSeparator = ',';
    for (int row = 1; row <= 2; ++row)
        for (int column = 2; column <= 4; ++column) sheet.Grid1.SetText(row, column, "1,500");
    messages.answers = {Answer::Yes};
    Delete(0);
    EXPECT_EQ(Row(sheet, 1), (Texts{"1,5", "1,5"}));
}

} // namespace
} // namespace dorvan::test
