#include "export/picture_commands.h"

#include "export/frmPicture.h"
#include "export_session.h"
#include "platform/keys.h"
#include "session/status_bar.h"
#include "view/bitmap_drawing.h"
#include "view/histogram_drawing.h"
#include "view/linear_drawing.h"

#include <gmock/gmock.h>

#include <fstream>

namespace dorvan::test {
namespace {

class PictureCommands : public ExportSession {
protected:
    PictureCommands() {
        session.Of<PictureWriter>().Bytes = [this](const Drawing& drawing, const std::string& path,
                                                   double scale) {
            written = drawing;
            EXPECT_EQ(path, target);
            return "scale " + std::to_string(scale);
        };
        target = folder / "a.svg";
    }

    void InDialog(std::function<void(frmPicture&)> does) {
        forms.scripts.push_back([does](Form& form) {
            auto& dialog = dynamic_cast<frmPicture&>(form);
            does(dialog);
            if (dialog.Visible) dialog.Command1_Click();
            if (dialog.Visible) dialog.Command2_Click();
        });
    }
    static void Choose(frmPicture& dialog, OptionButton& option) {
        for (auto* other : {&dialog.Option1, &dialog.Option2, &dialog.Option3, &dialog.Option4})
            other->Value = other == &option;
    }
    std::string BytesOfTarget() const {
        std::ifstream file(target);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string Last() const { return messages.shown.empty() ? std::string() : messages.shown.back().Text; }

    frmDiagram& window = OpenDiagram(SampleDocument(4));
    Drawing written;
};

TEST_F(PictureCommands, WriteTheDiagramAtTheChosenSize) {
    InDialog([](frmPicture& dialog) { dialog.Text1.Text = "250"; });
    files.paths.push_back(target);
    SavePicture(session, window.Index);
    EXPECT_EQ(written, BitmapDrawing(window.Document(), fonts, '.'));
    EXPECT_EQ(BytesOfTarget(), "scale 2.500000");
    EXPECT_EQ(StatusText(session), "Saved: " + target);
    EXPECT_EQ(files.requests.back().Extension, "svg");
    EXPECT_EQ(files.requests.back().Filters.size(), 3u);
}

TEST_F(PictureCommands, WriteTheGraphs) {
    const auto& document = window.Document();
    for (const auto option : {&frmPicture::Option2, &frmPicture::Option3, &frmPicture::Option4}) {
        InDialog([option](frmPicture& dialog) { Choose(dialog, dialog.*option); });
        files.paths.push_back(target);
        SavePicture(session, window.Index);
        SectionCounts counts = CountSections(document, document.SectionLimits);
        if (option == &frmPicture::Option3) counts.Accumulate();
        EXPECT_EQ(written, option == &frmPicture::Option4
                               ? LinearGraphDrawing(document, fonts, '.')
                               : HistogramDrawing(BarHeights(counts), option == &frmPicture::Option3, fonts));
    }
}

TEST_F(PictureCommands, CancelWritesNothing) {
    InDialog([](frmPicture& dialog) { dialog.Command2_Click(); });
    SavePicture(session, window.Index);
    InDialog([](frmPicture&) {});
    files.paths.push_back("");
    SavePicture(session, window.Index);
    EXPECT_EQ(written.Operations.size(), 0u);
}

TEST_F(PictureCommands, ASizeOutsideTheLimitsIsRefused) {
    for (const auto* text : {"9", "1601", "", "x"}) {
        InDialog([text](frmPicture& dialog) { dialog.Text1.Text = text; });
        SavePicture(session, window.Index);
        EXPECT_EQ(Last(), "The size must be 10 to 1600 percent.");
        messages.shown.clear();
    }
    for (const auto* text : {"10", "1600"}) {
        InDialog([text](frmPicture& dialog) { dialog.Text1.Text = text; });
        files.paths.push_back("");
        SavePicture(session, window.Index);
        EXPECT_EQ(Last(), "");
    }
}

TEST_F(PictureCommands, TheSizeTakesDigitsAlone) {
    frmPicture dialog(session);
    int key = 'x';
    dialog.Text1_KeyPress(key);
    EXPECT_EQ(key, 0);
    key = '5';
    dialog.Text1_KeyPress(key);
    EXPECT_EQ(key, '5');
}

TEST_F(PictureCommands, AnotherExtensionIsRefused) {
    target = folder / "a.gif";
    InDialog([](frmPicture&) {});
    files.paths.push_back(target);
    SavePicture(session, window.Index);
    EXPECT_EQ(Last(), target + "\r\nA picture is a file .svg, .pdf or .png.");
    EXPECT_EQ(written.Operations.size(), 0u);
}

TEST_F(PictureCommands, WhatTheDiskRefusesIsTold) {
    target = folder / "none/a.PNG";
    InDialog([](frmPicture&) {});
    files.paths.push_back(target);
    SavePicture(session, window.Index);
    EXPECT_THAT(Last(), ::testing::StartsWith(target + "\r\n"));
    EXPECT_EQ(StatusText(session), "");
}

TEST_F(PictureCommands, APictureThatTheDiagramDoesNotHaveIsTold) {
    window.Document().Classes(1, 2) = 6;
    InDialog([](frmPicture&) {});
    SavePicture(session, window.Index);
    EXPECT_THAT(Last(), ::testing::StartsWith("This diagram has no such picture."));
    InDialog([](frmPicture&) {});
    CopyPicture(session, window.Index);
    EXPECT_EQ(messages.shown.size(), 2u);
}

TEST_F(PictureCommands, CopyPutsTheScaledDrawingOnTheClipboard) {
    InDialog([](frmPicture& dialog) { dialog.Text1.Text = "200"; });
    CopyPicture(session, window.Index);
    const Drawing whole = BitmapDrawing(window.Document(), fonts, '.');
    EXPECT_EQ(clipboard.log, (std::vector<std::string>{"clear", "put"}));
    EXPECT_EQ(clipboard.held, Scaled(whole, 2));
    EXPECT_EQ(clipboard.held.Width, 2 * whole.Width);
    EXPECT_EQ(StatusText(session), "The picture is on the clipboard.");
}

TEST_F(PictureCommands, AClipboardThatCannotBeHadIsTold) {
    clipboard.fails = true;
    InDialog([](frmPicture&) {});
    CopyPicture(session, window.Index);
    EXPECT_THAT(Last(), ::testing::StartsWith("The picture could not be copied.\r\n"));
    EXPECT_EQ(StatusText(session), "");
}

TEST_F(PictureCommands, BeepWhileADiagramIsMade) {
    session.DiagramBusy = 1;
    SavePicture(session, window.Index);
    CopyPicture(session, window.Index);
    EXPECT_EQ(signals.beeps, 2);
}

TEST(ScaledDrawing, EnlargesEveryOperation) {
    Canvas canvas(100, 50);
    canvas.Pen.Width = 15;
    canvas.DrawLine({1, 2}, {3, 4});
    canvas.DrawBox({1, 2}, {3, 4});
    canvas.FillBox({1, 2}, {3, 4});
    canvas.FillDisc({1, 2}, 3);
    canvas.Write({1, 2}, "x");
    Canvas twice(200, 100);
    twice.Pen.Width = 30;
    twice.DrawLine({2, 4}, {6, 8});
    twice.DrawBox({2, 4}, {6, 8});
    twice.FillBox({2, 4}, {6, 8});
    twice.FillDisc({2, 4}, 6);
    twice.Font.Size = 16;
    twice.Write({2, 4}, "x");
    EXPECT_EQ(Scaled(canvas.Take(), 2), twice.Take());
}

} // namespace
} // namespace dorvan::test
