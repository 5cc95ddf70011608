#include "program/rescue.h"

#include "files/data_documents.h"
#include "files/diagram_documents.h"
#include "files/matrix_documents.h"
#include "program/open_document.h"
#include "program_session.h"
#include "session/children.h"
#include "session/registry.h"
#include "sheet/frmNotePad.h"
#include "support/golden.h"
#include "support/test_platform.h"
#include "view/frmDiagram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace dorvan::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* Time = "2026-11-21 10-30-05";
constexpr const char* FolderName = "Dorvan rescued documents";

class RescueTest : public ProgramSession {
protected:
    RescueFolders Folders() const { return RescueFoldersOf(folder.path(), folder / "state/dorvan"); }
    // With the names in the folder in the place of paths.
    RescueReport Rescue() {
        RescueReport report = RescueDocuments(made.session, Folders(), Time);
        for (auto& path : report.Written) {
            EXPECT_EQ(path.find(folder / FolderName), 0u) << path;
            path = std::filesystem::path(path).filename().string();
        }
        return report;
    }
    std::string Rescued(const std::string& name) { return folder / (std::string(FolderName) + "/" + name); }
    std::vector<std::string> NamesToRescue() {
        std::vector<std::string> failures;
        std::vector<std::string> names;
        for (const auto& copy : CopiesToRescue(made.session, Time, failures)) names.push_back(copy.FileName);
        EXPECT_THAT(failures, IsEmpty());
        return names;
    }
};

} // namespace

TEST_F(RescueTest, NothingOpenLeavesNothingBehind) {
    const RescueReport report = Rescue();
    EXPECT_TRUE(report.Empty());
    EXPECT_EQ(RescueText(report), "");
    EXPECT_FALSE(std::filesystem::exists(folder / FolderName));
}

TEST_F(RescueTest, AnUntitledSheetIsNamedAfterItsCaptionAndTheTimeAndOpensAgain) {
    NewSheet();
    const RescueReport report = Rescue();
    EXPECT_THAT(report.Written, ElementsAre("untitled-1 2026-11-21 10-30-05.mdt"));
    const std::string path = Rescued(report.Written.front());
    EXPECT_EQ(fileBytes(path), "Dorvan DATA 3.3\r\n\r\n[HEADER]\r\nDescription=some towns\r\nRecCount=3\r\n"
                               "VarCount=2\r\n\r\n[RECORD_LABEL]\r\nrec1\r\nrec2\r\nrec3\r\n\r\n"
                               "[VARIABLE_LABEL]\r\na\r\nb\r\n\r\n"
                               "[DATA]\r\n1.000;2.000\r\n2.000;4.000\r\n3.000;6.000\r\n");
    ReadDataFile(made.session, path);
    EXPECT_EQ(ActiveDataWindow(made.session).Grid1.Text(3, 3), "6.000");
    EXPECT_FALSE(IsUntitled(made.session.ActiveWindow->Caption)); // it has a file: a save goes there
}

TEST_F(RescueTest, WhatItsFileHoldsIsNotRescuedAndWhatKeysAloneChangedIs) {
    auto& window = NewSheet();
    made.files.paths = {folder / "Towns.mdt"};
    SaveData(made.session);
    EXPECT_THAT(NamesToRescue(), IsEmpty());
    window.Grid1.SetText(1, 2, "9.000"); // as typing does: not marked as changed
    EXPECT_FALSE(made.session.DataStates.at(1).Dirty);
    EXPECT_THAT(NamesToRescue(), ElementsAre("towns 2026-11-21 10-30-05.mdt"));
}

TEST_F(RescueTest, ACellThatIsNoNumberReadsAsWhatItEvaluatesTo) {
    auto& window = NewSheet();
    window.Grid1.SetText(1, 2, "2*3+"); // being typed
    window.Grid1.SetText(2, 2, "");     // of a record just added
    window.Grid1.SetText(3, 2, "N/A");
    const RescueReport report = Rescue();
    ReadDataFile(made.session, Rescued(report.Written.front()));
    const Grid& grid = ActiveDataWindow(made.session).Grid1;
    EXPECT_EQ(grid.Text(1, 2), "6.000");
    EXPECT_EQ(grid.Text(2, 2), "0.000");
    EXPECT_EQ(grid.Text(3, 2), "N/A");
    EXPECT_EQ(window.Grid1.Text(1, 2), "2*3+"); // the open sheet stays as it is
}

