#include "distance/frmMacierz.h"
#include "files/files_session.h"
#include "files/matrix_documents.h"
#include "session/children.h"
#include "support/disk_limits.h"
#include "support/expect_failure.h"

#include <filesystem>

namespace dorvan::test {

class MatrixDocuments : public FilesSession {
protected:
    frmMacierz& window(std::int16_t slot = 1) { return MatrixWindow(session, slot); }
    DistanceMatrix& document(std::size_t slot = 1) { return session.MatrixDocuments.at(slot); }
    bool free(std::size_t slot = 1) { return session.MatrixStates.at(slot).Deleted; }
};

TEST_F(MatrixDocuments, ReadingOpensACleanWindow) {
    const std::string path = file("Matrix.MTX", golden("matrix.mtx"));
    ReadMatrixFile(session, path);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(session.ActiveWindow, &window());
    EXPECT_EQ(window().Tag, "1");
    EXPECT_EQ(window().Caption, "[MATRIX]: " + path);
    EXPECT_EQ(window().BottomText.Text, "as it stands");
    EXPECT_EQ(window().Siatka.Text(1, 4), "12345.680");
    EXPECT_EQ(document().Size, 3);
    EXPECT_EQ(document().Names(2), "Café");
    EXPECT_EQ(document().Cells(1, 3), "12345.68");
    EXPECT_FALSE(session.MatrixStates[1].Dirty);
    EXPECT_EQ(window().Width, static_cast<int>(0.95 * screen.widthTwips));
    EXPECT_TRUE(log.empty());
}

TEST_F(MatrixDocuments, AnOlderFileOpensAfterARemarkAndCountsAsChanged) {
    const std::string path = goldenFile("older_matrix.mtx");
    ReadMatrixFile(session, path);
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0], (Message{.Text = std::string(OlderVersionText),
                                          .Icon = MessageIcon::Exclamation,
                                          .Title = "Dorvan"}));
    EXPECT_EQ(window().Caption, "[MATRIX]: " + path);
    EXPECT_EQ(window().BottomText.Text, "Old pots");
    EXPECT_EQ(window().Siatka.Text(1, 3), "0.123");
    EXPECT_EQ(document().Cells(1, 2), "0.1234567");
    EXPECT_TRUE(session.MatrixStates[1].Dirty);
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST_F(MatrixDocuments, AFaultOfTheHeaderTakesNoSlot) {
    const std::string path = file("f.mtx", with(golden("matrix.mtx"), "[HEADER]", "[header]"));
    ReadMatrixFile(session, path);
    expectSectionMessage("Error in HEADER section of file: " + path);
    EXPECT_TRUE(free());
    messages.shown.clear();
    ReadMatrixFile(session, file("f.mtx", with(golden("matrix.mtx"), "RecCount=3", "RecCount=x")));
    expectFaultMessage("Line 5: RecCount \"x\" is not a number. File: " + path);
    EXPECT_TRUE(free());
}

TEST_F(MatrixDocuments, AWrongSectionBehindTheHeaderLeavesTheSlotInUse) {
    std::size_t slot = 1;
    for (const std::string section : {"RECORD_LABEL", "MATRIX"}) {
        messages.shown.clear();
        const std::string path = file("f.mtx", with(golden("matrix.mtx"), "[" + section + "]", "x"));
        ReadMatrixFile(session, path);
        expectSectionMessage("Error in " + section + " section of file: " + path);
        EXPECT_FALSE(free(slot));
        EXPECT_EQ(session.MatrixWindows.at(slot), nullptr);
        EXPECT_EQ(document(slot).Size, 3);
        ++slot;
    }
    messages.shown.clear();
    ReadMatrixFile(session, goldenFile("matrix.mtx"));
    EXPECT_EQ(window(3).Index, 3);
}

TEST_F(MatrixDocuments, OtherFaultsBehindTheHeaderLeaveTheSlotInUseToo) {
    const std::string path = file("f.mtx", with(golden("matrix.mtx"), "2.500;0.000", "2.500"));
    ReadMatrixFile(session, path);
    expectFaultMessage("Line 15: 2 fields stand where 3 are needed. File: " + path);
    EXPECT_FALSE(free());
    EXPECT_EQ(document().Cells(3, 2), "2.5");
    messages.shown.clear();
    ReadMatrixFile(session, file("f.mtx", with(golden("matrix.mtx"), "RecCount=3", "RecCount=0")));
    expectFaultMessage("Line 5: the count 0 is below 1. File: " + path);
    EXPECT_FALSE(free(2));
}

TEST_F(MatrixDocuments, AFaultOfTheOlderFormatTakesNoSlot) {
    const std::string path = file("f.mtx", "abc");
    ReadOldMatrixFile(session, path);
    expectFaultMessage("Byte 4: the file ends where 50 bytes at 1 are needed. File: " + path);
    EXPECT_TRUE(free());
}

