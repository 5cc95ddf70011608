#include "files/recent_document.h"

#include "files/files_session.h"
#include "session/menus.h"
#include "session/recent_files.h"

#include <utility>

namespace dorvan::test {

class RecentDocuments : public FilesSession {
protected:
    void store(const std::string& path) {
        settings.sections["Recent Files"]["RecentFile1"] = path;
        LoadRecentFiles(session);
    }
};

TEST_F(RecentDocuments, EachKindOpensByTheEndOfItsName) {
    const std::pair<const char*, std::string_view> cases[] = {{"sheet.mdt", DocumentKind::Data},
                                                              {"matrix.mtx", DocumentKind::Matrix},
                                                              {"diagram.dgr", DocumentKind::Diagram}};
    for (const auto& [name, kind] : cases) {
        store(goldenFile(name));
        OpenRecentFile(session, 0);
        EXPECT_EQ(session.ActiveWindow->TypeOfForm, kind);
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(RecentDocuments, CapitalsOpenAsSmallLetters) {
    store(file("SHEET.MDT", golden("sheet.mdt")));
    OpenRecentFile(session, 0);
    EXPECT_EQ(windows(), 1u);
}

TEST_F(RecentDocuments, OnlyTheLastThreeCharactersCount) {
    store(file("sheetmdt", golden("sheet.mdt")));
    OpenRecentFile(session, 0);
    EXPECT_EQ(windows(), 1u);
}

TEST_F(RecentDocuments, AnotherExtensionIsRefused) {
    store(file("sheet.txt", golden("sheet.mdt")));
    OpenRecentFile(session, 0);
    expectOnlyMessage("Error! This file is not acceptable for Dorvan.", MessageIcon::Critical);
}

TEST_F(RecentDocuments, AClickChangesNothingInTheStoreAndFillsTheMenuAgain) {
    const std::string path = goldenFile("sheet.mdt");
    store(folder / "other.mdt");
    settings.sections["Recent Files"]["RecentFile2"] = path;
    LoadRecentFiles(session);
    settings.sections["Recent Files"]["RecentFile3"] = "by another run";
    const auto before = settings.sections;
    OpenRecentFile(session, 1);
    EXPECT_EQ(windows(), 1u);
    EXPECT_EQ(settings.sections, before);
    EXPECT_EQ(RecentFilePath(session, 2), "by another run");
}

TEST_F(RecentDocuments, AFileThatIsGoneIsTheReadersFault) {
    store(folder / "gone.mdt");
    OpenRecentFile(session, 0);
    expectFaultMessage("The file cannot be read: No such file or directory. File: " + (folder / "gone.mdt"));
}

TEST_F(RecentDocuments, ADiagramBeingMadeIsNoHindrance) {
    store(goldenFile("sheet.mdt"));
    session.DiagramBusy = 1;
    OpenRecentFile(session, 0);
    EXPECT_EQ(signals.beeps, 0);
    EXPECT_EQ(windows(), 1u);
}

} // namespace dorvan::test
