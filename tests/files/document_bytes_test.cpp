#include "files/document_bytes.h"

#include "files/data_documents.h"
#include "files/diagram_documents.h"
#include "files/faults.h"
#include "files/files_session.h"
#include "files/matrix_documents.h"

#include <cstdint>
#include <filesystem>
#include <system_error>

namespace dorvan::test {

namespace {

// Plain characters as UTF-16, the low byte first or last.
std::string Utf16(std::string_view ascii, bool lowFirst) {
    std::string bytes;
    for (const char character : ascii) {
        if (lowFirst) bytes += character;
        bytes += '\0';
        if (!lowFirst) bytes += character;
    }
    return bytes;
}

const std::string Utf16Text =
    "The file is text in UTF-16. Save it in the code page windows-1250 or in UTF-8 with a byte order mark";

} // namespace

class DocumentBytes : public FilesSession {
protected:
    std::string loaded(std::string_view bytes) { return LoadDocument(file("f", bytes), CodePage(1250)); }
};

TEST_F(DocumentBytes, APlainFileComesAsItIs) {
    for (const std::string& bytes :
         {std::string(), std::string("D"), golden("sheet.mdt"), golden("older_sheet.mdt"),
          std::string("\xEF\xBB\xBF"), std::string("\xEF\xBB"), std::string(40, '\0')})
        EXPECT_EQ(loaded(bytes), bytes);
}

TEST_F(DocumentBytes, ACurrentFileLosesTheMarkOfUtf8AndComesInTheCodePage) {
    EXPECT_EQ(loaded("\xEF\xBB\xBF"
                     "Dorvan DATA 3.3\r\nŚwia Ж"),
              "Dorvan DATA 3.3\r\n\x8Cwia ?");
}

TEST_F(DocumentBytes, UnderAMarkThatLiesTheBytesStay) {
    EXPECT_EQ(loaded("\xEF\xBB\xBF"
                     "Dorvan DATA 3.3\r\n\x8Cwia"),
              "Dorvan DATA 3.3\r\n\x8Cwia");
}

TEST_F(DocumentBytes, AnOlderFileKeepsBytesThatLookLikeAMark) {
    const std::string older = "\xEF\xBB\xBF" + golden("older_sheet.mdt").substr(3);
    EXPECT_EQ(loaded(older), older);
}

TEST_F(DocumentBytes, Utf16IsRefusedWithItsMarkAndWithout) {
    const std::string text = golden("sheet.mdt");
    for (const std::string& bytes : {"\xFF\xFE" + Utf16(text, true), "\xFE\xFF" + Utf16(text, false),
                                     Utf16(text, true), Utf16(text, false), std::string("\xFF\xFE")})
        EXPECT_EQ(faultOf([&] { loaded(bytes); }), Utf16Text + ". File: f");
}

// Its bytes are only claimed.
TEST_F(DocumentBytes, AFileLargerThanTheMemoryIsRefusedWithoutALook) {
    const std::string path = file("f.mdt", "Dorvan DATA 3.3\r\n");
    std::error_code none;
    std::filesystem::resize_file(path, std::uintmax_t(1) << 42, none);
    if (none) GTEST_SKIP() << "this file system has no holes";
    ReadDataFile(session, path);
    expectFaultMessage("The memory does not hold the file. File: " + path);
}

TEST_F(DocumentBytes, AWindowThatTheMemoryDoesNotHoldLeavesAllElse) {
    using Read = void (*)(Session&, const std::string&);
    const std::vector<std::pair<std::string, Read>> readers = {{"sheet.mdt", ReadDataFile},
                                                               {"matrix.mtx", ReadMatrixFile},
                                                               {"diagram.dgr", ReadDiagramFile},
                                                               {"older_sheet.mdt", ReadOldDataFile},
                                                               {"older_matrix.mtx", ReadOldMatrixFile},
                                                               {"older_diagram.dgr", ReadOldDiagramFile}};
    ReadDataFile(session, goldenFile("sheet.mdt"));
    ChildWindow* const active = session.ActiveWindow;
    for (const auto& [name, read] : readers) {
        messages.shown.clear();
        children.memoryEnds = true;
        const std::string path = goldenFile(name);
        read(session, path);
        EXPECT_EQ(texts(), std::vector<std::string>{"The memory does not hold the file. File: " + path});
        EXPECT_EQ(windows(), 1u) << name;
        EXPECT_EQ(session.ActiveWindow, active) << name;
        EXPECT_EQ(FindFreeDataSlot(session), 2) << name; // the slots are free again
        EXPECT_EQ(FindFreeMatrixSlot(session), 1) << name;
        EXPECT_EQ(FindFreeDiagramSlot(session), 1) << name;
        session.DataStates.at(2).Deleted = true;
        session.MatrixStates.at(1).Deleted = true;
        session.DiagramStates.at(1).Deleted = true;
    }
}

TEST_F(DocumentBytes, EveryReaderRefusesUtf16AndReadsTheMarkOfUtf8Over) {
    using Read = void (*)(Session&, const std::string&);
    const std::vector<std::pair<std::string, Read>> readers = {
        {"sheet.mdt", ReadDataFile}, {"matrix.mtx", ReadMatrixFile}, {"diagram.dgr", ReadDiagramFile}};
    session.codePage = CodePage(1250);
    for (const auto& [name, read] : readers) {
        read(session, file("wide-" + name, "\xFF\xFE" + Utf16(golden(name), true)));
        ASSERT_EQ(messages.shown.size(), 1u) << name; // no word of an older version
        EXPECT_EQ(messages.shown[0].Text, Utf16Text + ". File: " + folder / ("wide-" + name));
        EXPECT_EQ(messages.shown[0].Icon, MessageIcon::Critical);
        messages.shown.clear();
        const std::size_t before = windows();
        read(session, file("marked-" + name, "\xEF\xBB\xBF" + golden(name)));
        EXPECT_EQ(texts(), std::vector<std::string>());
        EXPECT_EQ(windows(), before + 1) << name;
    }
}

} // namespace dorvan::test
