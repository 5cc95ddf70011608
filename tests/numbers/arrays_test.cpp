#include "numbers/arrays.h"

#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan {
namespace {

TEST(Array1, CountsFromOne) {
    Array1<int> values(3, 7);
    values(1) = 1;
    values(3) = 3;
    EXPECT_EQ(values.Count(), 3);
    EXPECT_EQ(values.Cells(), (std::vector<int>{1, 7, 3}));
    const Array1<int>& constant = values;
    EXPECT_EQ(constant(2), 7);
}

TEST(Array1, IndexOutsideFails) {
    Array1<int> values(3);
    const Array1<int>& constant = values;
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, values(0));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, values(4));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, values(-1));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, constant(4));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, Array1<int>()(1));
}

TEST(Array1, AppendedValueIsTheLast) {
    Array1<std::string> names;
    names.Append("a");
    names.Append("b");
    EXPECT_EQ(names.Count(), 2);
    EXPECT_EQ(names(2), "b");
}

TEST(Array1, HoldsBooleans) {
    Array1<bool> flags(2, false);
    flags(2) = true;
    EXPECT_FALSE(flags(1));
    EXPECT_TRUE(flags(2));
}

TEST(Array2, KeepsRowByRow) {
    Array2<int> table(2, 3);
    table(1, 3) = 13;
    table(2, 1) = 21;
    EXPECT_EQ(table.Rows(), 2);
    EXPECT_EQ(table.Columns(), 3);
    EXPECT_EQ(table.Cells(), (std::vector<int>{0, 0, 13, 21, 0, 0}));
    EXPECT_EQ(table.Row(2)[0], 21);
    const Array2<int>& constant = table;
    EXPECT_EQ(constant(1, 3), 13);
    EXPECT_EQ(constant.Row(1)[2], 13);
}

TEST(Array2, IndexOutsideFails) {
    Array2<int> table(2, 3);
    const Array2<int>& constant = table;
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, table(0, 1));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, table(1, 0));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, table(3, 1));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, table(1, 4));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, constant(2, 4));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, Array2<int>()(1, 1));
}

TEST(Array2, EqualityLooksAtShapeAndCells) {
    EXPECT_EQ(Array2<int>(2, 3, 1), Array2<int>(2, 3, 1));
    EXPECT_NE(Array2<int>(2, 3, 1), Array2<int>(3, 2, 1));
    EXPECT_NE(Array2<int>(2, 3, 1), Array2<int>(2, 3, 2));
}

} // namespace
} // namespace dorvan
