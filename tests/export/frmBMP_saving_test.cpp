#include "numbers/text.h"
#include "session/children.h"
#include "session/registry.h"
#include "support/golden.h"
#include "support/test_platform.h"
#include "view/frmBMP.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace dorvan::test {
namespace {

namespace fs = std::filesystem;

struct SaveBitmapTest : ::testing::Test, TestSession {
    TemporaryFolder folder;
    frmBMP& window = open();
    const FileRequest request{
        .Title = "Dorvan - Save bitmap As",
        .Filters = {{"BMP (*.bmp)", "*.bmp"}, {"TIFF (*.tif)", "*.tif"}, {"PNG (*.png)", "*.png"}},
        .Extension = "*.bmp",
        .StartFolder = session.AppPath};

    frmBMP& open() {
        session.NewWindowIndex = FindFreeBitmapSlot(session);
        PutIntoRegistry(session, DocumentKind::Bitmap, std::make_shared<frmBMP>(session));
        auto& made = BitmapWindow(session, session.NewWindowIndex);
        made.Caption = UntitledCaption(DocumentKind::Bitmap, made.Index);
        made.ShowPicture(Drawing{30, 15, {}});
        ShowChild(session, made);
        return made;
    }

    std::string lower(const std::string& name) { return "[BITMAP]: " + LowerCase(folder / name); }
};

TEST_F(SaveBitmapTest, ExtensionChoosesTheFormat) {
    window.SaveBMP(folder / "a.bmp");
    window.SaveBMP(folder / "a.tif");
    window.SaveBMP(folder / "a.png");
    EXPECT_EQ(fileBytes(folder / "a.bmp").substr(0, 2), "BM");
    EXPECT_EQ(fileBytes(folder / "a.tif").substr(0, 2), "II");
    EXPECT_EQ(fileBytes(folder / "a.png").substr(1, 3), "PNG");
    EXPECT_TRUE(files.requests.empty());
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(window.Caption, lower("a.png"));
}

TEST_F(SaveBitmapTest, EmptyPathAsks) {
    files.paths = {folder / "a.tif"};
    window.SaveBMP("");
    EXPECT_EQ(files.requests, (std::vector<FileRequest>{request}));
    EXPECT_EQ(fileBytes(folder / "a.tif").substr(0, 2), "II");
}

TEST_F(SaveBitmapTest, CancelledDialogLeavesTheCaption) {
    files.paths = {""};
    window.SaveBMP("");
    EXPECT_EQ(window.Caption, "[BITMAP]: Untitled:1");
    EXPECT_TRUE(signals.cursors.empty());
}

TEST_F(SaveBitmapTest, NameIsWrittenInSmallLettersInTheFolderAsChosen) {
    fs::create_directory(folder / "Mixed");
    window.SaveBMP(folder / "Mixed/Towns.TIF");
    EXPECT_EQ(fileBytes(folder / "Mixed/towns.tif").substr(0, 2), "II");
    EXPECT_EQ(window.Caption, lower("Mixed/Towns.TIF"));
}

TEST_F(SaveBitmapTest, SaveUnderTheCaptionsPathFindsTheFolderAgain) {
    fs::create_directory(folder / "Mixed");
    window.SaveBMP(folder / "Mixed/Towns.bmp");
    fs::remove(folder / "Mixed/towns.bmp");
    window.SaveBMP(CaptionPath(window.Caption));
    EXPECT_TRUE(fs::exists(folder / "Mixed/towns.bmp"));
    EXPECT_EQ(window.Caption, lower("Mixed/Towns.bmp"));
}

TEST_F(SaveBitmapTest, OtherExtensionWritesNothingSaysNothingAndTakesTheCaption) {
    for (const std::string name : {"a.jpg", "a.tiff", "a"}) {
        window.SaveBMP(folder / name);
        EXPECT_EQ(window.Caption, lower(name));
    }
    EXPECT_TRUE(fs::is_empty(folder.path()));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(SaveBitmapTest, FileThatCannotBeWrittenIsNotTold) {
    window.SaveBMP(folder / "missing/a.bmp");
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(window.Caption, lower("missing/a.bmp"));
}

TEST_F(SaveBitmapTest, PictureThatFreeImageDoesNotTakeIsTold) {
    raster.empty = true;
    window.SaveBMP(folder / "a.bmp");
    EXPECT_EQ(messages.shown, (std::vector<Message>{{.Text = "Error: FreeImage_DIB_From_BMP",
                                                     .Icon = MessageIcon::Critical,
                                                     .Title = "Save bitmap"}}));
    EXPECT_EQ(window.Caption, lower("a.bmp"));
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(SaveBitmapTest, ChangedMarkAndCursor) {
    session.BitmapStates[1].Dirty = true;
    window.SaveBMP(folder / "a.bmp");
    EXPECT_TRUE(session.BitmapStates[1].Dirty);
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
}

TEST_F(SaveBitmapTest, BeepsWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    window.SaveBMP(folder / "a.bmp");
    EXPECT_EQ(signals.beeps, 1);
    EXPECT_TRUE(fs::is_empty(folder.path()));
    EXPECT_EQ(window.Caption, "[BITMAP]: Untitled:1");
}

} // namespace
} // namespace dorvan::test
