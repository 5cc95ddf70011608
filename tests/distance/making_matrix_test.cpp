#include "distance/frmCustomized.h"
#include "distance/loading.h"
#include "distance/making_matrix.h"
#include "distance/matrix_session.h"
#include "numbers/number_text.h"
#include "sheet/sheet_values.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan::test {
namespace {

struct MakeMatrixTest : ::testing::Test, MatrixSession {
    void CancelDialog() {
        forms.scripts.push_back([](Form& form) { dynamic_cast<frmOpcjeMacierzy&>(form).Command1_Click(); });
    }
    void ExpectNoMatrix() {
        EXPECT_TRUE(session.MatrixStates.at(1).Deleted);
        EXPECT_EQ(session.MatrixStates.size(), 2u);
        EXPECT_EQ(session.MatrixWindows.at(1), nullptr);
    }
    void ExpectRefusal(int records, const std::string& text) {
        OpenSheet(records, 1);
        MakeMatrix(session);
        EXPECT_EQ(messages.shown, (std::vector<Message>{{.Text = text, .Icon = MessageIcon::Critical}}));
        EXPECT_TRUE(forms.log.empty());
        ExpectNoMatrix();
    }
};

TEST_F(MakeMatrixTest, OnlyBeepsWhileADiagramIsBeingMade) {
    OpenSheet({{"1"}, {"2"}});
    session.DiagramBusy = 1;
    MakeMatrix(session);
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_TRUE(forms.log.empty());
    ExpectNoMatrix();
}

TEST_F(MakeMatrixTest, RefusesNoRecords) {
    ExpectRefusal(0, "The number of records is less than 2. I can't create matrix!");
}
TEST_F(MakeMatrixTest, RefusesOneRecord) {
    ExpectRefusal(1, "The number of records is less than 2. I can't create matrix!");
}
TEST_F(MakeMatrixTest, RefusesOneHundredAndFiftyOneRecords) {
    ExpectRefusal(151, "The number of records is > 150 (max. number of records)!");
}
TEST_F(MakeMatrixTest, TheLimitIsNotTheOneOfDiagrams) {
    session.MaxDiagramRecords = 1000;
    ExpectRefusal(151, "The number of records is > 150 (max. number of records)!");
}

TEST_F(MakeMatrixTest, TakesOneHundredAndFiftyRecordsAndTwo) {
    for (const int records : {150, 2}) {
        OpenSheet(records, 1);
        auto& window = Make();
        EXPECT_EQ(window.Document().Size, records);
        EXPECT_EQ(window.Document().Cells(1, records), std::to_string(records - 1));
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(MakeMatrixTest, CancelInTheDialogEndsTheCommandBeforeAnythingIsLoaded) {
    auto& sheet = OpenSheet({{""}, {"2"}});
    session.Of<SheetValues>().PendingError = true;
    CancelDialog();
    MakeMatrix(session);
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "");
    EXPECT_TRUE(session.Of<SheetValues>().PendingError);
    EXPECT_TRUE(signals.cursors.empty());
    ExpectNoMatrix();
}

TEST_F(MakeMatrixTest, ClearsThePendingErrorAfterTheDialog) {
    OpenSheet({{"1"}, {"2"}});
    session.Of<SheetValues>().PendingError = true;
    Make();
    EXPECT_FALSE(session.Of<SheetValues>().PendingError);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_FALSE(session.MatrixStates.at(1).Deleted);
}

TEST_F(MakeMatrixTest, FillsTheDocumentWithNamesAndPlainText) {
    const auto& document = Make({{"0", "0"}, {"3", "4"}, {"0.1", "0"}}).Document();
    EXPECT_EQ(document.Size, 3);
    EXPECT_EQ(document.Names.Cells(), (std::vector<std::string>{"r1", "r2", "r3"}));
    EXPECT_EQ(document.Cells.Cells(),
              (std::vector<std::string>{"0", "5", "0.1", "5", "0", "4.940648", "0.1", "4.940648", "0"}));
}

TEST_F(MakeMatrixTest, WritesTheCellsWithTheDecimalSeparatorOfTheProcess) {
    session.DecimalSeparator = ',';
    auto& window = Make({{"0"}, {"1.5"}});
    EXPECT_EQ(window.Document().Cells(1, 2), "1,5");
    EXPECT_EQ(window.Siatka.Text(1, 3), "1,500");
}

TEST_F(MakeMatrixTest, UsesTheMeasureOfTheDialog) {
    OpenSheet({{"0", "0"}, {"3", "4"}});
    ChooseMeasure(0, 1);
    MakeMatrix(session);
    EXPECT_EQ(session.CurrentDistType, 4);
    EXPECT_EQ(session.MatrixDocuments.at(1).Cells(1, 2), "7");
}

TEST_F(MakeMatrixTest, CancelInCustomizedReturnsToTheDialogThatThenMakesAnotherMatrix) {
    OpenSheet({{"0", "0"}, {"3", "4"}});
    forms.scripts.push_back([](Form& form) {
        auto& dialog = dynamic_cast<frmOpcjeMacierzy&>(form);
        dialog.Combo1.ListIndex = 3;
        dialog.Command2_Click();
        EXPECT_TRUE(dialog.Visible);
        EXPECT_EQ(dialog.Combo1.Text(), "Customized");
        dialog.Combo1.ListIndex = 2;
        dialog.Command2_Click();
    });
    forms.scripts.push_back([](Form& form) { dynamic_cast<frmCustomized&>(form).Command2_Click(); });
    MakeMatrix(session);
    EXPECT_EQ(forms.log, (std::vector<std::string>{"modal frmOpcjeMacierzy", "modal frmCustomized"}));
    EXPECT_EQ(session.MatrixDocuments.at(1).Cells(1, 2), "4");
    expectScriptsUsedUp();
}

TEST_F(MakeMatrixTest, PutsTheWindowUpUntitledUnsavedAndWithTheSheetsDescription) {
    auto& sheet = OpenSheet({{"1"}, {"2"}});
    sheet.OpisText.Text = "two records";
    auto& window = Make();
    EXPECT_EQ(session.ActiveWindow, &window);
    EXPECT_EQ(session.NewWindowIndex, 1);
    EXPECT_EQ(window.Index, 1);
    EXPECT_EQ(window.Tag, "1");
    EXPECT_EQ(window.Caption, "[MATRIX]: Untitled:1");
    EXPECT_EQ(window.TypeOfForm, "MATRIX");
    EXPECT_EQ(window.BottomText.Text, "two records");
    EXPECT_TRUE(session.MatrixStates.at(1).Dirty);
    EXPECT_FALSE(session.MatrixStates.at(1).Deleted);
    EXPECT_EQ(&MatrixWindow(session, 1), &window);
}

TEST_F(MakeMatrixTest, ANewMatrixIsUnsavedAlsoWithoutADescription) {
    Make({{"1"}, {"2"}});
    EXPECT_TRUE(session.MatrixStates.at(1).Dirty);
}

TEST_F(MakeMatrixTest, GivesTheWindowItsSizeOfTheScreen) {
    auto& window = Make({{"1"}, {"2"}});
    EXPECT_EQ(window.Mode, WindowMode::Normal);
    EXPECT_EQ(window.Width, 19465); // 0.95 x 20490
    EXPECT_EQ(window.Height, 9216); // 0.8 x 11520
    EXPECT_EQ(window.Left, 0);
    EXPECT_EQ(window.Top, 0);
}

TEST_F(MakeMatrixTest, RedrawsTheSheetThenShowsTheMatrixUnderTheWaitCursor) {
    Make({{"1"}, {"2"}});
    EXPECT_EQ(children.log,
              (std::vector<std::string>{"update [DATA]: Untitled:1", "show [MATRIX]: Untitled:1"}));
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default, Cursor::Wait, Cursor::Default}));
}

