#include "program/journal.h"

#include "files/data_documents.h"
#include "numbers/text.h"
#include "program_session.h"
#include "sheet/frmNotePad.h"
#include "support/disk_limits.h"
#include "view/frmDiagram.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <deque>
#include <filesystem>
#include <functional>
#include <sys/stat.h>
#include <utility>

namespace dorvan::test {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

// One run of the program on a state folder, its background work done at once or when the test says so.
struct JournalOfARun {
    explicit JournalOfARun(const std::string& stateFolder) : folder(stateFolder) {}

    JournalFolder folder;
    std::deque<std::function<void()>> waiting;
    bool atOnce = true;
    int pieces = 0;
    Journal journal{folder, [this](std::function<void()> piece) {
                        ++pieces;
                        if (atOnce)
                            piece();
                        else
                            waiting.push_back(std::move(piece));
                    }};
};

class JournalTest : public ProgramSession {
protected:
    JournalTest() {
        made.session.onClosing = [this](const ChildWindow& window) {
            run->journal.DocumentCloses(made.session, window);
        };
    }
    ~JournalTest() override { made.session.onClosing = nullptr; }

    std::string State() const { return folder / "state/dorvan"; }

    // The documents of the journal, of all runs.
    std::vector<fs::path> Kept(const std::string& below = "journal") const {
        std::vector<fs::path> files;
        if (!fs::exists(State() + "/" + below)) return files;
        for (const auto& entry : fs::recursive_directory_iterator(State() + "/" + below))
            if (entry.is_regular_file() && entry.path().extension() != ".origin" &&
                entry.path().filename() != "lock")
                files.push_back(entry.path());
        std::sort(files.begin(), files.end());
        return files;
    }
    void Look(double seconds) { run->journal.Look(made.session, seconds); }
    void Offer() { OfferLeftDocuments(made.session, run->folder, run->journal); }

    // What waits for the background, on a disk without room.
    void WorkOnAFullDisk() {
        const FileSizeLimit limit(10);
        for (const auto& piece : std::exchange(run->waiting, {})) try {
                piece();
            } catch (const std::exception&) { // as its thread does
            }
    }

    // The process ends without a word; the next one starts with an empty session.
    void KillAndStartAgain() {
        made.session.onClosing = nullptr;
        while (!made.session.Children.empty()) {
            auto& states = made.session.DataStates;
            for (auto& state : states) state.Dirty = false;
            CloseChild(made.session, *made.session.Children.back());
        }
        run = std::make_unique<JournalOfARun>(State());
        made.session.onClosing = [this](const ChildWindow& window) {
            run->journal.DocumentCloses(made.session, window);
        };
    }

