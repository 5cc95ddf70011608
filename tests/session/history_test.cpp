#include "session/history.h"

#include "fake_window.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

using Log = std::vector<std::string>;

// Writes what happens to it into a log, with the window that it was given.
class LoggedChange : public DocumentChange {
public:
    LoggedChange(std::string name, Log& log) : name_(std::move(name)), log_(log) {}
    void Undo(ChildWindow& window) const override { log_.push_back("undo " + name_ + " in " + window.Tag); }
    void Redo(ChildWindow& window) const override { log_.push_back("redo " + name_ + " in " + window.Tag); }

private:
    std::string name_;
    Log& log_;
};

struct HistorySession : FakeWindowSession {
    Log steps;

    void Take(ChildWindow& window, const std::string& name) {
        RecordStep(session, window, name, std::make_unique<LoggedChange>(name, steps));
    }
    std::string UndoShown() const { return Shown(UndoItem); }
    std::string RedoShown() const { return Shown(RedoItem); }

private:
    std::string Shown(std::string_view item) const {
        const auto& mainWindow = session.mainWindow;
        return mainWindow.MenuCaption(item) + (mainWindow.MenuEnabled(item) ? "" : " (off)");
    }
};

TEST(History, TakesStepsBackAndMakesThemAgainInTheirOrder) {
    HistorySession test;
    auto& window = test.Open(DocumentKind::Data);
    for (const auto* name : {"one", "two", "three"}) test.Take(window, name);
    History& history = HistoryOf(test.session, window);
    history.Undo(window);
    history.Undo(window);
    history.Redo(window);
    history.Undo(window);
    history.Undo(window);
    EXPECT_FALSE(history.CanUndo());
    EXPECT_EQ(history.RedoName(), "one");
    EXPECT_EQ(test.steps,
              (Log{"undo three in 1", "undo two in 1", "redo two in 1", "undo two in 1", "undo one in 1"}));
}

TEST(History, ANewStepDropsThoseTakenBack) {
    HistorySession test;
    auto& window = test.Open(DocumentKind::Data);
    for (const auto* name : {"one", "two", "three"}) test.Take(window, name);
    History& history = HistoryOf(test.session, window);
    history.Undo(window);
    history.Undo(window);
    test.Take(window, "four");
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.UndoName(), "four");
    history.Undo(window);
    EXPECT_EQ(history.UndoName(), "one");
}

TEST(History, HasNoEnd) {
    HistorySession test;
    auto& window = test.Open(DocumentKind::Data);
    for (int step = 0; step < 5000; ++step) test.Take(window, std::to_string(step));
    History& history = HistoryOf(test.session, window);
    while (history.CanUndo()) history.Undo(window);
    EXPECT_EQ(test.steps.size(), 5000u);
    EXPECT_EQ(test.steps.back(), "undo 0 in 1");
}

TEST(History, IsThatOfTheActiveWindowInTheMenu) {
    HistorySession test;
    auto& first = test.Open(DocumentKind::Data);
    test.Take(first, "Edit Georgia, Murder");
    EXPECT_EQ(test.UndoShown(), "&Undo Edit Georgia, Murder");
    EXPECT_EQ(test.RedoShown(), "&Redo (off)");
    auto& second = test.Open(DocumentKind::Diagram);
    EXPECT_EQ(test.UndoShown(), "&Undo (off)");
    test.Take(second, "Move Salt & Pepper Up");
    EXPECT_EQ(test.UndoShown(), "&Undo Move Salt && Pepper Up") << "a name has no access key";
    HistoryOf(test.session, second).Undo(second);
    ShowHistory(test.session);
    EXPECT_EQ(test.UndoShown(), "&Undo (off)");
    EXPECT_EQ(test.RedoShown(), "&Redo Move Salt && Pepper Up");
    ActivateChild(test.session, first);
    EXPECT_EQ(test.UndoShown(), "&Undo Edit Georgia, Murder");
    EXPECT_EQ(test.RedoShown(), "&Redo (off)");
}

TEST(History, AStepOfAWindowBehindDoesNotChangeTheMenu) {
    HistorySession test;
    auto& first = test.Open(DocumentKind::Data);
    test.Open(DocumentKind::Data);
    test.Take(first, "one");
    EXPECT_EQ(test.UndoShown(), "&Undo (off)");
}

TEST(History, EndsWithItsWindow) {
    HistorySession test;
    auto& window = test.Open(DocumentKind::Data);
    test.Take(window, "one");
    CloseChild(test.session, window);
    EXPECT_EQ(test.UndoShown(), "&Undo (off)");
    EXPECT_FALSE(HistoryOf(test.session, window).CanUndo());
    auto& next = test.Open(DocumentKind::Data); // in the same slot
    EXPECT_FALSE(HistoryOf(test.session, next).CanUndo());
}

TEST(History, IsNotKeptForAWindowOutsideTheRegistry) {
    HistorySession test;
    FakeWindow loose(test.session, DocumentKind::Data, test.log);
    test.Take(loose, "one");
    EXPECT_FALSE(HistoryOf(test.session, loose).CanUndo());
}

} // namespace
} // namespace dorvan::test
