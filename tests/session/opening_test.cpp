#include "session/opening.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan::test {
namespace {

// A matrix window that notes what stood at each step of its opening.
struct NotingWindow : ChildWindow {
    static constexpr std::string_view Kind = DocumentKind::Matrix;

    explicit NotingWindow(Session& session) : ChildWindow("frmNoting"), owner(session) {}

    Session& owner;
    std::vector<std::string> notes;

    void Note(const std::string& step) {
        const bool dirty = owner.MatrixStates.at(std::size_t(Index)).Dirty;
        notes.push_back(step + " " + Caption + " " + Tag + (dirty ? " dirty" : "") +
                        (Visible ? " shown" : "") + " " + std::to_string(Width));
    }
    void Form_Load() override { Note("load"); }
    void Form_Activate() override { Note("activate"); }
    void Form_Deactivate() override {}
    void Form_Unload() override { owner.MatrixStates.at(std::size_t(Index)).Deleted = true; }
};

using Notes = std::vector<std::string>;

struct OpenDocumentWindowTest : ::testing::Test, TestSession {
    NotingWindow& Open(const Opening& opening) {
        return OpenDocumentWindow<NotingWindow>(session, opening,
                                                [](NotingWindow& window) { window.Note("present"); });
    }
};

TEST_F(OpenDocumentWindowTest, CaptionsPresentsMarksPlacesAndShowsInThisOrder) {
    auto& window = Open({});
    EXPECT_EQ(window.notes, (Notes{"load  1 0", "present [MATRIX]: Untitled:1 1 0",
                                   "activate [MATRIX]: Untitled:1 1 dirty shown 19465"}));
    EXPECT_EQ(window.Height, 9216);
    EXPECT_EQ(session.NewWindowIndex, 1);
    EXPECT_EQ(session.ActiveWindow, &window);
    EXPECT_EQ(session.MatrixWindows.at(1).get(), &window);
    EXPECT_EQ(children.log, (Notes{"show [MATRIX]: Untitled:1"}));
}

TEST_F(OpenDocumentWindowTest, OfAFileIsCleanAndNamedAsTold) {
    session.MatrixStates.at(1).Dirty = true; // as an earlier document of the slot left it
    auto& window = Open({.Caption = "[MATRIX]: a.mtx", .Dirty = false});
    EXPECT_EQ(window.Caption, "[MATRIX]: a.mtx");
    EXPECT_FALSE(session.MatrixStates.at(1).Dirty);
}

TEST_F(OpenDocumentWindowTest, UsesASlotThatIsTakenAlready) {
    FindFreeMatrixSlot(session);
    const std::int16_t slot = FindFreeMatrixSlot(session);
    EXPECT_EQ(Open({.Slot = slot}).Index, 2);
    EXPECT_EQ(Open({}).Index, 3);
    EXPECT_EQ(session.MatrixStates.size(), 4u);
}

TEST_F(OpenDocumentWindowTest, OfAClosedSlotTakesItAgain) {
    auto& first = Open({});
    Open({});
    ASSERT_TRUE(CloseChild(session, first));
    EXPECT_EQ(Open({}).Caption, "[MATRIX]: Untitled:1");
}

TEST_F(OpenDocumentWindowTest, ThatFailsToPresentShowsNothing) {
    const auto fail = [](NotingWindow&) { throw RuntimeFailure(Failure::Overflow); };
    EXPECT_THROW(OpenDocumentWindow<NotingWindow>(session, {}, fail), RuntimeFailure);
    EXPECT_TRUE(children.log.empty());
    EXPECT_TRUE(session.Children.empty());
    EXPECT_EQ(session.ActiveWindow, nullptr);
}

} // namespace
} // namespace dorvan::test