TEST_F(MakeMatrixTest, AClosedSlotIsUsedAgainSoThatTheTitleRepeats) {
    auto& sheet = OpenSheet({{"1"}, {"2"}});
    auto& first = Make();
    ActivateChild(session, sheet);
    EXPECT_EQ(Make().Caption, "[MATRIX]: Untitled:2");
    messages.answers = {Answer::No};
    EXPECT_TRUE(CloseChild(session, first));
    ActivateChild(session, sheet);
    EXPECT_EQ(Make().Caption, "[MATRIX]: Untitled:1");
    EXPECT_EQ(session.MatrixStates.size(), 3u);
}

TEST_F(MakeMatrixTest, ADocumentStaysInPlaceUntilItsSlotIsUsedAgain) {
    auto& window = Make({{"1"}, {"5"}});
    messages.answers = {Answer::No};
    CloseChild(session, window);
    EXPECT_TRUE(session.MatrixStates.at(1).Deleted);
    EXPECT_EQ(session.MatrixDocuments.at(1).Cells(1, 2), "4");
}

TEST_F(MakeMatrixTest, ASheetWithoutVariablesGivesZerosUnderTheFirstThreeMeasures) {
    for (const auto& [kind, position] : {std::pair{1, 0}, {1, 1}, {0, 0}}) {
        OpenSheet({{}, {}, {}});
        ChooseMeasure(kind, position);
        MakeMatrix(session);
        const auto& window = dynamic_cast<frmMacierz&>(*session.ActiveWindow);
        EXPECT_EQ(session.MatrixDocuments.at(std::size_t(window.Index)).Cells,
                  Array2<std::string>(3, 3, "0"));
    }
}

TEST_F(MakeMatrixTest, TakesMissingValuesUnderAnyMeasureWithoutAWord) {
    auto& window = Make({{"N/A"}, {"0"}});
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(window.Document().Cells(1, 2), "9999999");
}

TEST_F(MakeMatrixTest, ARecordThatMissesAllIsNotRefusedAndIsAtDistanceZero) {
    OpenSheet({{"N/A", "N/A"}, {"1", "2"}, {"3", "5"}});
    ChooseMeasure(1, 0);
    MakeMatrix(session);
    EXPECT_EQ(session.MatrixDocuments.at(1).Cells(1, 2), "0");
    EXPECT_EQ(session.MatrixDocuments.at(1).Cells(3, 1), "0");
    EXPECT_EQ(session.MatrixDocuments.at(1).Cells(2, 3), "6.5");
}

TEST_F(MakeMatrixTest, AFailureOfTheMeasureLeavesNoWindowAndNoSlotTaken) {
    OpenSheet({{"0"}, {"0"}});
    ChooseMeasure(2, 2);
    EXPECT_FAILURE(Failure::DivisionByZero, MakeMatrix(session));
    ExpectNoMatrix();
}

TEST_F(MakeMatrixTest, AFailureOfTheLoadLeavesNoWindowAndNoSlotTaken) {
    OpenSheet({{"1e39"}, {"0"}});
    forms.scripts.push_back([](Form& form) { dynamic_cast<frmOpcjeMacierzy&>(form).Command2_Click(); });
    EXPECT_FAILURE(Failure::Overflow, MakeMatrix(session));
    ExpectNoMatrix();
}

} // namespace
} // namespace dorvan::test
