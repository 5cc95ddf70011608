#include "files/diagram_documents.h"
#include "files/diagram_file.h"
#include "files/files_session.h"
#include "files/older_bytes.h"
#include "session/children.h"
#include "support/disk_limits.h"
#include "view/frmDiagram.h"

#include <cmath>
#include <filesystem>
#include <limits>

namespace dorvan::test {

class DiagramDocuments : public FilesSession {
protected:
    frmDiagram& window(std::int16_t slot = 1) { return DiagramWindow(session, slot); }
    DiagramDocument& document(std::size_t slot = 1) { return session.DiagramDocuments.at(slot); }
    bool free(std::size_t slot = 1) { return session.DiagramStates.at(slot).Deleted; }
};

TEST_F(DiagramDocuments, ReadingOpensACleanWindow) {
    const std::string path = file("Diagram.DGR", golden("diagram.dgr"));
    ReadDiagramFile(session, path);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(session.ActiveWindow, &window());
    EXPECT_EQ(window().Tag, "1");
    EXPECT_EQ(window().Caption, "[DIAGRAM]: " + path);
    EXPECT_EQ(window().BottomText.Text, "Pots; bowls; jugs");
    EXPECT_EQ(window().Siatka.Text(1, 1), "Third one");
    EXPECT_FALSE(session.DiagramStates[1].Dirty);
    EXPECT_EQ(window().Width, static_cast<int>(0.95 * screen.widthTwips));
    EXPECT_TRUE(log.empty());
}

TEST_F(DiagramDocuments, ReadingFillsTheWholeDocument) {
    ReadDiagramFile(session, goldenFile("diagram.dgr"));
    EXPECT_EQ(document().RecCount, 3);
    EXPECT_EQ(document().VarCount, 2);
    EXPECT_EQ(document().DistType, 1);
    EXPECT_EQ(document().DiagType, 2);
    EXPECT_FALSE(document().NoData);
    EXPECT_EQ(document().SectionLimits.Cells(), (std::vector<float>{0.5f, 1.5f, 2.5f, 3.5f}));
    EXPECT_EQ(document().Matrix(1, 3), 12345.678f);
    EXPECT_EQ(document().Data(2, 1), NaValue);
    EXPECT_EQ(document().RecordNames(1), "Third one");
    EXPECT_EQ(document().VariableNames(2), "Width");
    EXPECT_EQ(document().RecordHasNA.Cells(), (std::vector<bool>{false, true, false}));
    EXPECT_EQ(document().Classes.Cells(), (std::vector<std::int16_t>{5, 5, 1, 5, 5, 2, 1, 2, 5}));
    EXPECT_TRUE(session.tables.DataHasNA);
}

TEST_F(DiagramDocuments, ReadingADiagramWithoutData) {
    session.tables.VariableNames = Names(9);
    ReadDiagramFile(session, goldenFile("diagram_without_data.dgr"));
    EXPECT_TRUE(document().NoData);
    EXPECT_EQ(document().VarCount, 0);
    EXPECT_EQ(document().Par_P, 3);
    EXPECT_EQ(document().Par_R, 4);
    EXPECT_EQ(document().DiagType, 3);
    EXPECT_EQ(document().VariableNames.Count(), 0);
    EXPECT_EQ(document().Data.Rows(), 0);
    EXPECT_EQ(document().RecordHasNA, Flags(2, false));
}

TEST_F(DiagramDocuments, AnotherTypeThanZeroOrOneIsADocumentWithoutDataToo) {
    for (const int type : {2, -1, -7}) {
        const std::string bytes =
            with(golden("diagram_without_data.dgr"), "Type=1\r\nDesc", fmt::format("Type={}\r\nDesc", type));
        ReadDiagramFile(session, file("f.dgr", bytes));
        const auto& read = session.DiagramDocuments.back();
        EXPECT_TRUE(read.NoData) << type;
        EXPECT_EQ(ComposeDiagramFile(read, "", PointText()).find("Type=1\r\n"),
                  std::string_view("Dorvan DIAGRAM 3.3\r\n\r\n[HEADER]\r\n").size());
    }
}

TEST_F(DiagramDocuments, ReadingLeavesTheAnalysisOptions) {
    ReadDiagramFile(session, goldenFile("diagram_without_data.dgr"));
    EXPECT_EQ(session.CurrentDistType, 1);
    EXPECT_EQ(session.CurrentDiagType, 2);
    EXPECT_EQ(session.Par_P, 0);
    EXPECT_EQ(session.SectionLimits.Count(), 0);
}

TEST_F(DiagramDocuments, AnOlderFileOpensAfterARemarkAndCountsAsChanged) {
    session.CurrentDiagType = 3;
    session.Par_P = 7;
    session.Par_R = 8;
    const std::string path = goldenFile("older_diagram.dgr");
    ReadDiagramFile(session, path);
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0], (Message{.Text = std::string(OlderVersionText),
                                          .Icon = MessageIcon::Exclamation,
                                          .Title = "Dorvan"}));
    EXPECT_EQ(window().Caption, "[DIAGRAM]: " + path);
    EXPECT_EQ(window().BottomText.Text, "Old, pots");
    EXPECT_TRUE(session.DiagramStates[1].Dirty);
    EXPECT_EQ(document().DiagType, 3);
    EXPECT_EQ(document().DistType, 1);
    EXPECT_EQ(document().Par_P, 7);
    EXPECT_EQ(document().Par_R, 8);
    EXPECT_FALSE(document().NoData);
    EXPECT_EQ(document().Classes.Cells(), (std::vector<std::int16_t>{5, 1, 4, 1, 5, 1, 4, 1, 5}));
    EXPECT_EQ(session.PendingRecCount, 3);
    EXPECT_EQ(session.PendingVarCount, 2);
    EXPECT_EQ(session.SectionLimits.Cells(), (std::vector<float>{0.5f, 1.5f, 2.5f, 3.5f}));
    EXPECT_EQ(signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST_F(DiagramDocuments, TheDistancesOfAnOlderFileAreComputedByItsMeasure) {
    ReadOldDiagramFile(session, goldenFile("older_diagram.dgr"));
    // Mean squared differences over the variables that both records have.
    EXPECT_EQ(document().Matrix.Cells(), (std::vector<float>{0, 12.5f, 1, 12.5f, 0, 9, 1, 9, 0}));
    EXPECT_EQ(session.CurrentDistType, 1);
    EXPECT_EQ(document().RecordHasNA.Cells(), (std::vector<bool>{false, false, true}));
}

TEST_F(DiagramDocuments, TheParametersOfAnOlderCustomizedDiagramAreTaken) {
    ReadOldDiagramFile(session, goldenFile("older_customized_diagram.dgr"));
    EXPECT_EQ(session.CurrentDistType, 6);
    EXPECT_EQ(session.Par_R, 2);
    EXPECT_EQ(session.Par_P, 3);
    EXPECT_EQ(document().Par_R, 2);
    EXPECT_EQ(document().Par_P, 3);
    EXPECT_EQ(document().Matrix(1, 2), static_cast<float>(std::sqrt(27.0 + 64.0)));
}

TEST_F(DiagramDocuments, RecordsOfAnOlderFileThatHaveNoDistanceAreAFault) {
    OlderBytes bytes;
    bytes.text("Old", 50).int16(1).int16(0).int16(2).int16(0).floats({1, 2, 3, 4});
    bytes.text("A", 15).float32(0).text("B", 15).float32(0).text("V", 8).int16(9);
    const std::string path = file("f.dgr", bytes.bytes());
    ReadOldDiagramFile(session, path);
    expectFaultMessage("The records 1 and 2 have no distance: Division by zero. File: " + path);
    EXPECT_TRUE(free());
}

TEST_F(DiagramDocuments, AnUnknownMeasureOfAnOlderFileGivesDistancesOfZero) {
    OlderBytes bytes;
    bytes.text("Old", 50).int16(1).int16(0).int16(2).int16(0).floats({1, 2, 3, 4});
    bytes.text("A", 15).float32(0).text("B", 15).float32(5).text("V", 8).int16(77);
    ReadOldDiagramFile(session, file("f.dgr", bytes.bytes()));
    EXPECT_EQ(document().DistType, 77);
    EXPECT_EQ(document().Matrix, FloatTable(2, 2, 0));
}

TEST_F(DiagramDocuments, AWrongSectionGivesItsMessageAndTakesNoSlot) {
    for (const std::string section : {"HEADER", "RECORD_LABEL", "VARIABLE_LABEL", "DATA", "MATRIX"}) {
        messages.shown.clear();
        const std::string path = file("f.dgr", with(golden("diagram.dgr"), "[" + section + "]", "[]"));
        ReadDiagramFile(session, path);
        expectSectionMessage("Error in " + section + " section of file: " + path);
        EXPECT_TRUE(free());
    }
    EXPECT_TRUE(log.empty());
}

TEST_F(DiagramDocuments, AnUnexpectedSymbolGivesItsMessageWithoutThePath) {
    for (const std::string section : {"VARIABLE_LABEL", "DATA"}) {
        messages.shown.clear();
        const std::string line = "[" + section + "]\r\n";
        ReadDiagramFile(session,
                        file("f.dgr", with(golden("diagram_without_data.dgr"), line + "N/A", line + "X")));
        expectSectionMessage("Unexpected symbol in " + section + " section.");
    }
}

TEST_F(DiagramDocuments, OtherFaultsGiveOneMessageThatNamesLineAndFile) {
    const std::string path = file("f.dgr", with(golden("diagram.dgr"), "DistType=1", "DistType"));
    ReadDiagramFile(session, path);
    expectFaultMessage("Line 12: \"DistType=\" is missing. File: " + path);
    messages.shown.clear();
    ReadDiagramFile(session, folder / "none.dgr");
    expectFaultMessage("The file cannot be read: No such file or directory. File: " + folder / "none.dgr");
}

TEST_F(DiagramDocuments, AFaultKeepsTheWorkingArraysReadSoFar) {
    session.tables.DistanceValues = FloatTable(7, 7);
    ReadDiagramFile(session, file("f.dgr", with(golden("diagram.dgr"), "[MATRIX]", "x")));
    EXPECT_EQ(session.tables.RecordNames(1), "Third one");
    EXPECT_EQ(session.tables.DataValues.Rows(), 3);
    EXPECT_TRUE(session.tables.RecordHasNA(2));
    EXPECT_EQ(session.tables.DistanceValues.Rows(), 7);
}

TEST_F(DiagramDocuments, AFileCutOffAtAnyByteReadsOrGivesOneFault) {
    for (const char* name : {"diagram.dgr", "diagram_without_data.dgr", "diagram_comma.dgr"}) {
        const std::string whole = golden(name);
        const std::string path = file("cut.dgr", whole);
        for (std::size_t size = whole.size(); size-- > 0;) {
            std::filesystem::resize_file(path, size);
            messages.shown.clear();
            const std::size_t before = windows();
            ReadDiagramFile(session, path);
            const bool reads = size > lastFieldOf(whole);
            EXPECT_EQ(windows() - before, reads ? 1u : 0u) << size;
            EXPECT_EQ(faultCount(), reads ? 0u : 1u) << size;
            EXPECT_EQ(messages.shown.size() - faultCount(), size > 0 && size < 14 ? 1u : 0u) << size;
        }
    }
}

TEST_F(DiagramDocuments, AnOlderFileCutOffAtAnyByteGivesOneFault) {
    for (const char* name : {"older_diagram.dgr", "older_customized_diagram.dgr"}) {
        const std::string whole = golden(name);
        const std::string path = file("cut.dgr", whole);
        for (std::size_t size = whole.size(); size-- > 0;) {
            std::filesystem::resize_file(path, size);
            messages.shown.clear();
            ReadOldDiagramFile(session, path);
            EXPECT_EQ(windows(), 0u) << size;
            EXPECT_EQ(messages.shown.size(), 1u) << size;
        }
    }
    EXPECT_TRUE(free());
}

TEST_F(DiagramDocuments, OpenLetsEventsRunAndUpdatesTheRecentFilesBeforeItReads) {
    const std::string path = goldenFile("diagram.dgr");
    files.paths = {path};
    events.onRun = [this](int) { log.push_back("events"); };
    OpenDiagramFile(session);
    EXPECT_EQ(files.requests,
              (std::vector<FileRequest>{{"Dorvan - Select dgr file",
                                         {{"dgr file (*.dgr)", "*.dgr"}, {"all (*.*)", "*.*"}},
                                         "",
                                         "program-folder"}}));
    EXPECT_EQ(log, (std::vector<std::string>{"events", "recent " + path + " 0"}));
}

TEST_F(DiagramDocuments, OpenCancelledDoesNothing) {
    files.paths = {""};
    OpenDiagramFile(session);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(events.runs, 0);
}

TEST_F(DiagramDocuments, OpenOnlyBeepsWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    OpenDiagramFile(session);
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_TRUE(files.requests.empty());
}

TEST_F(DiagramDocuments, WhatIsReadIsWrittenAgain) {
    const auto again = [this](const std::string& name) {
        ReadDiagramFile(session, goldenFile(name));
        const auto slot = static_cast<std::size_t>(session.NewWindowIndex);
        EXPECT_TRUE(
            WriteDiagramFile(session, folder / "f.dgr", document(slot), window(slot).BottomText.Text));
        EXPECT_EQ(fileBytes(folder / "f.dgr"), golden(name));
    };
    again("diagram.dgr");
    again("diagram_without_data.dgr");
    session.DecimalSeparator = ',';
    session.codePage = CodePage(1250);
    again("diagram_comma.dgr");
}

TEST_F(DiagramDocuments, AWriteThatCannotFinishIsSilentAndKeepsTheFileWhole) {
    const std::string path = goldenFile("diagram.dgr");
    ReadDiagramFile(session, path);
    signals.cursors.clear();
    {
        const FileSizeLimit limit(4096);
        EXPECT_FALSE(WriteDiagramFile(session, path, document(), std::string(10000, 'x')));
    }
    EXPECT_EQ(fileBytes(path), golden("diagram.dgr"));
    EXPECT_FALSE(WriteDiagramFile(session, folder / "none/f.dgr", document(), ""));
    EXPECT_FALSE(WriteDiagramFile(session, folder.path(), document(), ""));
    document().Matrix(1, 2) = std::numeric_limits<float>::infinity();
    EXPECT_FALSE(WriteDiagramFile(session, path, document(), ""));
    EXPECT_EQ(fileBytes(path), golden("diagram.dgr"));
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(signals.cursors.front(), Cursor::Wait);
    EXPECT_EQ(signals.cursors.back(), Cursor::Default);
}

TEST_F(DiagramDocuments, WritingTouchesNeitherTheFlagNorTheRecentFiles) {
    ReadDiagramFile(session, goldenFile("diagram.dgr"));
    session.DiagramStates[1].Dirty = true;
    log.clear();
    WriteDiagramFile(session, folder / "f.dgr", document(), "");
    EXPECT_TRUE(session.DiagramStates[1].Dirty);
    EXPECT_TRUE(log.empty());
}

} // namespace dorvan::test
