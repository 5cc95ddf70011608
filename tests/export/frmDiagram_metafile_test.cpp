#include "export/modWMF.h"
#include "metafile_records.h"
#include "session/children.h"
#include "support/golden.h"
#include "view/diagram_session.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace dorvan::test {
namespace {

struct MetafileTest : ::testing::Test, DiagramSession {
    TemporaryFolder folder;

    frmDiagram& shown(int count) {
        DiagramDocument document = SampleDocument(count);
        document.SectionLimits.Cells() = {1, 2, 3, 4};
        auto& window = Open(document);
        ShowChild(session, window);
        return window;
    }
};

TEST_F(MetafileTest, WritesHeaderAndDrawing) {
    auto& window = shown(3);
    files.paths = {folder / "Towns.wmf"};
    window.Metafile();
    const std::string bytes = fileBytes(folder / "Towns.wmf");
    EXPECT_EQ(bytes.substr(0, 22), PlaceableHeader(BoxOfDiagram(3)));
    EXPECT_EQ(bytes.substr(22), DrawDiagram(window.Document(), '.', session.codePage));
    metafileRecordsOf(std::string_view(bytes).substr(22));
    EXPECT_EQ(files.requests, (std::vector<FileRequest>{{.Title = "Dorvan - Save metafile (WMF)",
                                                         .Filters = {{"WMF (*.wmf)", "*.wmf"}},
                                                         .Extension = "*.wmf",
                                                         .StartFolder = session.AppPath}}));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(MetafileTest, CancelledDialogWritesNothing) {
    files.paths = {""};
    shown(3).Metafile();
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(MetafileTest, WarnsOfMoreThan225RecordsAndGoesOn) {
    files.paths = {folder / "a.wmf", folder / "b.wmf"};
    shown(225).Metafile();
    EXPECT_TRUE(messages.shown.empty());
    shown(226).Metafile();
    EXPECT_EQ(messages.shown, (std::vector<Message>{
                                  {.Text = "Diagram is too big for creating metafile (bigger than 240). It's "
                                           "going to be illegible!"}}));
    EXPECT_TRUE(std::filesystem::exists(folder / "b.wmf"));
}

TEST_F(MetafileTest, IsNotStoppedWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    files.paths = {folder / "a.wmf"};
    shown(3).Metafile();
    EXPECT_EQ(signals.beeps, 0);
    EXPECT_TRUE(std::filesystem::exists(folder / "a.wmf"));
}

TEST_F(MetafileTest, FileThatCannotBeWrittenIsNotTold) {
    files.paths = {folder / "missing/a.wmf"};
    shown(3).Metafile();
    EXPECT_TRUE(messages.shown.empty());
}

} // namespace
} // namespace dorvan::test
