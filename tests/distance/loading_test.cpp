#include "distance/loading.h"
#include "distance/matrix_session.h"
#include "sheet/sheet_values.h"
#include "support/expect_failure.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan::test {
namespace {

struct Loading : ::testing::Test, MatrixSession {
    // The number that a cell's text is loaded as.
    float ValueOf(const std::string& text) {
        OpenSheet({{text}});
        EXPECT_TRUE(LoadWorkingData(session));
        return session.tables.DataValues(1, 1);
    }
};

using LoadWorkingDataTest = Loading;

TEST_F(LoadWorkingDataTest, FillsTheArraysWithTheSheet) {
    OpenSheet({{"1", "2", "3"}, {"4.5", "-5", "0.000"}});
    session.tables.RecordNames = Names(9, "old");
    session.tables.DataValues = FloatTable(9, 9, 7.0f);
    session.tables.RecordHasNA = Flags(9, true);
    session.tables.DataHasNA = true;
    ASSERT_TRUE(LoadWorkingData(session));
    EXPECT_EQ(session.tables.RecordNames.Cells(), (std::vector<std::string>{"r1", "r2"}));
    EXPECT_EQ(session.tables.VariableNames.Cells(), (std::vector<std::string>{"v1", "v2", "v3"}));
    ASSERT_EQ(session.tables.DataValues.Rows(), 2);
    ASSERT_EQ(session.tables.DataValues.Columns(), 3);
    EXPECT_EQ(session.tables.DataValues.Cells(), (std::vector<float>{1, 2, 3, 4.5f, -5, 0}));
    EXPECT_EQ(session.tables.RecordHasNA.Cells(), (std::vector<bool>{false, false}));
    EXPECT_FALSE(session.tables.DataHasNA);
}

TEST_F(LoadWorkingDataTest, CutsSpacesFromTheEndsOfNamesOnly) {
    auto& sheet = OpenSheet({{"1"}, {"2"}});
    sheet.Grid1.SetText(1, 1, "  a  name ");
    sheet.Grid1.SetText(2, 1, "   ");
    sheet.Grid1.SetText(0, 2, " a variable  ");
    ASSERT_TRUE(LoadWorkingData(session));
    EXPECT_EQ(session.tables.RecordNames(1), "a  name");
    EXPECT_EQ(session.tables.RecordNames(2), "");
    EXPECT_EQ(session.tables.VariableNames(1), "a variable");
    EXPECT_EQ(sheet.Grid1.Text(1, 1), "  a  name ");
}

TEST_F(LoadWorkingDataTest, ReadsCommaAndPointAlikeUnderEitherSeparator) {
    for (const char separator : {'.', ','}) {
        session.DecimalSeparator = separator;
        EXPECT_EQ(ValueOf("1,5"), 1.5f);
        EXPECT_EQ(ValueOf("1.5"), 1.5f);
    }
}

TEST_F(LoadWorkingDataTest, ReadsTheLongestLeadingNumber) {
    EXPECT_EQ(ValueOf("12abc"), 12.0f);
    EXPECT_EQ(ValueOf("abc"), 0.0f);
    EXPECT_EQ(ValueOf("1,234.5"), 1.234f);
    EXPECT_EQ(ValueOf("2,5e3"), 2500.0f);
    EXPECT_EQ(ValueOf("  -7.25 "), -7.25f);
    EXPECT_EQ(ValueOf("0.1"), 0.1f);
    EXPECT_EQ(ValueOf("1e-50"), 0.0f); // below the least 32-bit float
}

TEST_F(LoadWorkingDataTest, AMissingValueIsTheTextNAInCapitals) {
    EXPECT_EQ(ValueOf("N/A"), NaValue);
    EXPECT_TRUE(session.tables.DataHasNA);
    EXPECT_EQ(ValueOf("  N/A "), NaValue);
    EXPECT_TRUE(session.tables.RecordHasNA(1));
    EXPECT_EQ(ValueOf("n/a"), 0.0f);
    EXPECT_FALSE(session.tables.DataHasNA);
    EXPECT_FALSE(session.tables.RecordHasNA(1));
    EXPECT_EQ(ValueOf("N/A."), 0.0f);
}

TEST_F(LoadWorkingDataTest, MarksTheRecordsThatMissAValue) {
    OpenSheet({{"1", "2"}, {"N/A", "N/A"}, {"3", "N/A"}});
    ASSERT_TRUE(LoadWorkingData(session));
    EXPECT_EQ(session.tables.RecordHasNA.Cells(), (std::vector<bool>{false, true, true}));
    EXPECT_TRUE(session.tables.DataHasNA);
    EXPECT_EQ(session.tables.DataValues.Cells(), (std::vector<float>{1, 2, NaValue, NaValue, 3, NaValue}));
}

TEST_F(LoadWorkingDataTest, ATypedMarkerIsTheSameValueButMarksNoRecord) {
    EXPECT_EQ(ValueOf("-9999999"), NaValue);
    EXPECT_FALSE(session.tables.RecordHasNA(1));
    EXPECT_FALSE(session.tables.DataHasNA);
}

TEST_F(LoadWorkingDataTest, WritesZerosIntoEmptyCellsAndChangesNothingElse) {
    auto& sheet = OpenSheet({{"", "   ", " 1,5 ", "abc", "N/A"}});
    session.DataStates.at(1).Dirty = false;
    ASSERT_TRUE(LoadWorkingData(session));
    EXPECT_EQ(session.tables.DataValues.Cells(), (std::vector<float>{0, 0, 1.5f, 0, NaValue}));
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "0.00");
    EXPECT_EQ(sheet.Grid1.Text(1, 3), "0.00");
    EXPECT_EQ(sheet.Grid1.Text(1, 4), " 1,5 ");
    EXPECT_EQ(sheet.Grid1.Text(1, 5), "abc");
    EXPECT_EQ(sheet.Grid1.Text(1, 6), "N/A");
    EXPECT_FALSE(session.DataStates.at(1).Dirty);
}

