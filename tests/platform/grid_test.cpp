#include "platform/grid.h"

#include "numbers/runtime_failure.h"
#include "platform/keys.h"

#include <gtest/gtest.h>

#include <string>

namespace dorvan::test {
namespace {

constexpr int Page = 7; // rows

// 60 rows and 40 columns, one of each fixed.
struct GridTest : ::testing::Test {
    Grid grid{"Grid1"};

    GridTest() {
        grid.SetSize(60, 40);
        grid.SetCurrent(1, 1);
    }

    std::string Current() const { return std::to_string(grid.Row()) + "," + std::to_string(grid.Column()); }
    std::string After(int keyCode, bool control = false) {
        EXPECT_TRUE(grid.MoveByKey(keyCode, control, Page));
        return Current();
    }
    std::string AfterPress(int row, int column) {
        grid.Press(row, column);
        return Current();
    }
};

TEST_F(GridTest, ArrowsStopAtTheFixedCellsAndAtTheEdges) {
    EXPECT_EQ(After(key::Up), "1,1");
    EXPECT_EQ(After(key::Left), "1,1");
    EXPECT_EQ(After(key::Down), "2,1");
    EXPECT_EQ(After(key::Right), "2,2");
    grid.SetCurrent(59, 39);
    EXPECT_EQ(After(key::Down), "59,39");
    EXPECT_EQ(After(key::Right), "59,39");
    EXPECT_EQ(After(key::Up), "58,39");
    EXPECT_EQ(After(key::Left), "58,38");
}

TEST_F(GridTest, AnArrowLeavesAFixedCellThatARuleHasMadeCurrent) {
    grid.SetCurrent(3, 0);
    EXPECT_EQ(After(key::Down), "4,0");
    EXPECT_EQ(After(key::Left), "4,0");
    EXPECT_EQ(After(key::Right), "4,1");
    grid.SetCurrent(0, 5);
    EXPECT_EQ(After(key::Right), "0,6");
    EXPECT_EQ(After(key::Up), "0,6");
    EXPECT_EQ(After(key::Down), "1,6");
}

TEST_F(GridTest, HomeAndEndGoAlongTheRow) {
    grid.SetCurrent(5, 9);
    EXPECT_EQ(After(key::End), "5,39");
    EXPECT_EQ(After(key::Home), "5,1");
}

TEST_F(GridTest, HomeAndEndWithControlGoToTheCorners) {
    grid.SetCurrent(5, 9);
    EXPECT_EQ(After(key::End, true), "59,39");
    EXPECT_EQ(After(key::Home, true), "1,1");
}

TEST_F(GridTest, PagesMoveByTheirRowsAndStopAtTheEnds) {
    grid.SetCurrent(10, 4);
    EXPECT_EQ(After(key::PageDown), "17,4");
    EXPECT_EQ(After(key::PageUp), "10,4");
    EXPECT_EQ(After(key::PageUp), "3,4");
    EXPECT_EQ(After(key::PageUp), "1,4");
    grid.SetCurrent(55, 4);
    EXPECT_EQ(After(key::PageDown), "59,4");
}

TEST_F(GridTest, OtherKeysMoveNothing) {
    for (const int code : {key::None, key::Enter, key::Escape, key::Space, key::Tab, key::F2, int('A')})
        EXPECT_FALSE(grid.MoveByKey(code, false, Page)) << code;
    EXPECT_EQ(Current(), "1,1");
}

TEST_F(GridTest, KeysInAGridOfFixedCellsAloneStayInIt) {
    grid.SetSize(1, 1);
    for (const int code :
         {key::Left, key::Up, key::Right, key::Down, key::Home, key::End, key::PageUp, key::PageDown})
        EXPECT_EQ(After(code, true), "0,0") << code;
}

TEST_F(GridTest, KeysAndPressesInAnEmptyGridDoNothing) {
    grid.SetSize(0, 0);
    for (const int code : {key::Left, key::Down, key::Home, key::End, key::PageUp, key::PageDown})
        EXPECT_NO_THROW(grid.MoveByKey(code, true, Page)) << code;
    EXPECT_NO_THROW(grid.Press(0, 0));
}

TEST_F(GridTest, APressMovesTheCurrentCell) { EXPECT_EQ(AfterPress(5, 2), "5,2"); }

TEST_F(GridTest, APressOnAFixedCellMovesAlongTheOtherAxis) {
    grid.SetCurrent(5, 2);
    EXPECT_EQ(AfterPress(8, 0), "8,2");
    EXPECT_EQ(AfterPress(0, 3), "8,3");
    EXPECT_EQ(AfterPress(0, 0), "8,3");
}

TEST_F(GridTest, APressBehindTheCellsMovesNothing) {
    grid.SetCurrent(5, 2);
    EXPECT_EQ(AfterPress(-1, 2), "5,2");
    EXPECT_EQ(AfterPress(2, -1), "5,2");
    EXPECT_EQ(AfterPress(60, 2), "5,2");
    EXPECT_EQ(AfterPress(2, 40), "5,2");
}

TEST_F(GridTest, TellsWhetherTheLastPressWasOnAFixedRow) {
    EXPECT_FALSE(grid.FixedRowPressed());
    grid.Press(0, 3);
    EXPECT_TRUE(grid.FixedRowPressed());
    grid.Press(-1, 3);
    EXPECT_FALSE(grid.FixedRowPressed());
    grid.Press(0, -1); // behind the last column, beside the fixed row
    EXPECT_TRUE(grid.FixedRowPressed());
    grid.Press(2, 0);
    EXPECT_FALSE(grid.FixedRowPressed());
}

TEST_F(GridTest, EveryMoveIsARevision) {
    const auto revision = grid.Revision();
    grid.Press(5, 5);
    EXPECT_GT(grid.Revision(), revision);
}

} // namespace
} // namespace dorvan::test
