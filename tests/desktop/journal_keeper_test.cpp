#include "desktop/journal_keeper.h"
#include "desktop_test.h"

#include <filesystem>

namespace dorvan::test {
namespace {

std::size_t DocumentsBelow(const std::string& folder) {
    std::size_t count = 0;
    if (std::filesystem::exists(folder))
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
            if (entry.path().extension() == ".mdt") ++count;
    return count;
}

class JournalKeeperTest : public DesktopTest {
protected:
    QTemporaryDir folder;
    std::string state = folder.filePath("state").toStdString();
    JournalKeeper keeper{desktop.session, desktop.dispatch, state};
};

TEST_F(JournalKeeperTest, KeepsADocumentWithinTwoSecondsAndLetsItGoAtACleanEnd) {
    NewSheet(2, 3);
    QTest::qWait(1000);
    QTRY_COMPARE(DocumentsBelow(state + "/journal"), 1u);
    keeper.EndCleanly();
    EXPECT_EQ(DocumentsBelow(state + "/journal"), 0u);
    EXPECT_EQ(DocumentsBelow(state + "/closed"), 1u);
}

// The record of a matrix is missing: as little can be copied as of a document that the memory does not hold
// once more.
TEST_F(JournalKeeperTest, ADocumentThatCannotBeCopiedEndsNothingAndItsWindowCloses) {
    NewSheet(3, 2);
    InDialog([](QDialog& dialog) { dialog.findChild<QPushButton*>("Command2")->click(); });
    Click("mnuAnalysisMatrix");
    ASSERT_EQ(desktop.session.Children.size(), 2u);
    auto& documents = desktop.session.MatrixDocuments;
    const auto size = documents.size();
    documents.clear();
    QTest::qWait(1500);
    QTRY_COMPARE(DocumentsBelow(state + "/journal"), 1u);
    desktop.session.MatrixStates.at(1).Dirty = false;
    Click("mnuFileClose");
    EXPECT_EQ(desktop.session.Children.size(), 1u);
    documents.resize(size);
}

} // namespace
} // namespace dorvan::test
