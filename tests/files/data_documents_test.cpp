#include "files/data_documents.h"
#include "files/files_session.h"
#include "files/older_bytes.h"
#include "session/children.h"
#include "support/disk_limits.h"

#include <filesystem>

namespace dorvan::test {

namespace fs = std::filesystem;

class DataDocuments : public FilesSession {
protected:
    frmNotePad& window(std::int16_t slot = 1) { return DataWindow(session, slot); }
    bool dirty(std::size_t slot = 1) { return session.DataStates.at(slot).Dirty; }

    // An untitled, changed sheet of one record and one variable with this value.
    frmNotePad& newSheet(const std::string& value = "1.5") {
        session.tables.RecordNames = Names(1, "R");
        session.tables.VariableNames = Names(1, "V");
        session.tables.DataValues = FloatTable(1, 1, 0);
        const std::int16_t slot = session.NewWindowIndex = FindFreeDataSlot(session);
        PutIntoRegistry(session, DocumentKind::Data, std::make_shared<frmNotePad>(session));
        window(slot).Caption = UntitledCaption(DocumentKind::Data, slot);
        window(slot).Present("about");
        window(slot).Grid1.SetText(1, 2, value);
        session.DataStates.at(std::size_t(slot)).Dirty = true;
        ShowChild(session, window(slot));
        return window(slot);
    }
    static std::string sheetBytes(const std::string& value) {
        return "Dorvan DATA 3.3\r\n\r\n[HEADER]\r\nDescription=about\r\nRecCount=1\r\nVarCount=1\r\n\r\n"
               "[RECORD_LABEL]\r\nR\r\n\r\n[VARIABLE_LABEL]\r\nV\r\n\r\n[DATA]\r\n" +
               value + "\r\n";
    }
    static std::vector<FileFilter> filters() { return {{"mdt file (*.mdt)", "*.mdt"}, {"all (*.*)", "*.*"}}; }
};

TEST_F(DataDocuments, ReadingOpensACleanWindow) {
    session.DataStates[1].Dirty = true;
    const std::string path = goldenFile("sheet.mdt");
    ReadDataFile(session, path);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(session.ActiveWindow, &window());
    EXPECT_EQ(window().Tag, "1");
    EXPECT_EQ(window().Index, 1);
    EXPECT_EQ(window().Caption, "[DATA]: " + LowerCase(path));
    EXPECT_EQ(window().FilePath, path);
    EXPECT_EQ(window().OpisText.Text, "Length = 2, width");
    EXPECT_EQ(window().Grid1.Text(2, 1), "Café");
    EXPECT_EQ(window().Grid1.Text(2, 2), "N/A");
    EXPECT_EQ(window().Grid1.Text(2, 3), "1234.568");
    EXPECT_FALSE(dirty());
    EXPECT_FALSE(session.DataStates[1].Deleted);
    EXPECT_TRUE(log.empty());
}

TEST_F(DataDocuments, ANewWindowGetsTheSizeOfNewWindows) {
    ReadDataFile(session, goldenFile("sheet.mdt"));
    EXPECT_EQ(window().Width, static_cast<int>(0.95 * screen.widthTwips));
    EXPECT_EQ(window().Height, static_cast<int>(0.8 * screen.heightTwips));
    EXPECT_EQ(children.log, (std::vector<std::string>{"show " + window().Caption}));
}

TEST_F(DataDocuments, TheCaptionShowsThePathInLowerCase) {
    const std::string path = file("Żółw POTS.mdt", golden("sheet.mdt"));
    ReadDataFile(session, path);
    EXPECT_TRUE(window().Caption.ends_with("/żółw pots.mdt"));
}

TEST_F(DataDocuments, ReadingTellsTheCountsThatItHandsOver) {
    ReadDataFile(session, goldenFile("sheet.mdt"));
    EXPECT_EQ(session.PendingRecCount, 3);
    EXPECT_EQ(session.PendingVarCount, 2);
}

TEST_F(DataDocuments, AnOlderFileOpensAfterARemarkAndCountsAsClean) {
    const std::string path = goldenFile("older_sheet.mdt");
    ReadDataFile(session, path);
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0], (Message{.Text = std::string(OlderVersionText),
                                          .Icon = MessageIcon::Exclamation,
                                          .Title = "Dorvan"}));
    EXPECT_EQ(window().Caption, "[DATA]: " + LowerCase(path));
    EXPECT_EQ(window().OpisText.Text, "Old pots");
    EXPECT_EQ(window().Grid1.Text(0, 2), "Length  ");
    EXPECT_EQ(window().Grid1.Text(2, 1), "Café");
    EXPECT_EQ(window().Grid1.Text(2, 2), "N/A");
    EXPECT_EQ(window().Grid1.Text(2, 3), "1234.568");
    EXPECT_FALSE(dirty());
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST_F(DataDocuments, TheNextSaveOfAnOlderFileWritesTheTextFormatInItsPlace) {
    const std::string path = goldenFile("older_sheet.mdt");
    ReadOldDataFile(session, path);
    SaveData(session);
    EXPECT_TRUE(fileBytes(path).starts_with("Dorvan DATA 3.3\r\n"));
    messages.shown.clear();
    ReadDataFile(session, path);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(window(2).Grid1.Text(3, 1), "A name of  15 c");
}

