#include "distance/matrix_session.h"
#include "files/matrix_documents.h"
#include "program/program.h"
#include "support/expect_failure.h"
#include "support/golden.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace dorvan::test {
namespace {

struct SaveMatrixTest : ::testing::Test, MatrixSession {
    TemporaryFolder folder;
    frmMacierz& window = Make({{"0"}, {"0.1234567"}});
    const std::string wanted =
        "Dorvan MATRIX 3.3\r\n\r\n[HEADER]\r\nDescription=a, b; c\r\nRecCount=2\r\n\r\n"
        "[RECORD_LABEL]\r\nr1\r\nr2\r\n\r\n[MATRIX]\r\n0.000;0.123\r\n0.123;0.000\r\n";
    const FileRequest request{.Title = "Dorvan - Save matrix As",
                              .Filters = {{"mtx file (*.mtx)", "*.mtx"}, {"all (*.*)", "*.*"}},
                              .Extension = "*.mtx",
                              .StartFolder = "program-folder"};

    SaveMatrixTest() { window.BottomText.Text = "a, b; c"; }
};

TEST_F(SaveMatrixTest, WritesTheDocumentUnderThePath) {
    signals.cursors.clear();
    window.SaveMatrix(folder / "A Matrix.mtx");
    EXPECT_EQ(fileBytes(folder / "A Matrix.mtx"), wanted);
    EXPECT_TRUE(files.requests.empty());
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
}

TEST_F(SaveMatrixTest, AnEmptyPathAsksForOne) {
    files.paths = {folder / "b.mtx"};
    window.SaveMatrix("");
    EXPECT_EQ(files.requests, (std::vector<FileRequest>{request}));
    EXPECT_EQ(fileBytes(folder / "b.mtx"), wanted);
}

TEST_F(SaveMatrixTest, ACancelledDialogLeavesEverything) {
    files.paths = {""};
    window.SaveMatrix("");
    EXPECT_EQ(window.Caption, "[MATRIX]: Untitled:1");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(SaveMatrixTest, ThePathGoesIntoTheCaptionWithItsCaseKept) {
    window.SaveMatrix(folder / "Mixed Case.MTX");
    EXPECT_EQ(window.Caption, "[MATRIX]: " + (folder / "Mixed Case.MTX"));
}

TEST_F(SaveMatrixTest, ItIsTheActiveWindowThatGetsTheCaption) {
    auto& sheet = OpenSheet({{"1"}});
    window.SaveMatrix(folder / "c.mtx");
    EXPECT_EQ(sheet.Caption, "[MATRIX]: " + (folder / "c.mtx"));
    EXPECT_EQ(window.Caption, "[MATRIX]: Untitled:1");
}

TEST_F(SaveMatrixTest, ASavedMatrixStaysDirtyAndAsksOnClosing) {
    window.SaveMatrix(folder / "d.mtx");
    EXPECT_TRUE(session.MatrixStates.at(1).Dirty);
    messages.answers = {Answer::No};
    EXPECT_TRUE(CloseChild(session, window));
    EXPECT_EQ(messages.shown.size(), 1u);
}

TEST_F(SaveMatrixTest, ReplacesAFileThatIsThere) {
    writeFile(folder / "e.mtx", std::string(5000, 'x'));
    window.SaveMatrix(folder / "e.mtx");
    EXPECT_EQ(fileBytes(folder / "e.mtx"), wanted);
}

TEST_F(SaveMatrixTest, AFailedSaveIsARunTimeFailureAndKeepsTheCaption) {
    EXPECT_FAILURE(Failure::PathNotFound, window.SaveMatrix(folder / "no such folder/f.mtx"));
    EXPECT_EQ(window.Caption, "[MATRIX]: Untitled:1");
    EXPECT_EQ(signals.cursors.back(), Cursor::Default);
}

TEST_F(SaveMatrixTest, OnlyBeepsWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    window.SaveMatrix("");
    window.SaveMatrix(folder / "g.mtx");
    EXPECT_EQ(signals.beeps, 2);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(SaveMatrixTest, ASavedMatrixReadsBackWithThreeDecimals) {
    window.SaveMatrix(folder / "h.mtx");
    ReadMatrixFile(session, folder / "h.mtx");
    const auto& read = dynamic_cast<frmMacierz&>(*session.ActiveWindow);
    EXPECT_EQ(read.Index, 2);
    EXPECT_EQ(session.MatrixDocuments.at(2).Cells(1, 2), "0.123");
    EXPECT_EQ(read.BottomText.Text, "a, b; c");
    EXPECT_EQ(read.Siatka.Text(1, 3), "0.123");
    EXPECT_FALSE(session.MatrixStates.at(2).Dirty);
}

TEST_F(SaveMatrixTest, TheCommandSavesTheMatrixOfItsSlot) {
    Compose(session);
    session.commands.Call("frmMacierz.SaveMatrix", {.Index = 1, .Path = folder / "i.mtx"});
    EXPECT_EQ(fileBytes(folder / "i.mtx"), wanted);
}

TEST(MakeMatrixCommand, IsInTheCommandTable) {
    MatrixSession test;
    Compose(test.session);
    test.OpenSheet({{"1"}, {"2"}});
    test.forms.scripts.push_back([](Form& form) { dynamic_cast<frmOpcjeMacierzy&>(form).Command2_Click(); });
    test.session.commands.Call("MakeMatrix");
    EXPECT_EQ(test.session.ActiveWindow->Caption, "[MATRIX]: Untitled:1");
}

} // namespace
} // namespace dorvan::test
