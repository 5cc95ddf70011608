#include "distance/frmMacierz.h"
#include "distance/matrix_session.h"
#include "support/command_switches.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace dorvan::test {
namespace {

struct frmMacierzTest : ::testing::Test, MatrixSession {
    // A matrix window of a document whose distances are all `cell`, as a reader fills it.
    frmMacierz& Open(int size, const std::string& cell, const std::string& description = "") {
        session.NewWindowIndex = FindFreeMatrixSlot(session);
        auto& document = session.MatrixDocuments.at(std::size_t(session.NewWindowIndex));
        document.Size = std::int16_t(size);
        document.Names = Names(size);
        for (int row = 1; row <= size; ++row) document.Names(row) = "n" + std::to_string(row);
        document.Cells = Array2<std::string>(size, size, cell);
        PutIntoRegistry(session, DocumentKind::Matrix, std::make_shared<frmMacierz>(session));
        auto& window = MatrixWindow(session, session.NewWindowIndex);
        window.Caption = "[MATRIX]: /folder/a.mtx";
        window.Present(description);
        return window;
    }

    int ColumnWidthFor(const std::string& highest) { return Open(2, highest).Siatka.ColumnWidth(2); }
};

TEST_F(frmMacierzTest, TheGridShowsNumbersNamesAndDistances) {
    auto& window = Make({{"0"}, {"1.25"}, {"-2"}});
    const Rows wanted{{"", "", "1", "2", "3"},
                      {"1", "r1", "0.000", "1.250", "2.000"},
                      {"2", "r2", "1.250", "0.000", "3.250"},
                      {"3", "r3", "2.000", "3.250", "0.000"}};
    ASSERT_EQ(window.Siatka.Rows(), 4);
    ASSERT_EQ(window.Siatka.Columns(), 5);
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 5; ++column)
            EXPECT_EQ(window.Siatka.Text(row, column), wanted[std::size_t(row)][std::size_t(column)])
                << row << ", " << column;
}

TEST_F(frmMacierzTest, AReadMatrixIsShownLikeAMadeOne) {
    auto& window = Open(2, "12.34567", "from a file");
    EXPECT_EQ(window.BottomText.Text, "from a file");
    EXPECT_EQ(window.Siatka.Text(0, 3), "2");
    EXPECT_EQ(window.Siatka.Text(2, 1), "n2");
    EXPECT_EQ(window.Siatka.Text(2, 2), "12.346");
    EXPECT_EQ(window.Siatka.ColumnWidth(1), 3 * frmMacierz::BaseColumnWidth);
    EXPECT_EQ(window.Siatka.ColumnWidth(2), 1196); // 8 characters
}

TEST_F(frmMacierzTest, ReadsItsCellsWithTheSeparatorOfTheProcess) {
    session.DecimalSeparator = ',';
    EXPECT_EQ(Open(2, "1,5").Siatka.Text(1, 2), "1,500");
}

// The cell's text has seven digits, 12345.68; the distance itself is 12345.6787109375.
TEST_F(frmMacierzTest, AMadeMatrixShowsTheDistanceAndNotItsText) {
    auto& window = Make({{"0"}, {"12345.679"}});
    EXPECT_EQ(window.Document().Cells(1, 2), "12345.68");
    EXPECT_EQ(window.Siatka.Text(1, 3), "12345.679");
}

TEST_F(frmMacierzTest, HeadersAreCentredButForTheLastAndDistancesStandRight) {
    auto& window = Make({{"0"}, {"1"}, {"2"}});
    for (int column = 0; column <= 3; ++column)
        EXPECT_EQ(window.Siatka.HeaderAlignment(column), Alignment::Centre) << column;
    EXPECT_EQ(window.Siatka.HeaderAlignment(4), Alignment::Left);
    for (int column = 0; column <= 1; ++column)
        EXPECT_EQ(window.Siatka.ColumnAlignment(column), Alignment::Left) << column;
    for (int column = 2; column <= 4; ++column)
        EXPECT_EQ(window.Siatka.ColumnAlignment(column), Alignment::Right) << column;
}

TEST_F(frmMacierzTest, OpensWithTheFirstNameAsItsCurrentCell) {
    const auto& window = Open(2, "1.5");
    EXPECT_EQ(window.Siatka.Row(), 1);
    EXPECT_EQ(window.Siatka.Column(), 1);
}