TEST_F(DataDocuments, TheOlderReaderBeepsWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    ReadOldDataFile(session, goldenFile("older_sheet.mdt"));
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_EQ(windows(), 0u);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(DataDocuments, ACurrentFileIsReadWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    ReadDataFile(session, goldenFile("sheet.mdt"));
    EXPECT_EQ(signals.beeps, 0);
    EXPECT_EQ(windows(), 1u);
}

TEST_F(DataDocuments, AWrongSectionGivesItsMessageAndNoWindow) {
    for (const std::string section : {"HEADER", "RECORD_LABEL", "VARIABLE_LABEL", "DATA"}) {
        messages.shown.clear();
        const std::string path = file("f.mdt", with(golden("sheet.mdt"), "[" + section + "]", "[]"));
        ReadDataFile(session, path);
        expectSectionMessage("Error in " + section + " section of file: " + path);
    }
    EXPECT_TRUE(session.DataStates[1].Deleted);
}

TEST_F(DataDocuments, OtherFaultsGiveOneMessageThatNamesLineAndFile) {
    const std::string path = file("f.mdt", with(golden("sheet.mdt"), "1234.568", "abc"));
    ReadDataFile(session, path);
    expectFaultMessage("Line 19: \"abc\" is not a number. File: " + path);
    EXPECT_TRUE(session.DataStates[1].Deleted);
}

TEST_F(DataDocuments, AFaultKeepsTheWorkingArraysReadSoFar) {
    session.tables.VariableNames = Names(7, "old");
    ReadDataFile(session, file("f.mdt", with(golden("sheet.mdt"), "[VARIABLE_LABEL]", "x")));
    EXPECT_EQ(session.tables.RecordNames.Cells(), (std::vector<std::string>{"First", "Café", "Third one"}));
    EXPECT_EQ(session.tables.VariableNames.Count(), 7);
}

TEST_F(DataDocuments, FilesThatCannotBeReadGiveOneMessage) {
    ReadDataFile(session, folder / "none.mdt");
    expectFaultMessage("The file cannot be read: No such file or directory. File: " + folder / "none.mdt");
    messages.shown.clear();
    ReadDataFile(session, folder.path());
    expectFaultMessage("The file cannot be read: Is a directory. File: " + folder.path());
    messages.shown.clear();
    const std::string empty = file("empty.mdt", "");
    ReadDataFile(session, empty);
    expectFaultMessage("Line 1: the line is missing, the file ends before it. File: " + empty);
}

TEST_F(DataDocuments, OddBytesGiveMessagesAndNoWindow) {
    const std::string mark = "\xEF\xBB\xBF";
    for (const std::string& bytes :
         {mark + golden("sheet.mdt").substr(1), std::string(100, '\0'), std::string("\r\n"),
          std::string(3000, '\xFF'), std::string("Dorvan DATA")}) {
        messages.shown.clear();
        ReadDataFile(session, file("f.mdt", bytes));
        EXPECT_EQ(faultCount(), 1u);
        EXPECT_EQ(windows(), 0u);
    }
}

TEST_F(DataDocuments, AFileCutOffAtAnyByteReadsOrGivesOneFault) {
    for (const char* name : {"sheet.mdt", "sheet_comma.mdt"}) {
        const std::string whole = golden(name);
        const std::string path = file("cut.mdt", whole);
        for (std::size_t size = whole.size(); size-- > 0;) {
            std::filesystem::resize_file(path, size);
            messages.shown.clear();
            const std::size_t before = windows();
            ReadDataFile(session, path);
            const bool reads = size > lastFieldOf(whole);
            EXPECT_EQ(windows() - before, reads ? 1u : 0u) << size;
            EXPECT_EQ(faultCount(), reads ? 0u : 1u) << size;
            EXPECT_EQ(messages.shown.size() - faultCount(), size > 0 && size < 11 ? 1u : 0u) << size;
        }
    }
}

TEST_F(DataDocuments, AnOlderFileCutOffAtAnyByteGivesOneFault) {
    const std::string whole = golden("older_sheet.mdt");
    const std::string path = file("cut.mdt", whole);
    for (std::size_t size = whole.size(); size-- > 0;) {
        std::filesystem::resize_file(path, size);
        messages.shown.clear();
        ReadOldDataFile(session, path);
        EXPECT_EQ(windows(), 0u) << size;
        EXPECT_EQ(messages.shown.size(), 1u) << size;
    }
    EXPECT_TRUE(session.DataStates[1].Deleted);
}

TEST_F(DataDocuments, OpenAsksReadsAndThenUpdatesTheRecentFiles) {
    const std::string path = goldenFile("sheet.mdt");
    files.paths = {path};
    OpenDataFile(session);
    EXPECT_EQ(files.requests,
              (std::vector<FileRequest>{{"Dorvan - Select mdt file", filters(), "", "program-folder"}}));
    EXPECT_EQ(log, (std::vector<std::string>{"recent " + path + " 1"})); // the window was there before
}

TEST_F(DataDocuments, OpenPutsAPathOnTheListWhateverTheReaderMadeOfIt) {
    files.paths = {folder / "none.mdt"};
    OpenDataFile(session);
    EXPECT_EQ(log, (std::vector<std::string>{"recent " + folder / "none.mdt" + " 1"})); // after the message
}

TEST_F(DataDocuments, OpenCancelledDoesNothing) {
    files.paths = {""};
    OpenDataFile(session);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(windows(), 0u);
}

TEST_F(DataDocuments, CommandsOnlyBeepWhileADiagramIsBeingMade) {
    newSheet();
    session.DiagramBusy = 1;
    OpenDataFile(session);
    SaveData(session);
    SaveDataAs(session);
    EXPECT_EQ(signals.beeps, 3);
    EXPECT_TRUE(files.requests.empty());
    EXPECT_TRUE(dirty());
}

TEST_F(DataDocuments, SaveOfAnUntitledSheetAsksAndSetsTheCaption) {
    frmNotePad& sheet = newSheet();
    files.paths = {folder / "New.mdt"};
    SaveData(session);
    EXPECT_EQ(files.requests,
              (std::vector<FileRequest>{{"Dorvan - Save mdt file", filters(), "mdt", "program-folder"}}));
    EXPECT_EQ(fileBytes(folder / "New.mdt"), sheetBytes("1.500"));
    EXPECT_EQ(sheet.Caption, "[DATA]: " + LowerCase(folder / "New.mdt"));
    EXPECT_FALSE(dirty());
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST_F(DataDocuments, SaveCancelledLeavesTheSheetAsItIs) {
    frmNotePad& sheet = newSheet();
    files.paths = {""};
    SaveData(session);
    EXPECT_EQ(sheet.Caption, "[DATA]: Untitled:1");
    EXPECT_TRUE(dirty());
}

TEST_F(DataDocuments, SaveOfASheetWithAFileDoesNotAsk) {
    frmNotePad& sheet = newSheet();
    sheet.Caption = "[DATA]: " + folder / "sheet.mdt";
    SaveData(session);
    EXPECT_EQ(fileBytes(folder / "sheet.mdt"), sheetBytes("1.500"));
    EXPECT_FALSE(dirty());
}

TEST_F(DataDocuments, SaveGoesToTheFileThatWasOpenedWhateverTheCaseOfItsName) {
    const std::string path = file("Sheet.MDT", golden("sheet.mdt"));
    ReadDataFile(session, path);
    window().Grid1.SetText(1, 2, "7");
    SaveData(session);
    EXPECT_NE(fileBytes(path).find("7.000;-2.500"), std::string::npos);
    EXPECT_FALSE(fs::exists(folder / "sheet.mdt"));
    EXPECT_EQ(window().Caption, "[DATA]: " + LowerCase(path));
    EXPECT_EQ(window().FilePath, path);
}

TEST_F(DataDocuments, TheLowerCaseOfACaptionHidesThatAFileIsNamedUntitled) {
    const std::string path = file("Untitled.mdt", golden("sheet.mdt"));
    ReadDataFile(session, path);
    window().Grid1.SetText(1, 2, "7");
    SaveData(session);
    EXPECT_TRUE(files.requests.empty());
    EXPECT_NE(fileBytes(path).find("7.000;"), std::string::npos);
}

TEST_F(DataDocuments, ACaptionWithTheWordUntitledHasNoFile) {
    newSheet().Caption = "[DATA]: /home/user/Untitled sheet.mdt";
    files.paths = {""};
    SaveData(session);
    EXPECT_EQ(files.requests.size(), 1u);
}

TEST_F(DataDocuments, SaveAsLeavesTheCaptionAndUpdatesTheRecentFiles) {
    frmNotePad& sheet = newSheet();
    files.paths = {folder / "Copy.mdt"};
    SaveDataAs(session);
    EXPECT_EQ(files.requests,
              (std::vector<FileRequest>{{"Dorvan - Save mdt file as", filters(), "mdt", "program-folder"}}));
    EXPECT_EQ(fileBytes(folder / "Copy.mdt"), sheetBytes("1.500"));
    EXPECT_EQ(sheet.Caption, "[DATA]: Untitled:1");
    EXPECT_FALSE(dirty());
    EXPECT_EQ(log, (std::vector<std::string>{"recent " + folder / "Copy.mdt" + " 1"}));

    files.paths = {""};
    SaveData(session); // asks again
    EXPECT_EQ(files.requests.size(), 2u);
}

TEST_F(DataDocuments, SaveAsWritesBeforeItUpdatesTheRecentFiles) {
    newSheet();
    std::string bytesThen;
    settings.onWrite = [&](const std::string&, const std::string& path) { bytesThen = fileBytes(path); };
    files.paths = {folder / "Copy.mdt"};
    SaveDataAs(session);
    EXPECT_EQ(bytesThen, sheetBytes("1.500"));
}

TEST_F(DataDocuments, OnlyAFlagOfOneIsBusy) {
    newSheet();
    for (const std::int32_t flag : {2, -1}) {
        session.DiagramBusy = flag;
        files.paths = {folder / "f.mdt"};
        SaveDataAs(session);
        EXPECT_EQ(signals.beeps, 0);
    }
}

TEST_F(DataDocuments, AfterSaveAsTheNextSaveGoesToTheFormerFile) {
    const std::string path = goldenFile("sheet.mdt");
    ReadDataFile(session, path);
    files.paths = {folder / "copy.mdt"};
    SaveDataAs(session);
    window().Grid1.SetText(1, 2, "7");
    SaveData(session);
    EXPECT_NE(fileBytes(path).find("7.000;"), std::string::npos);
    EXPECT_EQ(fileBytes(folder / "copy.mdt"), golden("sheet.mdt"));
}

TEST_F(DataDocuments, SaveAsCancelledDoesNothing) {
    newSheet();
    files.paths = {""};
    SaveDataAs(session);
    EXPECT_TRUE(dirty());
    EXPECT_TRUE(log.empty());
}

TEST_F(DataDocuments, ASaveThatCannotWriteIsSilentAndKeepsTheFileWhole) {
    const std::string path = goldenFile("sheet.mdt");
    frmNotePad& sheet = newSheet(std::string(10000, '1'));
    sheet.Grid1.SetText(1, 1, std::string(10000, 'x'));
    {
        const FileSizeLimit limit(4096);
        EXPECT_FALSE(WriteDataFile(session, path));
    }
    EXPECT_EQ(fileBytes(path), golden("sheet.mdt"));
    EXPECT_FALSE(dirty());
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(signals.beeps, 0);
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST_F(DataDocuments, ASaveIntoNoFolderIsSilentAndSetsTheCaption) {
    frmNotePad& sheet = newSheet();
    files.paths = {folder / "none/f.mdt"};
    SaveData(session);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_FALSE(dirty());
    EXPECT_EQ(sheet.Caption, "[DATA]: " + LowerCase(folder / "none/f.mdt"));
    EXPECT_FALSE(fs::exists(folder / "none"));
}

TEST_F(DataDocuments, WritingTellsWhetherTheFileIsThere) {
    newSheet();
    EXPECT_TRUE(WriteDataFile(session, folder / "f.mdt"));
    EXPECT_FALSE(WriteDataFile(session, folder.path()));
}

TEST_F(DataDocuments, WritingUsesTheSessionsSeparatorAndCodePage) {
    session.DecimalSeparator = ',';
    session.codePage = CodePage(1250);
    ReadDataFile(session, goldenFile("sheet_comma.mdt"));
    EXPECT_TRUE(WriteDataFile(session, folder / "f.mdt"));
    EXPECT_EQ(fileBytes(folder / "f.mdt"), golden("sheet_comma.mdt"));
}

TEST_F(DataDocuments, ASheetSavedWithEmptyCellsOpensWithThemOnAYes) {
    frmNotePad& sheet = newSheet();
    sheet.Grid1.SetText(1, 2, "");
    ASSERT_TRUE(WriteDataFile(session, folder / "f.mdt"));
    const std::string saved = fileBytes(folder / "f.mdt");
    messages.answers = {Answer::Yes};
    ReadDataFile(session, folder / "f.mdt");
    ASSERT_EQ(windows(), 2u);
    EXPECT_EQ(ActiveDataWindow(session).Grid1.Text(1, 2), "");
    ASSERT_EQ(messages.shown.size(), 1u);
    const auto line = std::count(saved.begin(), saved.end(), '\n');
    EXPECT_EQ(
        messages.shown[0],
        (Message{.Text = fmt::format("Line {}: \"\" is not a number. File: {}\r\nOpen the sheet with its "
                                     "empty fields as empty cells?",
                                     line, folder / "f.mdt"),
                 .Icon = MessageIcon::Exclamation,
                 .Buttons = MessageButtons::YesNo}));
    ASSERT_TRUE(WriteDataFile(session, folder / "again.mdt"));
    EXPECT_EQ(fileBytes(folder / "again.mdt"), saved);
}

TEST_F(DataDocuments, ASheetWithEmptyFieldsStaysClosedOnANo) {
    newSheet().Grid1.SetText(1, 2, "");
    ASSERT_TRUE(WriteDataFile(session, folder / "f.mdt"));
    messages.answers = {Answer::No};
    ReadDataFile(session, folder / "f.mdt");
    EXPECT_EQ(windows(), 1u);
    EXPECT_EQ(messages.shown.size(), 1u);
}

TEST_F(DataDocuments, AFaultBehindAnEmptyFieldIsNoQuestion) {
    const std::string bytes = with(with(golden("sheet.mdt"), "N/A", ""), "1234.568", "x");
    ReadDataFile(session, file("f.mdt", bytes));
    expectFaultMessage("Line 19: \"\" is not a number. File: " + folder / "f.mdt");
}

TEST_F(DataDocuments, AFreeSlotIsUsedAgain) {
    const std::string path = goldenFile("sheet.mdt");
    ReadDataFile(session, path);
    ReadDataFile(session, path);
    EXPECT_EQ(window(2).Index, 2);
    CloseChild(session, window(1));
    ReadDataFile(session, path);
    EXPECT_EQ(session.DataWindows.size(), 3u);
    EXPECT_EQ(window(1).Index, 1);
}

} // namespace dorvan::test
