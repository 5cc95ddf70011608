#include "platform/cell_marking.h"

#include "numbers/runtime_failure.h"
#include "platform/keys.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <ostream>

namespace dorvan {

void PrintTo(const CellRange& range, std::ostream* out) {
    *out << range.Top << "," << range.Left << " to " << range.Bottom << "," << range.Right;
}

} // namespace dorvan

namespace dorvan::test {
namespace {

constexpr int Page = 4; // rows

// 9 rows and 7 columns, one of each fixed; the cell 3,2 is current.
struct CellMarkingTest : ::testing::Test {
    Grid grid{"Grid1"};
    CellMarking marking{grid};

    CellMarkingTest() {
        grid.SetSize(9, 7);
        grid.SetCurrent(3, 2);
    }

    CellRange After(int keyCode, bool control = false) {
        EXPECT_TRUE(marking.ExtendByKey(keyCode, control, Page));
        return grid.Marked();
    }
    CellRange AfterDrag(int fromRow, int fromColumn, int row, int column) {
        grid.Press(fromRow, fromColumn);
        marking.Press(fromRow, fromColumn);
        marking.DragTo(row, column);
        return grid.Marked();
    }
    void ExpectCurrent(int row, int column) const {
        EXPECT_EQ(grid.Row(), row);
        EXPECT_EQ(grid.Column(), column);
    }
};

TEST_F(CellMarkingTest, WithoutAMarkTheCurrentCellAloneIsMarked) {
    EXPECT_EQ(grid.Marked(), (CellRange{3, 2, 3, 2}));
    EXPECT_TRUE(grid.Marked().IsOneCell());
}

TEST_F(CellMarkingTest, ShiftAndTheArrowsMoveTheEndAndTheCurrentCellStays) {
    EXPECT_EQ(After(key::Down), (CellRange{3, 2, 4, 2}));
    EXPECT_EQ(After(key::Right), (CellRange{3, 2, 4, 3}));
    EXPECT_EQ(marking.EndRow(), 4);
    EXPECT_EQ(marking.EndColumn(), 3);
    EXPECT_EQ(After(key::Up), (CellRange{3, 2, 3, 3}));
    EXPECT_EQ(After(key::Up), (CellRange{2, 2, 3, 3}));
    EXPECT_EQ(After(key::Left), (CellRange{2, 2, 3, 2}));
    EXPECT_EQ(After(key::Left), (CellRange{2, 1, 3, 2}));
    ExpectCurrent(3, 2);
    EXPECT_FALSE(marking.ExtendByKey(key::Enter, false, Page));
}

TEST_F(CellMarkingTest, TheHeadsCanBeMarkedTheNumbersCanNot) {
    for (int step = 0; step < 9; ++step) After(key::Up);
    for (int step = 0; step < 9; ++step) After(key::Left);
    EXPECT_EQ(grid.Marked(), (CellRange{0, 1, 3, 2}));
    for (int step = 0; step < 20; ++step) After(key::Down);
    for (int step = 0; step < 20; ++step) After(key::Right);
    EXPECT_EQ(grid.Marked(), (CellRange{3, 2, 8, 6}));
}

TEST_F(CellMarkingTest, HomeEndAndThePagesReachAsFarAsTheyMove) {
    EXPECT_EQ(After(key::End), (CellRange{3, 2, 3, 6}));
    EXPECT_EQ(After(key::Home), (CellRange{3, 1, 3, 2}));
    EXPECT_EQ(After(key::PageDown), (CellRange{3, 1, 7, 2}));
    EXPECT_EQ(After(key::PageDown), (CellRange{3, 1, 8, 2}));
    for (int page = 0; page < 3; ++page) After(key::PageUp);
    EXPECT_EQ(grid.Marked(), (CellRange{1, 1, 3, 2})); // not into the heads
    EXPECT_EQ(After(key::End, true), (CellRange{3, 2, 8, 6}));
    EXPECT_EQ(After(key::Home, true), (CellRange{1, 1, 3, 2}));
    EXPECT_EQ(After(key::Right, true), (CellRange{1, 2, 3, 6}));
    EXPECT_EQ(After(key::Down, true), (CellRange{3, 2, 8, 6}));
    EXPECT_EQ(After(key::Left, true), (CellRange{3, 1, 8, 2}));
    EXPECT_EQ(After(key::Up, true), (CellRange{1, 1, 3, 2}));
}

TEST_F(CellMarkingTest, WhatMovesTheCurrentCellEndsTheMarking) {
    After(key::Down);
    grid.SetCurrent(5, 5);
    EXPECT_EQ(grid.Marked(), (CellRange{5, 5, 5, 5}));
    EXPECT_EQ(After(key::Right), (CellRange{5, 5, 5, 6})); // from there on
    grid.ArrowKey(key::Up);
    EXPECT_EQ(grid.Marked(), (CellRange{4, 5, 4, 5}));
}

TEST_F(CellMarkingTest, AnotherSizeEndsTheMarking) {
    After(key::Down);
    grid.SetSize(9, 8);
    EXPECT_TRUE(grid.Marked().IsOneCell());
    After(key::Down);
    grid.RemoveRow(8);
    EXPECT_TRUE(grid.Marked().IsOneCell());
}

TEST_F(CellMarkingTest, AClickWithShiftMarksUpToItsCell) {
    marking.ExtendTo(5, 4);
    EXPECT_EQ(grid.Marked(), (CellRange{3, 2, 5, 4}));
    marking.ExtendTo(1, 1); // still from the current cell
    EXPECT_EQ(grid.Marked(), (CellRange{1, 1, 3, 2}));
    marking.ExtendTo(0, 4);
    EXPECT_EQ(grid.Marked(), (CellRange{0, 2, 3, 4}));
    marking.ExtendTo(-1, 3); // behind the last row
    EXPECT_EQ(grid.Marked(), (CellRange{0, 2, 3, 4}));
    EXPECT_EQ(After(key::Right), (CellRange{0, 2, 3, 5})); // the keys go on from there
    ExpectCurrent(3, 2);
}

TEST_F(CellMarkingTest, ADragMarksFromWhereItBegan) {
    EXPECT_EQ(AfterDrag(5, 4, 5, 4), (CellRange{5, 4, 5, 4}));
    marking.DragTo(7, 3);
    EXPECT_EQ(grid.Marked(), (CellRange{5, 3, 7, 4}));
    marking.DragTo(5, 4);
    EXPECT_TRUE(grid.Marked().IsOneCell());
    marking.DragTo(2, 0); // over the numbers
    EXPECT_EQ(grid.Marked(), (CellRange{2, 1, 5, 4}));
    ExpectCurrent(5, 4);
}

TEST_F(CellMarkingTest, ADragFromAHeadTakesTheHeadsAlong) {
    EXPECT_EQ(AfterDrag(0, 2, 4, 3), (CellRange{0, 2, 4, 3}));
    EXPECT_EQ(AfterDrag(0, 2, 0, 3), (CellRange{0, 2, 8, 3})); // along them: whole columns
    EXPECT_EQ(AfterDrag(2, 0, 4, 0), (CellRange{2, 1, 4, 6})); // along the numbers: whole rows
    EXPECT_EQ(AfterDrag(2, 0, 4, 3), (CellRange{2, 1, 4, 3}));
    ExpectCurrent(2, 2);
}

TEST_F(CellMarkingTest, APressOutsideTheCellsDragsNothing) {
    EXPECT_TRUE(AfterDrag(-1, 4, 5, 4).IsOneCell());
    EXPECT_TRUE(AfterDrag(4, -1, 5, 4).IsOneCell());
}

TEST_F(CellMarkingTest, AllIsEverythingButTheNumbers) {
    marking.MarkAll();
    EXPECT_EQ(grid.Marked(), (CellRange{0, 1, 8, 6}));
    ExpectCurrent(3, 2);
}

TEST_F(CellMarkingTest, AGridWithoutCellsIsNeverMarked) {
    grid.SetSize(0, 0);
    marking.MarkAll();
    marking.ExtendTo(1, 1);
    EXPECT_TRUE(grid.Marked().IsOneCell());
    grid.SetSize(4, 1);
    marking.MarkAll();
    EXPECT_TRUE(grid.Marked().IsOneCell());
}

TEST_F(CellMarkingTest, OnlyCellsOfTheGridCanBeMarked) {
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, grid.Mark({0, 0, 9, 2}));
}

TEST_F(CellMarkingTest, AStepInPassingIsToldApart) {
    EXPECT_FALSE(grid.Passed());
    grid.PassTo(4, 4);
    ExpectCurrent(4, 4);
    EXPECT_TRUE(grid.Passed());
    grid.SetCurrent(4, 4);
    EXPECT_FALSE(grid.Passed());
}

} // namespace
} // namespace dorvan::test