TEST_F(frmMacierzTest, TheLengthOfTheHighestDistanceSetsTheWidthOfItsColumns) {
    EXPECT_EQ(ColumnWidthFor("0"), 676); // 1.3 x 520
    EXPECT_EQ(ColumnWidthFor("12.5"), 676);
    EXPECT_EQ(ColumnWidthFor("123.5"), 780);
    EXPECT_EQ(ColumnWidthFor("1234.5"), 910);
    EXPECT_EQ(ColumnWidthFor("1234.56"), 1040);
    EXPECT_EQ(ColumnWidthFor("1234.567"), 1196);
    EXPECT_EQ(ColumnWidthFor("0.1234567"), 1300);
    EXPECT_EQ(ColumnWidthFor("0.00123456"), 1430);   // 10
    EXPECT_EQ(ColumnWidthFor("1.234567E-05"), 1430); // 12
}

TEST_F(frmMacierzTest, AllColumnsOfDistancesHaveThatWidthAndTheNamesThreeTimesTheDefault) {
    auto& window = Make({{"0"}, {"1234.567"}, {"1"}});
    EXPECT_EQ(window.Siatka.ColumnWidth(0), frmMacierz::BaseColumnWidth);
    EXPECT_EQ(window.Siatka.ColumnWidth(1), 1560);
    for (int column = 2; column <= 4; ++column) EXPECT_EQ(window.Siatka.ColumnWidth(column), 1196);
}

TEST_F(frmMacierzTest, NumbersBelowZeroLeaveTheHighestAtZero) { EXPECT_EQ(ColumnWidthFor("-1234.567"), 676); }

TEST_F(frmMacierzTest, PresentingAgainStartsFromTheDefaultWidth) {
    auto& window = Open(3, "12.5");
    window.Document().Size = 2;
    window.Present("");
    EXPECT_EQ(window.Siatka.ColumnWidth(1), 1560);
    EXPECT_EQ(window.Siatka.ColumnWidth(2), 676);
    EXPECT_EQ(window.Siatka.Columns(), 4);
}

TEST_F(frmMacierzTest, AChangedDescriptionMakesTheMatrixDirty) {
    auto& window = Open(2, "1");
    session.MatrixStates.at(1).Dirty = false;
    window.Present("");
    EXPECT_FALSE(session.MatrixStates.at(1).Dirty);
    window.Present("other");
    EXPECT_TRUE(session.MatrixStates.at(1).Dirty);
    session.MatrixStates.at(1).Dirty = false;
    window.BottomText_Change();
    EXPECT_TRUE(session.MatrixStates.at(1).Dirty);
}

TEST_F(frmMacierzTest, AKeyInTheDescriptionBeepsWhileADiagramIsBeingMadeAndStillCounts) {
    auto& window = Open(2, "1");
    int key = 'a';
    window.BottomText_KeyPress(key);
    EXPECT_EQ(signals.beeps, 0);
    session.DiagramBusy = 1;
    window.BottomText_KeyPress(key);
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_EQ(key, 'a');
}

TEST_F(frmMacierzTest, ActivationSwitchesTheCommands) {
    auto& window = Open(2, "1");
    ExpectSwitches(session, DocumentKind::Matrix, WindowPhase::Activated, [&] {
        window.TypeOfForm.clear();
        window.Form_Activate();
        EXPECT_EQ(window.TypeOfForm, "MATRIX");
    });
}

TEST_F(frmMacierzTest, DeactivationSwitchesTheCommands) {
    auto& window = Open(2, "1");
    ExpectSwitches(session, DocumentKind::Matrix, WindowPhase::Deactivated,
                   [&] { window.Form_Deactivate(); });
}

TEST_F(frmMacierzTest, ClosingSwitchesTheCommandsAndFreesTheSlot) {
    auto& window = Open(2, "1");
    ExpectSwitches(session, DocumentKind::Matrix, WindowPhase::Unloaded, [&] {
        session.MatrixStates.at(1).Deleted = false;
        window.Form_Unload();
        EXPECT_TRUE(session.MatrixStates.at(1).Deleted);
    });
}

