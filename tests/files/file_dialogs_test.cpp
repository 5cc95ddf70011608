#include "files/file_dialogs.h"
#include "files/files_session.h"

namespace dorvan::test {

class FileDialogs : public FilesSession {};

TEST_F(FileDialogs, AskWithTheProgramsTitleFiltersAndFolder) {
    files.paths = {"a.mtx", "b.dgr"};
    EXPECT_EQ(PickFileToOpen(session, MatrixFileFilters(), " - Select mtx file"), "a.mtx");
    EXPECT_EQ(PickFileToSave(session, DiagramFileSaveFilters(), " - Save diagram As", ""), "b.dgr");
    EXPECT_EQ(files.requests,
              (std::vector<FileRequest>{{"Dorvan - Select mtx file",
                                         {{"mtx file (*.mtx)", "*.mtx"}, {"all (*.*)", "*.*"}},
                                         "",
                                         "program-folder"},
                                        {"Dorvan - Save diagram As",
                                         {{"diagram file (*.dgr)", "*.dgr"}, {"all (*.*)", "*.*"}},
                                         "",
                                         "program-folder"}}));
}

TEST_F(FileDialogs, PassTheExtensionOnAsItStands) {
    files.paths = {"a.mtx"};
    PickFileToSave(session, MatrixFileFilters(), " - Save matrix As", "*.mtx");
    EXPECT_EQ(files.requests[0].Extension, "*.mtx");
}

TEST_F(FileDialogs, GiveAnEmptyPathWhenCancelled) {
    files.paths = {"", ""};
    EXPECT_EQ(PickFileToOpen(session, DataFileFilters(), ""), "");
    EXPECT_EQ(PickFileToSave(session, DataFileFilters(), "", "mdt"), "");
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(FileDialogs, APathHoldsAtMost255Characters) {
    std::string longest;
    for (int i = 0; i < 255; ++i) longest += "ż";
    files.paths = {longest, longest + "x"};
    EXPECT_EQ(PickFileToOpen(session, DataFileFilters(), ""), longest);
    EXPECT_EQ(PickFileToSave(session, DataFileFilters(), "", "mdt"), "");
    EXPECT_EQ(texts(),
              (std::vector<std::string>{"The path is longer than 255 characters: " + longest + "x"}));
}

} // namespace dorvan::test