TEST_F(LoadWorkingDataTest, LeavesTheFocusInTheGridAndTheCurrentCellAtTheEnd) {
    auto& sheet = OpenSheet({{"1", "2"}, {"3", "4"}, {"5", "6"}});
    ASSERT_TRUE(LoadWorkingData(session));
    EXPECT_EQ(sheet.ActiveControl, &sheet.Grid1);
    EXPECT_EQ(sheet.Grid1.Row(), 3);
    EXPECT_EQ(sheet.Grid1.Column(), 3);
}

TEST_F(LoadWorkingDataTest, StopsAtAPendingErrorAndNamesRecordAndVariable) {
    auto& sheet = OpenSheet({{"", "2"}, {"3", "4"}});
    session.Of<SheetValues>().PendingError = true;
    EXPECT_FALSE(LoadWorkingData(session));
    EXPECT_EQ(messages.shown,
              (std::vector<Message>{{.Text = "Data Error. Row= 1, Col= 1", .Icon = MessageIcon::Critical}}));
    EXPECT_EQ(session.tables.RecordNames(2), "r2");
    EXPECT_EQ(sheet.Grid1.Text(1, 2), "") << "the load stops before an empty cell is written";
}

TEST_F(LoadWorkingDataTest, LoadsASheetWithoutVariables) {
    OpenSheet({{}, {}, {}});
    ASSERT_TRUE(LoadWorkingData(session));
    EXPECT_EQ(session.tables.RecordNames.Count(), 3);
    EXPECT_EQ(session.tables.VariableNames.Count(), 0);
    EXPECT_EQ(session.tables.DataValues.Rows(), 3);
    EXPECT_EQ(session.tables.DataValues.Columns(), 0);
}

TEST_F(LoadWorkingDataTest, ANumberOutsideTheRangeOverflows) {
    EXPECT_FAILURE(Failure::Overflow, ValueOf("1e39"));  // a 64-bit float, no 32-bit one
    EXPECT_FAILURE(Failure::Overflow, ValueOf("1e400")); // neither
    EXPECT_FAILURE(Failure::Overflow, ValueOf("-1e39"));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(LoadWorkingDataTest, FailsWithoutAnActiveDataSheet) {
    EXPECT_FAILURE(Failure::InvalidProcedureCall, LoadWorkingData(session));
}

} // namespace
} // namespace dorvan::test