    std::unique_ptr<JournalOfARun> run = std::make_unique<JournalOfARun>(State());
};

TEST_F(JournalTest, TellsWhichDocumentsNoFileHolds) {
    auto& sheet = NewSheet();
    EXPECT_FALSE(run->journal.IsUnsaved(sheet)) << "not seen yet";
    Look(0);
    EXPECT_TRUE(run->journal.IsUnsaved(sheet));
    made.files.paths.push_back(folder / "sheet.mdt");
    SaveData(made.session);
    Look(2);
    EXPECT_FALSE(run->journal.IsUnsaved(sheet));
    sheet.Grid1.SetText(1, 2, "9.000");
    Look(4);
    EXPECT_TRUE(run->journal.IsUnsaved(sheet));
    sheet.Grid1.SetText(1, 2, "1.000");
    Look(6);
    EXPECT_FALSE(run->journal.IsUnsaved(sheet)) << "as the file has it";
}

TEST_F(JournalTest, KeepsWhatNoFileHoldsForItsOwnerAlone) {
    NewSheet();
    const mode_t mask = ::umask(0);
    Look(10);
    ::umask(mask);
    ASSERT_EQ(Kept().size(), 1u);
    EXPECT_THAT(fileBytes(Kept()[0]), HasSubstr("Description=some towns\r\n"));
    struct stat status {};
    ASSERT_EQ(::stat(Kept()[0].c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, mode_t(0600));
    ASSERT_EQ(::stat(Kept()[0].parent_path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, mode_t(0700));
}

TEST_F(JournalTest, LooksOnceASecond) {
    auto& sheet = NewSheet();
    Look(10);
    sheet.Grid1.SetText(1, 2, "9.000");
    Look(10.9);
    EXPECT_THAT(fileBytes(Kept()[0]), Not(HasSubstr("9.000;2.000")));
    Look(11);
    EXPECT_THAT(fileBytes(Kept()[0]), HasSubstr("9.000;2.000"));
}

TEST_F(JournalTest, DoesNothingForWhatHasNotChanged) {
    NewSheet();
    Look(10);
    const int pieces = run->pieces;
    Look(12);
    Look(14);
    EXPECT_EQ(run->pieces, pieces);
}

TEST_F(JournalTest, SeesEveryKindOfChange) {
    auto& sheet = NewSheet();
    Look(10);
    auto changed = [&, second = 10.0](const auto& change) mutable {
        const int before = run->pieces;
        change();
        Look(second += 2);
        return run->pieces > before;
    };
    EXPECT_TRUE(changed([&] { sheet.Grid1.SetText(2, 2, "7"); }));
    EXPECT_TRUE(changed([&] { sheet.OpisText.Text = "other towns"; }));
    EXPECT_TRUE(changed([&] { sheet.Caption = "[DATA]: " + folder / "f.mdt"; }));
    EXPECT_TRUE(changed([&] { writeFile(folder / "f.mdt", "a file"); }));
    EXPECT_TRUE(changed([&] { fs::remove(folder / "f.mdt"); }));
    EXPECT_FALSE(changed([] {}));
}

TEST_F(JournalTest, ASaveEndsTheCopyAndAChangeBringsItBack) {
    auto& sheet = NewSheet();
    Look(10);
    made.files.paths = {folder / "Towns.mdt"};
    SaveData(made.session);
    Look(12);
    EXPECT_THAT(Kept(), IsEmpty());
    sheet.Grid1.SetText(1, 2, "9.000");
    Look(14);
    EXPECT_EQ(Kept().size(), 1u);
}

TEST_F(JournalTest, ASaveThatFailedKeepsTheCopy) {
    NewSheet();
    Look(10);
    made.files.paths = {folder / "none/Towns.mdt"};
    SaveData(made.session);
    Look(12);
    EXPECT_EQ(Kept().size(), 1u);
}

TEST_F(JournalTest, TheWorkIsDoneOnACopyOfTheDocument) {
    auto& sheet = NewSheet();
    run->atOnce = false;
    Look(10);
    sheet.Grid1.SetSize(1, 2);
    sheet.OpisText.Text = "gone";
    for (const auto& piece : run->waiting) piece();
    ASSERT_EQ(Kept().size(), 1u);
    EXPECT_THAT(fileBytes(Kept()[0]), HasSubstr("Description=some towns\r\nRecCount=3\r\n"));
}

TEST_F(JournalTest, AClosedDocumentLeavesTheJournalForTheClosedOnes) {
    auto& sheet = NewSheet();
    Look(10);
    sheet.Grid1.SetText(1, 2, "9.000"); // not seen yet
    CloseChild(made.session, sheet);
    Look(12);
    EXPECT_THAT(Kept(), IsEmpty());
    ASSERT_EQ(Kept("closed").size(), 1u);
    EXPECT_THAT(fileBytes(Kept("closed")[0]), HasSubstr("9.000;2.000"));
}

TEST_F(JournalTest, AClosedDocumentThatItsFileHoldsIsNotKept) {
    auto& sheet = NewSheet();
    made.files.paths = {folder / "Towns.mdt"};
    SaveData(made.session);
    CloseChild(made.session, sheet);
    EXPECT_THAT(Kept("closed"), IsEmpty());
}

TEST_F(JournalTest, TenClosedDocumentsAreKept) {
    for (int number = 1; number <= 12; ++number) {
        auto& sheet = NewSheet();
        sheet.OpisText.Text = "sheet " + std::to_string(number);
        CloseChild(made.session, sheet);
    }
    const auto closed = Kept("closed");
    ASSERT_EQ(closed.size(), JournalFolder::MostClosed);
    EXPECT_THAT(fileBytes(closed.front()), HasSubstr("Description=sheet 3\r\n"));
    EXPECT_THAT(fileBytes(closed.back()), HasSubstr("Description=sheet 12\r\n"));
}

TEST_F(JournalTest, TheDocumentClosedLastOpensFirstAndAsItWas) {
    auto& first = NewSheet();
    first.OpisText.Text = "first";
    CloseChild(made.session, first);
    auto& second = NewSheet();
    made.files.paths = {folder / "Towns.mdt"};
    SaveData(made.session);
    second.Grid1.SetText(1, 2, "9.000"); // by keys alone: no question on closing
    CloseChild(made.session, second);

    ReopenClosedDocument(made.session, run->folder, run->journal);
    const auto& again = ActiveDataWindow(made.session);
    EXPECT_EQ(again.Grid1.Text(1, 2), "9.000");
    EXPECT_EQ(again.FilePath, folder / "Towns.mdt");
    EXPECT_EQ(again.Caption, "[DATA]: " + LowerCase(folder / "Towns.mdt"));
    EXPECT_TRUE(made.session.DataStates.at(std::size_t(again.Index)).Dirty);
    SaveData(made.session); // goes to its file
    EXPECT_THAT(fileBytes(folder / "Towns.mdt"), HasSubstr("9.000;2.000"));

    ReopenClosedDocument(made.session, run->folder, run->journal);
    EXPECT_EQ(ActiveDataWindow(made.session).OpisText.Text, "first");
    EXPECT_EQ(made.session.ActiveWindow->Caption, "[DATA]: Untitled:2");
    EXPECT_THAT(Kept("closed"), IsEmpty());
    EXPECT_EQ(made.signals.beeps, 0);
    ReopenClosedDocument(made.session, run->folder, run->journal);
    EXPECT_EQ(made.signals.beeps, 1);
    EXPECT_THAT(made.messages.shown, IsEmpty());
}

TEST_F(JournalTest, WhatAKilledRunLeftIsOfferedAndOpened) {
    auto& sheet = NewSheet();
    NewSheet().OpisText.Text = "the second";
    sheet.Grid1.SetText(1, 2, "2*3+"); // being typed
    sheet.Caption = "[DATA]: " + LowerCase(folder / "Towns.mdt");
    sheet.FilePath = folder / "Towns.mdt";
    Look(10);
    KillAndStartAgain();
    made.messages.answers = {Answer::Yes};
    Offer();
    ASSERT_EQ(made.messages.shown.size(), 1u);
    EXPECT_EQ(made.messages.shown[0].Text, "Dorvan ended before these documents were saved:\r\n  " +
                                               folder / "Towns.mdt" +
                                               "\r\n  [DATA]: Untitled:2\r\n\r\nOpen them again?");
    EXPECT_EQ(made.messages.shown[0].Buttons, MessageButtons::YesNo);
    ASSERT_EQ(made.session.Children.size(), 2u);
    const auto& again = dynamic_cast<frmNotePad&>(*made.session.Children[0]);
    EXPECT_EQ(again.Grid1.Text(1, 2), "6.000");
    EXPECT_EQ(again.FilePath, folder / "Towns.mdt");
    EXPECT_EQ(Kept().size(), 2u); // by this run now
    EXPECT_THAT(run->folder.LeftByOtherRuns(), IsEmpty());
    EXPECT_THAT(Kept("closed"), IsEmpty());
}

TEST_F(JournalTest, WhatIsNotWantedIsAmongTheClosedDocuments) {
    NewSheet();
    Look(10);
    KillAndStartAgain();
    made.messages.answers = {Answer::No};
    Offer();
    EXPECT_THAT(Kept(), IsEmpty());
    EXPECT_EQ(Kept("closed").size(), 1u);
    EXPECT_THAT(made.session.Children, IsEmpty());
    Offer(); // no question any more
}

TEST_F(JournalTest, ARunThatIsAliveKeepsItsOwn) {
    NewSheet();
    Look(10);
    JournalOfARun other(State());
    EXPECT_THAT(other.folder.LeftByOtherRuns(), IsEmpty());
    OfferLeftDocuments(made.session, other.folder, other.journal);
    EXPECT_EQ(Kept().size(), 1u);
}

TEST_F(JournalTest, ACleanEndLeavesNothingButWhatWasNotSaved) {
    NewSheet();
    Look(10);
    run->journal.EndCleanly(made.session);
    EXPECT_THAT(Kept(), IsEmpty());
    EXPECT_TRUE(fs::is_empty(State() + "/journal"));
    EXPECT_EQ(Kept("closed").size(), 1u);
    KillAndStartAgain();
    Offer();
    EXPECT_THAT(made.messages.shown, IsEmpty());
}

TEST_F(JournalTest, TheCodePageOfTheRunComesWithTheDocument) {
    made.session.codePage = CodePage(1250);
    NewSheet().OpisText.Text = "Świa";
    Look(10);
    KillAndStartAgain();
    made.session.codePage = CodePage(1252);
    made.messages.answers = {Answer::Yes};
    Offer();
    EXPECT_EQ(ActiveDataWindow(made.session).OpisText.Text, "Świa");
    EXPECT_EQ(made.session.codePage.Number(), 1252);
}

TEST_F(JournalTest, ADiskThatFailsIsTheWorksOwnFailureAndTriedAgainInAWhile) {
    NewSheet();
    run->atOnce = false;
    fs::create_directories(folder / "state");
    writeFile(State(), "a file in the way");
    Look(10);
    ASSERT_EQ(run->waiting.size(), 1u);
    EXPECT_THROW(run->waiting[0](), std::exception);
    fs::remove(State());
    run->atOnce = true;
    Look(20);
    EXPECT_EQ(Kept().size(), 1u) << "nothing has changed but the disk";
    const int pieces = run->pieces;
    Look(40);
    EXPECT_EQ(run->pieces, pieces);
}

TEST_F(JournalTest, AfterAFailureTheDiskIsNotTriedAtEveryLook) {
    NewSheet();
    run->atOnce = false;
    fs::create_directories(folder / "state");
    writeFile(State(), "a file in the way");
    for (int second = 10; second < 20; ++second) {
        Look(second);
        for (const auto& piece : run->waiting) EXPECT_THROW(piece(), std::exception);
        run->waiting.clear();
    }
    EXPECT_EQ(run->pieces, 2); // the first, and one more
}

// A window whose document the memory does not hold once more; here its record is missing.
TEST_F(JournalTest, OneDocumentThatCannotBeCopiedCostsTheOthersNothing) {
    NewSheet();
    made.forms.scripts = {[](Form& form) { form.Hide(); }};
    made.session.DialogOutcome = 1;
    made.session.CurrentDistType = 3;
    made.session.commands.Call("MakeMatrix");
    ASSERT_EQ(made.session.Children.size(), 2u);
    made.session.MatrixDocuments.clear();
    NewSheet();
    EXPECT_THROW(Look(10), std::exception);
    EXPECT_EQ(Kept().size(), 2u);
    run->journal.EndCleanly(made.session);
    EXPECT_EQ(Kept().size(), 2u) << "what could not be kept as closed stays for the next start";
    made.session.MatrixDocuments.resize(made.session.MatrixWindows.size());
}

TEST_F(JournalTest, WhatWasLeftStaysUntilThisRunKeepsIt) {
    NewSheet();
    Look(10);
    KillAndStartAgain();
    run->atOnce = false;
    made.messages.answers = {Answer::Yes};
    Offer();
    WorkOnAFullDisk();
    EXPECT_EQ(run->folder.LeftByOtherRuns().size(), 1u);
}

TEST_F(JournalTest, AReopenedDocumentIsKeptBeforeItLeavesTheClosedOnes) {
    CloseChild(made.session, NewSheet());
    run->atOnce = false;
    ReopenClosedDocument(made.session, run->folder, run->journal);
    WorkOnAFullDisk();
    EXPECT_EQ(Kept("closed").size(), 1u);
    KillAndStartAgain();
    ReopenClosedDocument(made.session, run->folder, run->journal); // no look by the clock
    EXPECT_EQ(Kept().size(), 1u);
    EXPECT_THAT(Kept("closed"), IsEmpty());
}

TEST_F(JournalTest, APathThatIsNoLineIsLeftOut) {
    auto& sheet = NewSheet();
    sheet.Caption = "[DATA]: " + folder / "two\nlines.mdt";
    sheet.FilePath = folder / "two\nlines.mdt";
    CloseChild(made.session, sheet);
    const auto closed = run->folder.LastClosed();
    ASSERT_TRUE(closed);
    EXPECT_EQ(closed->Path, "");
    EXPECT_EQ(closed->Caption, "[DATA]: " + folder / "two lines.mdt");
    EXPECT_EQ(closed->CodePageNumber, made.session.codePage.Number());
}

} // namespace
} // namespace dorvan::test
