#include "session/children.h"
#include "support/golden.h"
#include "view/diagram_session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace dorvan::test {
namespace {

std::string FileOfTwo(const std::string& description, const std::string& labels, const std::string& data,
                      const std::string& matrix, const std::string& parameters) {
    return "Dorvan DIAGRAM 3.3\r\n\r\n[HEADER]\r\nType=0\r\nDescription=" + description +
           "\r\nRecCount=2\r\nVarCount=2\r\nSecLimit_1=1.000\r\nSecLimit_2=13.000\r\nSecLimit_3=23.000\r\n"
           "SecLimit_4=30.000\r\n" +
           parameters + "\r\n[RECORD_LABEL]\r\n" + labels +
           "\r\n[VARIABLE_LABEL]\r\nv\r\nv\r\n\r\n[DATA]\r\n" + data + "\r\n[MATRIX]\r\n" + matrix;
}

const std::string PlainParameters = "DistType=1\r\nDiagType=2\r\nPar_R=0\r\nPar_P=0\r\n";

TEST(SaveDiagramNew, WritesTheDocumentWithOrderedLabelsAndMatrixAndTheDataAsTheyStand) {
    DiagramSession at;
    const TemporaryFolder folder;
    auto& window = at.Open(SampleDocument(2), "two records");
    window.Siatka.SetCurrent(1, 1);
    window.SelectThisRow();
    window.Down();
    at.signals.cursors.clear();
    EXPECT_TRUE(window.SaveDiagramNew(folder / "two.dgr"));
    EXPECT_EQ(fileBytes(folder / "two.dgr"),
              FileOfTwo("two records", "B\r\nA\r\n", "1.000;101.000\r\n2.000;102.000\r\n",
                        "0.000;12.000\r\n12.000;0.000\r\n", PlainParameters));
    EXPECT_EQ(at.signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
}

TEST(SaveDiagramNew, WritesTheParametersOfTheCustomizedMeasureOnly) {
    DiagramSession at;
    const TemporaryFolder folder;
    auto document = SampleDocument(2);
    document.Par_P = 3;
    document.Par_R = 4;
    EXPECT_TRUE(at.Open(document).SaveDiagramNew(folder / "plain.dgr"));
    EXPECT_NE(fileBytes(folder / "plain.dgr").find(PlainParameters), std::string::npos);
    document.DistType = 6;
    EXPECT_TRUE(at.Open(document).SaveDiagramNew(folder / "custom.dgr"));
    EXPECT_NE(fileBytes(folder / "custom.dgr").find("DistType=6\r\nDiagType=2\r\nPar_R=4\r\nPar_P=3\r\n"),
              std::string::npos);
}

TEST(SaveDiagramNew, TurnsCommasIntoSemicolonsOnTheScreenToo) {
    DiagramSession at;
    const TemporaryFolder folder;
    auto& window = at.Open(SampleDocument(2), "one,two,,three");
    EXPECT_TRUE(window.SaveDiagramNew(folder / "a.dgr"));
    EXPECT_EQ(window.BottomText.Text, "one;two;;three");
    EXPECT_NE(fileBytes(folder / "a.dgr").find("\r\nDescription=one;two;;three\r\n"), std::string::npos);
    EXPECT_TRUE(at.session.DiagramStates.at(1).Dirty) << "the text has changed";
}

TEST(SaveDiagramNew, LeavesDirtyAsItIs) {
    DiagramSession at;
    const TemporaryFolder folder;
    auto& window = at.Open(SampleDocument(2), "no comma");
    EXPECT_TRUE(window.SaveDiagramNew(folder / "a.dgr"));
    EXPECT_FALSE(at.session.DiagramStates.at(1).Dirty);
    at.session.DiagramStates.at(1).Dirty = true;
    EXPECT_TRUE(window.SaveDiagramNew(folder / "a.dgr"));
    EXPECT_TRUE(at.session.DiagramStates.at(1).Dirty);
}

TEST(SaveDiagramNew, AFailureIsSilentButTold) {
    DiagramSession at;
    const TemporaryFolder folder;
    auto& window = at.Open(SampleDocument(2), "a,b");
    EXPECT_FALSE(window.SaveDiagramNew(folder / "missing/a.dgr"));
    EXPECT_TRUE(at.messages.shown.empty());
    EXPECT_EQ(window.BottomText.Text, "a;b");
    EXPECT_EQ(at.signals.beeps, 0);
}

TEST(SaveDiagram, AsksForAPathWhenItHasNone) {
    DiagramSession at;
    const TemporaryFolder folder;
    auto& window = at.Open(2);
    ShowChild(at.session, window);
    at.files.paths = {folder / "Chosen.DGR"};
    window.SaveDiagram("");
    EXPECT_EQ(window.Caption, "[DIAGRAM]: " + (folder / "Chosen.DGR")) << "case is kept";
    EXPECT_TRUE(std::filesystem::exists(folder / "Chosen.DGR"));
    const FileRequest request{.Title = "Dorvan - Save diagram As",
                              .Filters = {{"diagram file (*.dgr)", "*.dgr"}, {"all (*.*)", "*.*"}},
                              .Extension = "",
                              .StartFolder = "program-folder"};
    ASSERT_EQ(at.files.requests.size(), 1u);
    EXPECT_EQ(at.files.requests[0], request);
}

TEST(SaveDiagram, StopsWhenNoPathIsChosen) {
    DiagramSession at;
    auto& window = at.Open(SampleDocument(2), "a,b");
    ShowChild(at.session, window);
    at.files.paths = {""};
    window.SaveDiagram("");
    EXPECT_EQ(window.Caption, "[DIAGRAM]: Untitled:1");
    EXPECT_EQ(window.BottomText.Text, "a,b");
    EXPECT_TRUE(at.signals.cursors.empty());
    at.expectScriptsUsedUp();
}

TEST(SaveDiagram, GoesToTheGivenPathAndNamesTheActiveWindow) {
    DiagramSession at;
    const TemporaryFolder folder;
    auto& saved = at.Open(2);
    auto& active = at.Open(3);
    ShowChild(at.session, saved);
    ShowChild(at.session, active);
    saved.SaveDiagram(folder / "a.dgr");
    EXPECT_EQ(active.Caption, "[DIAGRAM]: " + (folder / "a.dgr"));
    EXPECT_EQ(saved.Caption, "[DIAGRAM]: Untitled:1");
    EXPECT_NE(fileBytes(folder / "a.dgr").find("\r\nRecCount=2\r\n"), std::string::npos);
    EXPECT_TRUE(at.files.requests.empty());
}

TEST(SaveDiagram, NamesTheWindowAlsoWhenTheFileCouldNotBeWritten) {
    DiagramSession at;
    const TemporaryFolder folder;
    auto& window = at.Open(2);
    ShowChild(at.session, window);
    window.SaveDiagram(folder / "missing/a.dgr");
    EXPECT_EQ(window.Caption, "[DIAGRAM]: " + (folder / "missing/a.dgr"));
    EXPECT_TRUE(at.messages.shown.empty());
}

TEST(SaveDiagram, OnlyBeepsWhileADiagramIsMade) {
    DiagramSession at;
    const TemporaryFolder folder;
    auto& window = at.Open(2);
    at.session.DiagramBusy = 1;
    window.SaveDiagram("");
    window.SaveDiagram(folder / "a.dgr");
    EXPECT_EQ(at.signals.beeps, 2);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.dgr"));
}

} // namespace
} // namespace dorvan::test
