#include "session/registry.h"

#include "fake_window.h"
#include "numbers/runtime_failure.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

using FindFree = std::int16_t (*)(Session&);

struct Kind {
    std::string_view Name;
    FindFree Find;
    std::vector<WindowState> Session::*States;
    std::vector<std::shared_ptr<ChildWindow>> Session::*Windows;
};

const Kind EveryKind[] = {
    {DocumentKind::Data, FindFreeDataSlot, &Session::DataStates, &Session::DataWindows},
    {DocumentKind::Matrix, FindFreeMatrixSlot, &Session::MatrixStates, &Session::MatrixWindows},
    {DocumentKind::Diagram, FindFreeDiagramSlot, &Session::DiagramStates, &Session::DiagramWindows},
    {DocumentKind::Bitmap, FindFreeBitmapSlot, &Session::BitmapStates, &Session::BitmapWindows}};

TEST(FindFreeSlot, TakesSlotOneFirstThenNewOnes) {
    TestSession test;
    for (const auto& kind : EveryKind) {
        EXPECT_EQ(kind.Find(test.session), 1) << kind.Name;
        EXPECT_EQ(kind.Find(test.session), 2) << kind.Name;
        EXPECT_EQ(kind.Find(test.session), 3) << kind.Name;
        EXPECT_EQ((test.session.*kind.States).size(), 4u) << kind.Name;
        EXPECT_EQ((test.session.*kind.Windows).size(), 4u) << kind.Name;
    }
    EXPECT_EQ(test.session.MatrixDocuments.size(), 4u);
    EXPECT_EQ(test.session.DiagramDocuments.size(), 4u);
}

TEST(FindFreeSlot, TakesTheFirstFreeOneAndClearsItsDeletedFlag) {
    TestSession test;
    for (const auto& kind : EveryKind) {
        for (int i = 0; i < 4; ++i) kind.Find(test.session);
        auto& states = test.session.*kind.States;
        states[2].Deleted = states[4].Deleted = true;
        EXPECT_EQ(kind.Find(test.session), 2) << kind.Name;
        EXPECT_FALSE(states[2].Deleted);
        EXPECT_TRUE(states[4].Deleted);
        EXPECT_EQ(states.size(), 5u) << "a reused slot must not grow the registry";
    }
}

TEST(FindFreeSlot, KeepsDirtyOfAReusedSlotAndClearsBothFlagsOfANewOne) {
    TestSession test;
    test.session.DataStates[1].Dirty = true;
    EXPECT_EQ(FindFreeDataSlot(test.session), 1);
    EXPECT_TRUE(test.session.DataStates[1].Dirty);
    EXPECT_EQ(FindFreeDataSlot(test.session), 2);
    EXPECT_FALSE(test.session.DataStates[2].Dirty);
    EXPECT_FALSE(test.session.DataStates[2].Deleted);
}

TEST(FindFreeSlot, NeverExaminesSlotZero) {
    TestSession test;
    test.session.DataStates[0].Deleted = true;
    test.session.DataStates[1].Deleted = false;
    EXPECT_EQ(FindFreeDataSlot(test.session), 2);
}

TEST(FindFreeSlot, KeepsTheDocumentsWhenItGrows) {
    TestSession test;
    test.session.MatrixDocuments[1].Size = 7;
    test.session.DiagramDocuments[1].RecCount = 8;
    FindFreeMatrixSlot(test.session);
    FindFreeMatrixSlot(test.session);
    FindFreeDiagramSlot(test.session);
    FindFreeDiagramSlot(test.session);
    EXPECT_EQ(test.session.MatrixDocuments[1].Size, 7);
    EXPECT_EQ(test.session.DiagramDocuments[1].RecCount, 8);
}

TEST(FindFreeSlot, OverflowsPastTheLastSixteenBitIndex) {
    TestSession test;
    auto& session = test.session;
    session.DataStates.assign(32767, WindowState{});
    session.DataWindows.assign(32767, nullptr);
    EXPECT_EQ(FindFreeDataSlot(session), 32767);
    try {
        FindFreeDataSlot(session);
        FAIL() << "slot 32768 must not exist";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.Kind(), Failure::Overflow);
    }
    EXPECT_EQ(session.DataStates.size(), 32768u);
    EXPECT_EQ(session.DataWindows.size(), 32768u);
}

TEST(AnyDataWindowOpen, LooksAtTheDataSlotsFromOneUp) {
    TestSession test;
    EXPECT_FALSE(AnyDataWindowOpen(test.session));
    FindFreeMatrixSlot(test.session);
    EXPECT_FALSE(AnyDataWindowOpen(test.session));
    FindFreeDataSlot(test.session);
    FindFreeDataSlot(test.session);
    EXPECT_TRUE(AnyDataWindowOpen(test.session));
    test.session.DataStates[1].Deleted = true;
    EXPECT_TRUE(AnyDataWindowOpen(test.session));
    test.session.DataStates[2].Deleted = true;
    EXPECT_FALSE(AnyDataWindowOpen(test.session));
}

