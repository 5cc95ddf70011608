#include "session/children.h"

#include "fake_window.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace dorvan::test {
namespace {

using Log = std::vector<std::string>;

TEST(ShowChild, ActivatesTheWindowAndDeactivatesTheOneBefore) {
    FakeWindowSession test;
    auto& first = test.Open(DocumentKind::Data);
    auto& second = test.Open(DocumentKind::Matrix);
    EXPECT_EQ(test.log, (Log{"activate [DATA]: Untitled:1", "deactivate [DATA]: Untitled:1",
                             "activate [MATRIX]: Untitled:1"}));
    EXPECT_EQ(test.children.log, (Log{"show [DATA]: Untitled:1", "show [MATRIX]: Untitled:1"}));
    EXPECT_EQ(test.session.ActiveWindow, &second);
    EXPECT_TRUE(first.Visible);
}

TEST(ActivateChild, DoesNothingForTheActiveWindow) {
    FakeWindowSession test;
    auto& window = test.Open(DocumentKind::Data);
    test.log.clear();
    ActivateChild(test.session, window);
    EXPECT_EQ(test.log, Log{});
}

TEST(ActivateChild, BringsTheWindowToTheFront) {
    FakeWindowSession test;
    auto& first = test.Open(DocumentKind::Data);
    test.Open(DocumentKind::Data);
    auto& third = test.Open(DocumentKind::Data);
    ActivateChild(test.session, first);
    CloseChild(test.session, first);
    EXPECT_EQ(test.session.ActiveWindow, &third) << "the window that was active before comes next";
}

// One whose open field lets events run as it loses the focus.
class FieldWindow : public FakeWindow {
public:
    using FakeWindow::FakeWindow;
    std::function<void()> onLeave;
    void LeaveField() override {
        if (const auto events = std::exchange(onLeave, nullptr)) events();
    }
};

TEST(ActivateChild, TheWindowThatCameToTheFrontMeanwhileStaysThere) {
    FakeWindowSession test;
    auto& first = test.Open(DocumentKind::Data);
    auto& second = test.Open(DocumentKind::Data);
    auto& field = test.Open<FieldWindow>(DocumentKind::Data);
    field.onLeave = [&] { ActivateChild(test.session, second); };
    ActivateChild(test.session, first);
    EXPECT_EQ(test.session.ActiveWindow, &second);
    EXPECT_EQ(test.session.Children.back().get(), &second);
}

TEST(ActivateChild, TheWindowThatCameBackToTheFrontMeanwhileStaysThere) {
    FakeWindowSession test;
    auto& first = test.Open(DocumentKind::Data);
    auto& second = test.Open(DocumentKind::Data);
    auto& field = test.Open<FieldWindow>(DocumentKind::Data);
    field.onLeave = [&] {
        ActivateChild(test.session, second);
        ActivateChild(test.session, field);
    };
    ActivateChild(test.session, first);
    EXPECT_EQ(test.session.ActiveWindow, &field);
}

TEST(ShowChild, TheNewWindowComesToTheFrontWhateverDidMeanwhile) {
    FakeWindowSession test;
    auto& first = test.Open(DocumentKind::Data);
    auto& field = test.Open<FieldWindow>(DocumentKind::Data);
    field.onLeave = [&] {
        test.children.show(first);
        ActivateChild(test.session, first);
    };
    auto& opened = test.Open(DocumentKind::Matrix);
    EXPECT_EQ(test.session.ActiveWindow, &opened);
    EXPECT_EQ(test.children.log.back(), "show " + opened.Caption) << "on the screen too";
}

TEST(ShowChild, AWindowThatClosesMeanwhileStaysClosed) {
    FakeWindowSession test;
    auto& field = test.Open<FieldWindow>(DocumentKind::Data);
    field.onLeave = [&] { CloseChild(test.session, *test.session.Children.back()); };
    const std::string caption = test.Open(DocumentKind::Matrix).Caption;
    EXPECT_EQ(test.session.Children.size(), 1u);
    EXPECT_EQ(test.session.ActiveWindow, &field);
    EXPECT_EQ(test.children.log.back(), "close " + caption);
}

TEST(CloseChild, AsksThenDeactivatesThenUnloadsThenActivatesTheNext) {
    FakeWindowSession test;
    test.Open(DocumentKind::Data);
    auto& second = test.Open(DocumentKind::Data);
    second.Asks = true;
    test.messages.answers = {Answer::No};
    test.log.clear();
    EXPECT_TRUE(CloseChild(test.session, second));
    EXPECT_EQ(test.log, (Log{"deactivate [DATA]: Untitled:2", "unload [DATA]: Untitled:2",
                             "activate [DATA]: Untitled:1"}));
    EXPECT_EQ(test.children.log.back(), "close [DATA]: Untitled:2");
    EXPECT_FALSE(second.Visible);
    test.expectScriptsUsedUp();
}

TEST(CloseChild, CancelKeepsTheWindowOpenAndActive) {
    FakeWindowSession test;
    auto& window = test.Open(DocumentKind::Data);
    window.Asks = true;
    test.messages.answers = {Answer::Cancel};
    test.log.clear();
    EXPECT_FALSE(CloseChild(test.session, window));
    EXPECT_EQ(test.log, Log{});
    EXPECT_EQ(test.session.ActiveWindow, &window);
    EXPECT_TRUE(window.Visible);
    EXPECT_EQ(test.session.Children.size(), 1u);
}

TEST(CloseChild, BringsTheOneThatWasInFrontBeforeToTheFront) {
    FakeWindowSession test;
    auto& first = test.Open(DocumentKind::Data);
    auto& second = test.Open(DocumentKind::Matrix);
    auto& third = test.Open(DocumentKind::Diagram);
    auto& fourth = test.Open(DocumentKind::Data);
    ActivateChild(test.session, second);
    ActivateChild(test.session, first); // in front of it: second, fourth, third
    const auto order = [&] {
        std::string names;
        for (const auto& child : test.session.Children) names += child->Caption.back();
        return names;
    };
    EXPECT_EQ(test.session.Children.back().get(), &first);
    CloseChild(test.session, first);
    EXPECT_EQ(test.session.ActiveWindow, &second);
    EXPECT_EQ(test.session.Children.back().get(), &second);
    CloseChild(test.session, third); // behind all others
    EXPECT_EQ(test.session.ActiveWindow, &second);
    CloseChild(test.session, second);
    EXPECT_EQ(test.session.ActiveWindow, &fourth);
    EXPECT_EQ(order(), "2");
    CloseChild(test.session, fourth);
    EXPECT_EQ(test.session.ActiveWindow, nullptr);
}

TEST(ActivateChild, OfTheActiveOneOrOfAClosedOneChangesNothing) {
    FakeWindowSession test;
    auto& first = test.Open(DocumentKind::Data);
    auto& second = test.Open(DocumentKind::Data);
    CloseChild(test.session, first);
    test.log.clear();
    ActivateChild(test.session, second);
    ActivateChild(test.session, first);
    EXPECT_EQ(test.log, Log{});
    EXPECT_EQ(test.session.ActiveWindow, &second);
}

TEST(CloseChild, OfAWindowBehindLeavesTheActiveOneActive) {
    FakeWindowSession test;
    auto& first = test.Open(DocumentKind::Data);
    auto& second = test.Open(DocumentKind::Data);
    test.log.clear();
    EXPECT_TRUE(CloseChild(test.session, first));
    EXPECT_EQ(test.log, Log{"unload [DATA]: Untitled:1"});
    EXPECT_EQ(test.session.ActiveWindow, &second);
}

TEST(CloseChild, OfAClosedWindowDoesNothing) {
    FakeWindowSession test;
    auto& window = test.Open(DocumentKind::Data);
    CloseChild(test.session, window);
    test.log.clear();
    EXPECT_TRUE(CloseChild(test.session, window));
    EXPECT_EQ(test.log, Log{});
}

TEST(CloseChild, UnloadsOnceWhenTheWindowClosesWhileItsQuestionStands) {
    struct ClosesItself : FakeWindow {
        ClosesItself(Session& session, std::string_view kind, Log& log)
            : FakeWindow(session, kind, log), owner(session) {}
        Session& owner;
        bool asked = false;
        bool Form_QueryUnload() override {
            if (!std::exchange(asked, true)) CloseChild(owner, *this);
            return true;
        }
    };
    FakeWindowSession test;
    auto& window = test.Open<ClosesItself>(DocumentKind::Data);
    test.log.clear();
    EXPECT_TRUE(CloseChild(test.session, window));
    EXPECT_EQ(test.log, (Log{"deactivate [DATA]: Untitled:1", "unload [DATA]: Untitled:1"}));
}

TEST(CloseChild, OfTheLastWindowTurnsTheDocumentCommandsOff) {
    FakeWindowSession test;
    auto& first = test.Open(DocumentKind::Diagram);
    auto& second = test.Open(DocumentKind::Diagram);
    auto& mainWindow = test.session.mainWindow;
    mainWindow.EnableMenu("mnuFilePrint", true);
    mainWindow.EnableButton("toolMain", "MakeMatrix", true);
    mainWindow.ShowToolbar("toolDiagram", true);
    CloseChild(test.session, second);
    EXPECT_TRUE(mainWindow.MenuEnabled("mnuFilePrint"));
    CloseChild(test.session, first);
    EXPECT_FALSE(mainWindow.MenuEnabled("mnuFilePrint"));
    EXPECT_FALSE(mainWindow.ButtonEnabled("toolMain", "MakeMatrix"));
    EXPECT_FALSE(mainWindow.ToolbarShown("toolDiagram"));
    EXPECT_EQ(test.session.ActiveWindow, nullptr);
}

TEST(CloseChild, LeavesTheWindowAndItsDocumentInTheirSlot) {
    FakeWindowSession test;
    auto& window = test.Open(DocumentKind::Matrix);
    test.session.MatrixDocuments[1].Size = 5;
    CloseChild(test.session, window);
    EXPECT_EQ(test.session.MatrixWindows[1].get(), &window);
    EXPECT_EQ(test.session.MatrixDocuments[1].Size, 5);
}

TEST(CloseAllChildren, StopsAtTheFirstThatStaysOpen) {
    FakeWindowSession test;
    test.Open(DocumentKind::Data);
    test.Open(DocumentKind::Data).Asks = true;
    test.Open(DocumentKind::Data);
    test.messages.answers = {Answer::Cancel};
    EXPECT_FALSE(CloseAllChildren(test.session));
    EXPECT_EQ(test.session.Children.size(), 2u);
    test.messages.answers = {Answer::No};
    EXPECT_TRUE(CloseAllChildren(test.session));
    EXPECT_TRUE(test.session.Children.empty());
    test.expectScriptsUsedUp();
}

TEST(AskToSave, AsksInTwoLinesUnderTheMainCaption) {
    TestSession test;
    test.messages.answers = {Answer::Cancel, Answer::Yes};
    EXPECT_EQ(AskToSave(test.session, "data", "[DATA]: Untitled:1", MessageIcon::Exclamation),
              Answer::Cancel);
    EXPECT_EQ(AskToSave(test.session, "matrix", "A.mtx", MessageIcon::None), Answer::Yes);
    const Message data{
        .Text = "The data in [[DATA]: Untitled:1] has changed.\r\nDo you want to save the changes?",
        .Icon = MessageIcon::Exclamation,
        .Buttons = MessageButtons::YesNoCancel,
        .Title = "Dorvan 3.3.44"};
    const Message matrix{.Text = "The matrix in [A.mtx] has changed.\r\nDo you want to save the changes?",
                         .Icon = MessageIcon::None,
                         .Buttons = MessageButtons::YesNoCancel,
                         .Title = "Dorvan 3.3.44"};
    EXPECT_EQ(test.messages.shown, (std::vector<Message>{data, matrix}));
}

TEST(PlaceNewWindow, TakesMostOfTheScreenFromTheCorner) {
    FakeWindowSession test;
    auto& window = test.Open(DocumentKind::Data);
    window.Mode = WindowMode::Maximized;
    window.Left = window.Top = 99;
    PlaceNewWindow(test.session, window);
    EXPECT_EQ(window.Mode, WindowMode::Normal);
    EXPECT_EQ(window.Width, 19465); // 0.95 of 20490 twips
    EXPECT_EQ(window.Height, 9216); // 0.8 of 11520
    EXPECT_EQ(window.Left, 0);
    EXPECT_EQ(window.Top, 0);
}

} // namespace
} // namespace dorvan::test