TEST_F(RescueTest, ADescriptionOfSeveralLinesBecomesOne) {
    NewSheet().OpisText.Text = "one\r\ntwo\nthree";
    const RescueReport report = Rescue();
    ReadDataFile(made.session, Rescued(report.Written.front()));
    EXPECT_EQ(ActiveDataWindow(made.session).OpisText.Text, "one two three");
}

TEST_F(RescueTest, MatricesAndDiagramsAreRescuedAndOpenAgain) {
    NewSheet();
    made.forms.scripts = {[](Form& form) { form.Hide(); }, [](Form& form) { form.Hide(); }};
    made.session.DialogOutcome = 1;
    made.session.CurrentDistType = 3;
    made.session.commands.Call("MakeMatrix");
    ActivateChild(made.session, *made.session.DataWindows.at(1));
    made.session.commands.Call("MakeDiagram");
    ASSERT_EQ(made.session.Children.size(), 3u);
    dynamic_cast<frmDiagram&>(*made.session.DiagramWindows.at(1)).BottomText.Text = "a, b";

    const RescueReport report = Rescue();
    EXPECT_THAT(report.Failures, IsEmpty());
    EXPECT_THAT(report.Written, ::testing::UnorderedElementsAre("untitled-1 2026-11-21 10-30-05.mdt",
                                                                "untitled-1 2026-11-21 10-30-05.mtx",
                                                                "untitled-1 2026-11-21 10-30-05.dgr"));
    ReadMatrixFile(made.session, Rescued("untitled-1 2026-11-21 10-30-05.mtx"));
    EXPECT_EQ(made.session.ActiveWindow->TypeOfForm, "MATRIX");
    ReadDiagramFile(made.session, Rescued("untitled-1 2026-11-21 10-30-05.dgr"));
    EXPECT_EQ(made.session.ActiveWindow->TypeOfForm, "DIAGRAM");
    EXPECT_EQ(dynamic_cast<frmDiagram&>(*made.session.ActiveWindow).BottomText.Text, "a; b");
    EXPECT_THAT(made.messages.shown, IsEmpty());
}

TEST_F(RescueTest, NoCopyTakesTheNameOfAnother) {
    NewSheet();
    Rescue();
    const RescueReport second = Rescue();
    EXPECT_THAT(second.Written, ElementsAre("untitled-1 2026-11-21 10-30-05 (2).mdt"));
    EXPECT_TRUE(std::filesystem::exists(Rescued("untitled-1 2026-11-21 10-30-05.mdt")));
}

mode_t ModeOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

TEST_F(RescueTest, CopiesAreForTheirOwnerAlone) {
    NewSheet();
    const mode_t mask = ::umask(0);
    const RescueReport report = Rescue();
    ::umask(mask);
    EXPECT_EQ(ModeOf(folder / FolderName), mode_t(0700));
    EXPECT_EQ(ModeOf(Rescued(report.Written.front())), mode_t(0600));
}

TEST_F(RescueTest, WhereTheFirstFolderCannotBeMadeTheCopiesGoIntoTheSecond) {
    NewSheet();
    writeFile(folder / FolderName, "a file in the way");
    const RescueReport report = RescueDocuments(made.session, Folders(), Time);
    EXPECT_THAT(report.Failures, IsEmpty());
    const std::string path = folder / "state/dorvan/rescued/untitled-1 2026-11-21 10-30-05.mdt";
    EXPECT_THAT(report.Written, ElementsAre(path));
    EXPECT_EQ(ModeOf(folder / "state/dorvan/rescued"), mode_t(0700));
    EXPECT_EQ(RescueText(report), "Copies of documents that no file holds:\n  " + path);
}

TEST_F(RescueTest, WithoutAnyFolderTheFailureIsReportedAndNothingThrown) {
    NewSheet();
    writeFile(folder / FolderName, "a file in the way");
    writeFile(folder / "state", "another one");
    const RescueReport report = RescueDocuments(made.session, Folders(), Time);
    EXPECT_THAT(report.Written, IsEmpty());
    ASSERT_EQ(report.Failures.size(), 1u);
    EXPECT_THAT(RescueText(report),
                HasSubstr("These could not be rescued:\n  untitled-1 2026-11-21 10-30-05.mdt: "));
}