TEST(PutIntoRegistry, HandsTheSlotIndexToTheWindow) {
    FakeWindowSession test;
    test.session.DataStates.resize(4);
    test.session.DataWindows.resize(4);
    test.session.NewWindowIndex = 3;
    const auto window = std::make_shared<FakeWindow>(test.session, DocumentKind::Data, test.log);
    PutIntoRegistry(test.session, DocumentKind::Data, window);
    EXPECT_EQ(window->Index, 3);
    EXPECT_EQ(window->Tag, "3");
    EXPECT_EQ(window->TypeOfForm, "") << "set from the first activation on";
    EXPECT_EQ(test.session.DataWindows[3], window);
}

TEST(PutIntoRegistry, FailsForASlotThatIsNotThereAndForNoKind) {
    FakeWindowSession test;
    const auto window = std::make_shared<FakeWindow>(test.session, DocumentKind::Data, test.log);
    for (const int slot : {-1, 0, 2}) {
        test.session.NewWindowIndex = static_cast<std::int16_t>(slot);
        EXPECT_FAILURE(Failure::SubscriptOutOfRange,
                       PutIntoRegistry(test.session, DocumentKind::Data, window));
    }
    test.session.NewWindowIndex = 1;
    EXPECT_FAILURE(Failure::InvalidProcedureCall, PutIntoRegistry(test.session, DocumentKind::Main, window));
}

TEST(StateOfSlot, IsTheOneOfItsKind) {
    TestSession test;
    auto& session = test.session;
    EXPECT_EQ(&StateOfSlot(session, DocumentKind::Data, 1), &session.DataStates[1]);
    EXPECT_EQ(&StateOfSlot(session, DocumentKind::Matrix, 1), &session.MatrixStates[1]);
    EXPECT_EQ(&StateOfSlot(session, DocumentKind::Diagram, 1), &session.DiagramStates[1]);
    EXPECT_EQ(&StateOfSlot(session, DocumentKind::Bitmap, 1), &session.BitmapStates[1]);
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, StateOfSlot(session, DocumentKind::Data, 2));
    EXPECT_FAILURE(Failure::InvalidProcedureCall, StateOfSlot(session, DocumentKind::Main, 1));
}

TEST(FindFreeSlot, IsTheOneOfItsKind) {
    TestSession test;
    for (const auto kind :
         {DocumentKind::Data, DocumentKind::Matrix, DocumentKind::Diagram, DocumentKind::Bitmap}) {
        EXPECT_EQ(FindFreeSlot(test.session, kind), 1) << kind;
        EXPECT_FALSE(StateOfSlot(test.session, kind, 1).Deleted) << kind;
        EXPECT_EQ(FindFreeSlot(test.session, kind), 2) << kind;
    }
    EXPECT_FAILURE(Failure::InvalidProcedureCall, FindFreeSlot(test.session, DocumentKind::Main));
}

TEST(UntitledCaption, IsTheKindAndTheSlot) {
    EXPECT_EQ(UntitledCaption(DocumentKind::Data, 1), "[DATA]: Untitled:1");
    EXPECT_EQ(UntitledCaption(DocumentKind::Matrix, 3), "[MATRIX]: Untitled:3");
    EXPECT_EQ(UntitledCaption(DocumentKind::Diagram, 20), "[DIAGRAM]: Untitled:20");
    EXPECT_EQ(UntitledCaption(DocumentKind::Bitmap, 4), "[BITMAP]: Untitled:4");
}

TEST(CaptionPath, IsTheCaptionWithoutItsKind) {
    EXPECT_EQ(CaptionPath("[DATA]: c:\\a.mdt"), "c:\\a.mdt");
    EXPECT_EQ(CaptionPath("[MATRIX]: A.mtx"), "A.mtx");
    EXPECT_EQ(CaptionPath("[DIAGRAM]: A.dgr"), "A.dgr");
    EXPECT_EQ(CaptionPath("[BITMAP]: A.png"), "A.png");
}

TEST(IsUntitled, LooksForTheWordAnywhere) {
    EXPECT_TRUE(IsUntitled("[DATA]: Untitled:1"));
    EXPECT_TRUE(IsUntitled("[MATRIX]: /home/Untitled Works/a.mtx"));
    EXPECT_FALSE(IsUntitled("[DATA]: untitled.mdt"));
}

} // namespace
} // namespace dorvan::test
