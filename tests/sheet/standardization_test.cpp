#include "sheet/sheet_values.h"
#include "sheet/standardization.h"

#include "sheet/frmStandard.h"
#include "sheet/sheet_session.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <functional>

namespace dorvan::test {
namespace {

using Texts = std::vector<std::string>;
using Rows = std::vector<Texts>;

class StandardizationTest : public ::testing::Test, protected SheetSession {
protected:
    ~StandardizationTest() override { expectScriptsUsedUp(); }

    frmNotePad& SheetOf(const Rows& rows) {
        auto& sheet = NewSheet(static_cast<int>(rows.size()), static_cast<int>(rows[0].size()));
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (std::size_t k = 0; k < rows[row].size(); ++k)
                sheet.Grid1.SetText(static_cast<int>(row) + 1, static_cast<int>(k) + 2, rows[row][k]);
        return sheet;
    }
    void Standardize(bool byDeviation) {
        forms.scripts.push_back([=](Form& form) {
            auto& dialog = dynamic_cast<frmStandard&>(form);
            dialog.Option1.Value = byDeviation;
            dialog.Option2.Value = !byDeviation;
            dialog.Command2_Click();
        });
        Standardization(session);
    }
    Rows Made() {
        auto& sheet = ActiveDataWindow(session);
        Rows rows;
        for (int row = 1; row <= sheet.RecordCount(); ++row) {
            auto& texts = rows.emplace_back();
            for (int column = 2; column < sheet.Grid1.Columns(); ++column)
                texts.push_back(sheet.Grid1.Text(row, column));
        }
        return rows;
    }
};

TEST_F(StandardizationTest, TheDialogOpensOnTheRangeEachTime) {
    SheetOf({{"1"}, {"3"}});
    for (int time = 0; time < 2; ++time) {
        forms.scripts.push_back([](Form& form) {
            auto& dialog = dynamic_cast<frmStandard&>(form);
            EXPECT_EQ(dialog.Name, "frmStandard");
            EXPECT_EQ(dialog.Caption, "Standardize data");
            EXPECT_EQ(dialog.Option1.Caption, "by standard deviation");
            EXPECT_EQ(dialog.Option2.Caption, "0 - 100 range");
            EXPECT_FALSE(dialog.Option1.Value);
            EXPECT_TRUE(dialog.Option2.Value);
            dialog.Option1.Value = true;
            dialog.Option2.Value = false;
            dialog.CancelCommand();
        });
        Standardization(session);
        EXPECT_EQ(session.DialogOutcome, -99);
        EXPECT_EQ(session.Children.size(), 1u);
    }
    EXPECT_EQ(signals.cursors, std::vector<Cursor>{}) << "no wait cursor before the dialog is accepted";
}

TEST_F(StandardizationTest, MakesAnUntitledChangedSheet) {
    auto& source = SheetOf({{"10", "1"}, {"20", "2"}, {"30", "4"}});
    source.Grid1.SetText(0, 2, " Length ");
    source.Grid1.SetText(1, 1, " first ");
    source.OpisText.Text = "  pots ";
    Standardize(false);
    EXPECT_EQ(Made(), (Rows{{"0.000", "0.000"}, {"50.000", "33.333"}, {"100.000", "100.000"}}));
    auto& made = ActiveDataWindow(session);
    EXPECT_NE(&made, &source);
    EXPECT_EQ(made.Caption, "[DATA]: Untitled:2");
    EXPECT_EQ(made.Tag, "2");
    EXPECT_EQ(made.OpisText.Text, "STANDARD: pots");
    EXPECT_EQ(made.Grid1.Text(0, 0), "Number");
    EXPECT_EQ(made.Grid1.Text(0, 1), "Record Name");
    EXPECT_EQ(made.Grid1.Text(0, 2), "Length");
    EXPECT_EQ(made.Grid1.Text(1, 1), "first");
    EXPECT_EQ(made.Grid1.Text(3, 0), " 3");
    EXPECT_TRUE(session.DataStates[2].Dirty);
    EXPECT_FALSE(session.DataStates[1].Dirty);
    EXPECT_EQ(made.Width, static_cast<int>(0.95 * screen.widthTwips));
    EXPECT_EQ(source.Grid1.Text(1, 2), "10");
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST_F(StandardizationTest, TheFirstMethodDividesByTheDeviation) {
    SheetOf({{"1"}, {"3"}});
    Standardize(true);
    EXPECT_EQ(Made(), (Rows{{"-0.707"}, {"0.707"}}));
}

TEST_F(StandardizationTest, AMissingDescriptionStillHasItsMark) {
    SheetOf({{"1"}, {"3"}});
    Standardize(false);
    EXPECT_EQ(ActiveDataWindow(session).OpisText.Text, "STANDARD: ");
}

TEST_F(StandardizationTest, AMissingValueCountsAsZero) {
    SheetOf({{"10"}, {"N/A"}, {"-10"}});
    Standardize(false);
    EXPECT_EQ(Made(), (Rows{{"100.000"}, {"50.000"}, {"0.000"}}));
}

TEST_F(StandardizationTest, TextIsReadAsALeadingNumberWithEitherSeparator) {
    SheetOf({{" 0,5x "}, {"2.5"}, {"abc"}});
    Standardize(false);
    EXPECT_EQ(Made(), (Rows{{"20.000"}, {"100.000"}, {"0.000"}}));
}

TEST_F(StandardizationTest, AnEmptyCellOfTheSourceBecomesZeroWithoutMarkingIt) {
    auto& source = SheetOf({{""}, {"  "}, {"2"}});
    Standardize(false);
    EXPECT_EQ(source.Grid1.Text(1, 2), "0.0");
    EXPECT_EQ(source.Grid1.Text(2, 2), "0.0");
    EXPECT_EQ(source.Grid1.Text(3, 2), "2");
    EXPECT_FALSE(session.DataStates[1].Dirty);
}

TEST_F(StandardizationTest, AConstantVariableIsToldOnceARecord) {
    SheetOf({{"7", "1"}, {"7", "2"}});
    Standardize(false);
    const Message told{.Text = "Invalid data - variable number 2 is always the same!"};
    EXPECT_EQ(messages.shown, (std::vector<Message>{told, told}));
    EXPECT_EQ(Made(), (Rows{{"7.000", "0.000"}, {"7.000", "100.000"}}));
}

TEST_F(StandardizationTest, AConstantOfTheMarkOfMissingValuesStaysANumber) {
    SheetOf({{"-9999999"}, {"-9999999"}});
    Standardize(false);
    EXPECT_EQ(Made(), (Rows{{"-9999999.000"}, {"-9999999.000"}}));
}

TEST_F(StandardizationTest, AConstantVariableByTheDeviationEndsTheRun) {
    SheetOf({{"7"}, {"7"}});
    forms.scripts.push_back([](Form& form) {
        auto& dialog = dynamic_cast<frmStandard&>(form);
        dialog.Option1.Value = true;
        dialog.Command2_Click();
    });
    EXPECT_FAILURE(Failure::DivisionByZero, Standardization(session));
    EXPECT_EQ(session.Children.size(), 1u);
    EXPECT_TRUE(session.DataStates.size() == 2u) << "no slot is taken";
}

TEST_F(StandardizationTest, ANumberOutOfRangeEndsTheRun) {
    SheetOf({{"1e39"}, {"7"}});
    forms.scripts.push_back([](Form& form) { dynamic_cast<frmStandard&>(form).Command2_Click(); });
    EXPECT_FAILURE(Failure::Overflow, Standardization(session));
}

TEST_F(StandardizationTest, ASingleRecordIsRefused) {
    SheetOf({{"1"}});
    session.Of<SheetValues>().PendingError = true;
    Standardization(session);
    EXPECT_EQ(messages.shown, std::vector<Message>{(Message{
                                  .Text = "The number of records is less than 2. How make standarization?",
                                  .Icon = MessageIcon::Critical})});
    EXPECT_TRUE(signals.cursors.empty());
    EXPECT_FALSE(session.Of<SheetValues>().PendingError);
}

TEST(DataErrorText, NamesTheRecordAsTheRowAndTheVariableAsTheColumn) {
    EXPECT_EQ(DataErrorText(3, 2), "Data Error. Row= 3, Col= 2");
}

TEST_F(StandardizationTest, APendingErrorStopsAtTheCell) {
    auto& source = SheetOf({{"1", ""}, {"3", ""}});
    forms.scripts.push_back([this](Form& form) {
        session.Of<SheetValues>().PendingError = true;
        dynamic_cast<frmStandard&>(form).Command2_Click();
    });
    Standardization(session);
    EXPECT_EQ(messages.shown, std::vector<Message>{(Message{.Text = "Data Error. Row= 1, Col= 1",
                                                            .Icon = MessageIcon::Critical})});
    EXPECT_EQ(session.Children.size(), 1u);
    EXPECT_EQ(source.Grid1.Text(1, 3), "");
}

TEST_F(StandardizationTest, IsRefusedWhileADiagramIsBeingMade) {
    SheetOf({{"1"}, {"2"}});
    session.DiagramBusy = 1;
    Standardization(session);
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_EQ(session.Children.size(), 1u);
}

} // namespace
} // namespace dorvan::test
