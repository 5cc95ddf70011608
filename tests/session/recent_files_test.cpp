#include "session/recent_files.h"

#include "session/menus.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

using Texts = std::vector<std::string>;

struct RecentFileList : ::testing::Test, TestSession {
    std::map<std::string, std::string>& Store() { return settings.sections["Recent Files"]; }

    // The captions of the items that show.
    Texts Shown() const {
        Texts captions;
        for (std::int16_t index = 0; index < RecentFileItems; ++index)
            if (session.mainWindow.MenuShown(RecentFileItem(index)))
                captions.push_back(RecentFilePath(session, index));
        return captions;
    }
};

TEST_F(RecentFileList, AnEmptyStoreShowsNothing) {
    LoadRecentFiles(session);
    EXPECT_EQ(Shown(), Texts{});
}

TEST_F(RecentFileList, TheNewestTakesThePlaceOfTheSeparator) {
    Store() = {{"RecentFile1", "a.mdt"}, {"RecentFile2", "b.mtx"}};
    LoadRecentFiles(session);
    EXPECT_EQ(Shown(), (Texts{"a.mdt", "b.mtx"}));
    EXPECT_EQ(RecentFilePath(session, 0), "a.mdt");
    EXPECT_EQ(RecentFilePath(session, 2), "RecentFile2");
}

TEST_F(RecentFileList, AFullListLeavesTheFifthItemHidden) {
    Store() = {{"RecentFile1", "a"}, {"RecentFile2", "b"}, {"RecentFile3", "c"}, {"RecentFile4", "d"}};
    LoadRecentFiles(session);
    EXPECT_EQ(Shown(), (Texts{"a", "b", "c", "d"}));
    EXPECT_FALSE(session.mainWindow.MenuShown(RecentFileItem(4)));
}

TEST_F(RecentFileList, WithoutANewestTheMenuStaysAsItIs) {
    Store() = {{"RecentFile2", "b"}};
    LoadRecentFiles(session);
    EXPECT_EQ(Shown(), Texts{});
    Store()["RecentFile1"] = "";
    LoadRecentFiles(session);
    EXPECT_EQ(Shown(), Texts{});
}

TEST_F(RecentFileList, AnEmptyValueCountsAsMissing) {
    Store() = {{"RecentFile1", "a"}, {"RecentFile2", ""}, {"RecentFile3", "c"}};
    LoadRecentFiles(session);
    EXPECT_EQ(Shown(), (Texts{"a", "c"}));
}

TEST_F(RecentFileList, ForeignValuesBeyondTheItemsAreNotShown) {
    for (int number = 1; number <= 9; ++number) Store()["RecentFile" + std::to_string(number)] = "x";
    LoadRecentFiles(session);
    EXPECT_EQ(Shown().size(), 5u);
}

TEST_F(RecentFileList, TheListNeverGetsShorterWithinARun) {
    Store() = {{"RecentFile1", "a"}, {"RecentFile2", "b"}};
    LoadRecentFiles(session);
    Store() = {{"RecentFile1", "c"}};
    LoadRecentFiles(session);
    EXPECT_EQ(Shown(), (Texts{"c", "b"}));
}

TEST_F(RecentFileList, ThePathsMoveDownAndTheFourthFallsOff) {
    for (const char* path : {"a", "b", "c", "d", "e"}) AddRecentFile(session, path);
    EXPECT_EQ(Store(),
              (std::map<std::string, std::string>{
                  {"RecentFile1", "e"}, {"RecentFile2", "d"}, {"RecentFile3", "c"}, {"RecentFile4", "b"}}));
}

TEST_F(RecentFileList, AnEmptyEntryIsNotMovedDown) {
    Store() = {{"RecentFile1", "a"}, {"RecentFile2", ""}, {"RecentFile3", "c"}, {"RecentFile4", "d"}};
    AddRecentFile(session, "n");
    EXPECT_EQ(Store(),
              (std::map<std::string, std::string>{
                  {"RecentFile1", "n"}, {"RecentFile2", "a"}, {"RecentFile3", "c"}, {"RecentFile4", "c"}}));
}

TEST_F(RecentFileList, ARecentFileIsOneOfTheItemsFromOneOn) {
    Store() = {{"RecentFile1", "a"}, {"RecentFile2", "b"}, {"RecentFile3", "c"}, {"RecentFile4", "d"}};
    LoadRecentFiles(session);
    EXPECT_FALSE(IsRecentFile(session, "a")) << "the newest stands in item 0";
    EXPECT_TRUE(IsRecentFile(session, "b"));
    EXPECT_TRUE(IsRecentFile(session, "d"));
    EXPECT_FALSE(IsRecentFile(session, "B")) << "exactly";
    EXPECT_FALSE(IsRecentFile(session, "x"));
}

TEST_F(RecentFileList, UpdatingAddsOnlyWhatIsNotRecognised) {
    for (const char* path : {"a", "b", "c"}) UpdateRecentFiles(session, path);
    EXPECT_EQ(Shown(), (Texts{"c", "b", "a"}));
    UpdateRecentFiles(session, "b");
    EXPECT_EQ(Shown(), (Texts{"c", "b", "a"})) << "a known path does not move to the top";
    UpdateRecentFiles(session, "c");
    EXPECT_EQ(Shown(), (Texts{"c", "c", "b", "a"})) << "the newest stands in two places";
    UpdateRecentFiles(session, "c");
    EXPECT_EQ(Shown(), (Texts{"c", "c", "b", "a"})) << "and in item 1 it is recognised";
}

TEST_F(RecentFileList, FiveOpenedFilesLeaveTheLastFour) {
    for (const char* path : {"a", "b", "c", "d", "e"}) UpdateRecentFiles(session, path);
    EXPECT_EQ(Shown(), (Texts{"e", "d", "c", "b"}));
}

TEST_F(RecentFileList, AreLoadedAtTheStart) {
    TestPlatform other;
    other.settings.sections["Recent Files"] = {{"RecentFile1", "a.mdt"}};
    Session started(other.platform);
    StartSession(started, 1, "folder");
    EXPECT_TRUE(started.mainWindow.MenuShown(RecentFileItem(0)));
    EXPECT_EQ(RecentFilePath(started, 0), "a.mdt");
}

} // namespace
} // namespace dorvan::test