TEST_F(RescueTest, ALongNameIsCutBetweenTwoCharacters) {
    auto& window = NewSheet();
    std::string name;
    for (int i = 0; i < 100; ++i) name += "ż"; // two bytes each
    window.Caption = "[DATA]: /home/ann/" + name + ".mdt";
    RescueReport report = Rescue();
    ASSERT_EQ(report.Written.size(), 1u);
    EXPECT_EQ(report.Written[0], name.substr(0, 150) + " 2026-11-21 10-30-05.mdt");
    window.Caption = "[DATA]: /home/ann/a" + name + ".mdt";
    report = Rescue();
    EXPECT_EQ(report.Written[0], "a" + name.substr(0, 148) + " 2026-11-21 10-30-05.mdt");
}

TEST_F(RescueTest, AFileInTheStyleOfAnotherLocaleHoldsItsDocument) {
    auto& window = NewSheet();
    made.files.paths = {folder / "Towns.mdt"};
    SaveData(made.session);
    std::string comma = fileBytes(folder / "Towns.mdt");
    for (auto& sign : comma)
        if (sign == '.' && &sign > comma.data() + 20) sign = ',';
    writeFile(folder / "Towns.mdt", comma);
    EXPECT_THAT(NamesToRescue(), IsEmpty());
    window.Grid1.SetText(1, 2, "9.000");
    EXPECT_THAT(NamesToRescue(), ElementsAre("towns 2026-11-21 10-30-05.mdt"));
}

TEST_F(RescueTest, ASheetSavedWithAnEmptyCellIsHeldByItsFile) {
    NewSheet().Grid1.SetText(1, 2, "");
    made.files.paths = {folder / "Towns.mdt"};
    SaveData(made.session);
    EXPECT_THAT(NamesToRescue(), IsEmpty());
}

TEST_F(RescueTest, ADocumentOfAnOlderFileIsHeldByIt) {
    ReadDocument(made.session, sourcePath("tests/files/older_sheet.mdt"));
    ReadDocument(made.session, sourcePath("tests/files/older_matrix.mtx"));
    EXPECT_EQ(made.session.Children.size(), 2u);
    EXPECT_THAT(NamesToRescue(), IsEmpty());
}

// The silent save clears the mark of a change all the same.
TEST_F(RescueTest, ASaveThatFailedIsRescued) {
    NewSheet();
    made.files.paths = {folder / "none/Towns.mdt"};
    SaveData(made.session);
    EXPECT_FALSE(made.session.DataStates.at(1).Dirty);
    EXPECT_THAT(NamesToRescue(), ElementsAre("towns 2026-11-21 10-30-05.mdt"));
}

TEST_F(RescueTest, TheTextSaysWhereTheCopiesAre) {
    NewSheet();
    EXPECT_EQ(RescueText(RescueDocuments(made.session, Folders(), Time)),
              "Copies of documents that no file holds:\n  " + folder / FolderName +
                  "/untitled-1 2026-11-21 10-30-05.mdt");
}

TEST_F(RescueTest, AClosedWindowIsNotRescued) {
    auto& window = NewSheet();
    CloseChild(made.session, window);
    EXPECT_THAT(NamesToRescue(), IsEmpty());
}

class OpenDocumentTest : public RescueTest {};

TEST_F(OpenDocumentTest, OpensByTheExtensionInCapitalsOrNot) {
    NewSheet();
    made.files.paths = {folder / "TOWNS.MDT"};
    SaveData(made.session);
    CloseChild(made.session, *made.session.ActiveWindow);
    OpenDocument(made.session, folder / "TOWNS.MDT");
    EXPECT_EQ(ActiveDataWindow(made.session).RecordCount(), 3);
    EXPECT_THAT(made.messages.shown, IsEmpty());
}

TEST_F(OpenDocumentTest, RefusesOtherFilesWithAMessage) {
    OpenDocument(made.session, folder / "towns.csv");
    ASSERT_EQ(made.messages.shown.size(), 1u);
    EXPECT_EQ(made.messages.shown[0].Text, "Error! This file is not acceptable for Dorvan.");
    EXPECT_EQ(made.messages.shown[0].Icon, MessageIcon::Critical);
    EXPECT_TRUE(made.session.Children.empty());
}

TEST_F(OpenDocumentTest, OnlyBeepsWhileADiagramIsMade) {
    made.session.DiagramBusy = 1;
    OpenDocument(made.session, folder / "towns.mdt");
    EXPECT_EQ(made.signals.beeps, 1);
    EXPECT_TRUE(made.session.Children.empty());
}

} // namespace dorvan::test