struct Closing : frmMacierzTest {
    int saves = 0;
    Closing() {
        session.commands.Set("Save", [this](const CommandCall&) { ++saves; });
        session.mainWindow.Caption = "Dorvan 3.3.44";
    }
    Message Question(const std::string& name) {
        return {.Text = "The matrix in [" + name + "] has changed.\r\nDo you want to save the changes?",
                .Icon = MessageIcon::None,
                .Buttons = MessageButtons::YesNoCancel,
                .Title = "Dorvan 3.3.44"};
    }
};

TEST_F(Closing, AnUntouchedNewMatrixAsks) {
    auto& window = Make({{"1"}, {"2"}});
    messages.answers = {Answer::No};
    EXPECT_TRUE(CloseChild(session, window));
    EXPECT_EQ(messages.shown, (std::vector<Message>{Question("Untitled:1")}));
    EXPECT_EQ(saves, 0);
    EXPECT_TRUE(session.MatrixStates.at(1).Deleted);
}

TEST_F(Closing, NamesTheFileOfTheCaption) {
    auto& window = Open(2, "1");
    session.MatrixStates.at(1).Dirty = true;
    messages.answers = {Answer::No};
    EXPECT_TRUE(window.Form_QueryUnload());
    EXPECT_EQ(messages.shown, (std::vector<Message>{Question("/folder/a.mtx")}));
}

TEST_F(Closing, CancelKeepsTheWindowOpen) {
    auto& window = Make({{"1"}, {"2"}});
    messages.answers = {Answer::Cancel};
    EXPECT_FALSE(CloseChild(session, window));
    EXPECT_FALSE(session.MatrixStates.at(1).Deleted);
    EXPECT_EQ(session.ActiveWindow, &window);
    EXPECT_EQ(saves, 0);
}

TEST_F(Closing, YesRunsTheSaveCommandAndClosesWhateverCameOfIt) {
    auto& window = Make({{"1"}, {"2"}});
    messages.answers = {Answer::Yes};
    EXPECT_TRUE(CloseChild(session, window));
    EXPECT_EQ(saves, 1);
    EXPECT_TRUE(session.MatrixStates.at(1).Deleted);
}

TEST_F(Closing, AnUnchangedMatrixIsNotAskedAbout) {
    auto& window = Open(2, "1");
    session.MatrixStates.at(1).Dirty = false;
    EXPECT_TRUE(window.Form_QueryUnload());
    EXPECT_TRUE(messages.shown.empty());
}

struct Resizing : frmMacierzTest {
    frmMacierz& window = Make({{"1"}, {"2"}});

    void Resize(int width, int height) {
        window.Width = width;
        window.Height = height;
        window.ScaleWidth = width - 200;
        window.ScaleHeight = height - 600;
        window.Form_Resize();
    }
};

TEST_F(Resizing, ASmallActiveWindowGrows) {
    Resize(4999, 2499);
    EXPECT_EQ(window.Width, 5000);
    EXPECT_EQ(window.Height, 3200);
    Resize(5000, 2500);
    EXPECT_EQ(window.Width, 5000);
    EXPECT_EQ(window.Height, 2500);
    Resize(8000, 2499);
    EXPECT_EQ(window.Width, 8000);
    EXPECT_EQ(window.Height, 3200);
    Resize(100, 4000);
    EXPECT_EQ(window.Width, 5000);
    EXPECT_EQ(window.Height, 4000);
}

TEST_F(Resizing, ItIsTheActiveWindowThatGrows) {
    auto& sheet = OpenSheet({{"1"}});
    sheet.Width = sheet.Height = 10;
    Resize(20, 30);
    EXPECT_EQ(window.Width, 20);
    EXPECT_EQ(window.Height, 30);
    EXPECT_EQ(sheet.Width, 5000);
    EXPECT_EQ(sheet.Height, 3200);
}

TEST_F(Resizing, OnlyInTheNormalStateItGrows) {
    for (const auto mode : {WindowMode::Minimized, WindowMode::Maximized}) {
        window.Mode = mode;
        Resize(100, 200);
        EXPECT_EQ(window.Width, 100);
        EXPECT_EQ(window.Height, 200);
    }
}

TEST_F(frmMacierzTest, MatrixWindowFailsForASlotWithoutOne) {
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, MatrixWindow(session, 0));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, MatrixWindow(session, 2));
    EXPECT_FAILURE(Failure::InvalidProcedureCall, MatrixWindow(session, 1));
}

} // namespace
} // namespace dorvan::test