TEST_F(MatrixDocuments, FilesThatCannotBeReadGiveOneMessage) {
    ReadMatrixFile(session, folder / "none.mtx");
    expectFaultMessage("The file cannot be read: No such file or directory. File: " + folder / "none.mtx");
    messages.shown.clear();
    ReadOldMatrixFile(session, folder.path());
    expectFaultMessage("The file cannot be read: Is a directory. File: " + folder.path());
}

TEST_F(MatrixDocuments, AFileCutOffAtAnyByteReadsOrGivesOneFault) {
    const std::string whole = golden("matrix.mtx");
    const std::string path = file("cut.mtx", whole);
    for (std::size_t size = whole.size(); size-- > 0;) {
        std::filesystem::resize_file(path, size);
        messages.shown.clear();
        const std::size_t before = windows();
        ReadMatrixFile(session, path);
        const bool reads = size > lastFieldOf(whole);
        EXPECT_EQ(windows() - before, reads ? 1u : 0u) << size;
        EXPECT_EQ(faultCount(), reads ? 0u : 1u) << size;
        EXPECT_EQ(messages.shown.size() - faultCount(), size > 0 && size < 13 ? 1u : 0u) << size;
    }
}

TEST_F(MatrixDocuments, AnOlderFileCutOffAtAnyByteGivesOneFault) {
    const std::string whole = golden("older_matrix.mtx");
    const std::string path = file("cut.mtx", whole);
    for (std::size_t size = whole.size(); size-- > 0;) {
        std::filesystem::resize_file(path, size);
        messages.shown.clear();
        ReadOldMatrixFile(session, path);
        EXPECT_EQ(windows(), 0u) << size;
        EXPECT_EQ(messages.shown.size(), 1u) << size;
    }
    EXPECT_TRUE(free());
}

TEST_F(MatrixDocuments, OpenLetsEventsRunAndUpdatesTheRecentFilesBeforeItReads) {
    const std::string path = folder / "none.mtx";
    files.paths = {path};
    events.onRun = [this](int) { log.push_back("events"); };
    OpenMatrixFile(session);
    EXPECT_EQ(files.requests,
              (std::vector<FileRequest>{{"Dorvan - Select mtx file",
                                         {{"mtx file (*.mtx)", "*.mtx"}, {"all (*.*)", "*.*"}},
                                         "",
                                         "program-folder"}}));
    EXPECT_EQ(log, (std::vector<std::string>{"events", "recent " + path + " 0"}));
    EXPECT_EQ(messages.shown.size(), 1u);
}

TEST_F(MatrixDocuments, OpenCancelledDoesNothing) {
    files.paths = {""};
    OpenMatrixFile(session);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(events.runs, 0);
}

TEST_F(MatrixDocuments, OpenOnlyBeepsWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    OpenMatrixFile(session);
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_TRUE(files.requests.empty());
}

TEST_F(MatrixDocuments, TheOlderReaderDoesNotLookWhetherADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    ReadOldMatrixFile(session, goldenFile("older_matrix.mtx"));
    EXPECT_EQ(signals.beeps, 0);
    EXPECT_EQ(windows(), 1u);
}

TEST_F(MatrixDocuments, WhatIsReadIsWrittenAgain) {
    session.DecimalSeparator = ',';
    session.codePage = CodePage(1250);
    ReadMatrixFile(session, goldenFile("matrix_comma.mtx"));
    WriteMatrixFile(session, folder / "f.mtx", document(), window().BottomText.Text);
    EXPECT_EQ(fileBytes(folder / "f.mtx"), golden("matrix_comma.mtx"));
}

TEST_F(MatrixDocuments, AWriteThatCannotFinishEndsTheRunAndKeepsTheFileWhole) {
    const std::string path = goldenFile("matrix.mtx");
    ReadMatrixFile(session, path);
    const std::string description(10000, 'x');
    signals.cursors.clear();
    {
        const FileSizeLimit limit(4096);
        EXPECT_FAILURE(Failure::DiskFull, WriteMatrixFile(session, path, document(), description));
    }
    EXPECT_EQ(fileBytes(path), golden("matrix.mtx"));
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
    EXPECT_FAILURE(Failure::PathNotFound, WriteMatrixFile(session, folder / "none/f.mtx", document(), ""));
    EXPECT_FAILURE(Failure::PathFileAccessError, WriteMatrixFile(session, folder.path(), document(), ""));
    std::filesystem::create_symlink("/dev/full", folder / "full");
    EXPECT_FAILURE(Failure::PathFileAccessError, WriteMatrixFile(session, folder / "full", document(), ""));
}

TEST_F(MatrixDocuments, WritingTouchesNeitherTheFlagNorTheRecentFiles) {
    ReadMatrixFile(session, goldenFile("matrix.mtx"));
    session.MatrixStates[1].Dirty = true;
    WriteMatrixFile(session, folder / "f.mtx", document(), "");
    EXPECT_TRUE(session.MatrixStates[1].Dirty);
    EXPECT_TRUE(log.empty());
}

} // namespace dorvan::test
