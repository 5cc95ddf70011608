#include "diagram_session.h"
#include "distance/frmMacierz.h"
#include "session/children.h"
#include "sheet/frmNotePad.h"

#include <gtest/gtest.h>

namespace dorvan::test {
namespace {

struct DerivedDocuments : ::testing::Test, DiagramSession {
    frmDiagram& window = Open(SampleDocument(3), "  of three  ");

    DerivedDocuments() { ShowChild(session, window); }

    frmNotePad& sheet() { return dynamic_cast<frmNotePad&>(*session.ActiveWindow); }
    frmMacierz& matrix() { return dynamic_cast<frmMacierz&>(*session.ActiveWindow); }

    void moveRow(int row) {
        ActivateChild(session, window);
        window.Siatka.SetCurrent(row, 2);
        window.SelectThisRow();
        window.Home();
    }
};

TEST_F(DerivedDocuments, SheetHasHeadersNumbersNamesAndValues) {
    window.Document().VariableNames(2) = "second";
    window.DataOrder();
    const Grid& grid = sheet().Grid1;
    ASSERT_EQ(grid.Rows(), 4);
    ASSERT_EQ(grid.Columns(), 4);
    const char* texts[4][4] = {{"Number", "Record Name", "v", "second"},
                               {" 1", "A", "1.000", "101.000"},
                               {" 2", "B", "2.000", "102.000"},
                               {" 3", "C", "3.000", "103.000"}};
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column) EXPECT_EQ(grid.Text(row, column), texts[row][column]);
    const int widths[] = {900, 1800, 900, 900};
    for (int column = 0; column < 4; ++column) EXPECT_EQ(grid.ColumnWidth(column), widths[column]);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Column(), 1);
}

TEST_F(DerivedDocuments, SheetIsANewDocumentOfItsOwnSlot) {
    window.DataOrder();
    EXPECT_EQ(sheet().Caption, "[DATA]: Untitled:1");
    EXPECT_EQ(sheet().Tag, "1");
    EXPECT_EQ(sheet().OpisText.Text, "of three");
    EXPECT_TRUE(session.DataStates[1].Dirty);
    EXPECT_EQ(sheet().Width, int(screen.widthTwips * 0.95));
    EXPECT_EQ(sheet().Height, int(screen.heightTwips * 0.8));
    ActivateChild(session, window);
    window.DataOrder();
    EXPECT_EQ(sheet().Caption, "[DATA]: Untitled:2");
}

TEST_F(DerivedDocuments, MissingValueArrivesAsANumber) {
    window.Document().Data(2, 1) = NaValue;
    window.DataOrder();
    EXPECT_EQ(sheet().Grid1.Text(2, 2), "-9999999.000");
}

TEST_F(DerivedDocuments, AfterAMoveTheNamesStandInTheNewOrderAndTheValuesInTheOld) {
    moveRow(3);
    window.DataOrder();
    const Grid& grid = sheet().Grid1;
    EXPECT_EQ(grid.Text(1, 1), "C");
    EXPECT_EQ(grid.Text(1, 2), "1.000");
    EXPECT_EQ(grid.Text(2, 1), "A");
    EXPECT_EQ(grid.Text(2, 2), "2.000");
}

TEST_F(DerivedDocuments, MatrixStandsInTheOrderOfTheDiagram) {
    moveRow(3);
    window.Matrix();
    const DistanceMatrix& document = matrix().Document();
    EXPECT_EQ(document.Size, 3);
    EXPECT_EQ(document.Names.Cells(), (std::vector<std::string>{"C", "A", "B"}));
    EXPECT_EQ(document.Cells(1, 1), "0");
    EXPECT_EQ(document.Cells(1, 2), "13");
    EXPECT_EQ(document.Cells(3, 2), "12");
    const Grid& grid = matrix().Siatka;
    EXPECT_EQ(grid.Text(1, 1), "C");
    EXPECT_EQ(grid.Text(0, 2), "1");
    EXPECT_EQ(grid.Text(1, 3), "13.000");
    EXPECT_EQ(grid.Text(3, 0), "3");
}

TEST_F(DerivedDocuments, MatrixIsANewDocumentOfItsOwnSlot) {
    window.Matrix();
    EXPECT_EQ(matrix().Caption, "[MATRIX]: Untitled:1");
    EXPECT_EQ(matrix().BottomText.Text, "  of three  "); // as it stands
    EXPECT_TRUE(session.MatrixStates[1].Dirty);
    EXPECT_EQ(signals.cursors, (std::vector{Cursor::Wait, Cursor::Default}));
    ActivateChild(session, window);
    window.Matrix();
    EXPECT_EQ(matrix().Caption, "[MATRIX]: Untitled:2");
    EXPECT_EQ(matrix().Tag, "2");
}

TEST_F(DerivedDocuments, ColumnsAreAsWideAsTheLongestTextAsks) {
    const auto widthFor = [this](float shortest, float longest) {
        auto& cells = window.Document().Matrix;
        cells = FloatTable(3, 3, shortest);
        cells(1, 2) = longest;
        ActivateChild(session, window);
        window.Matrix();
        return matrix().Siatka.ColumnWidth(2);
    };
    EXPECT_EQ(widthFor(1.5f, 12.5f), 676);     // 4 characters: 1.3 of the default
    EXPECT_EQ(widthFor(1.5f, 12.25f), 780);    // 5: 1.5
    EXPECT_EQ(widthFor(900, 0.125f), 780);     // not the highest value but the longest text
    EXPECT_EQ(widthFor(1, 0.3333333f), 1300);  // 9: 2.5
    EXPECT_EQ(widthFor(1, -0.3333333f), 1430); // 10: 2.75
    EXPECT_EQ(widthFor(1, 2), 676);
}

TEST_F(DerivedDocuments, BothBeepWhileADiagramIsBeingMade) {
    session.DiagramBusy = 1;
    window.DataOrder();
    window.Matrix();
    EXPECT_EQ(signals.beeps, 2);
    EXPECT_EQ(session.ActiveWindow, &window);
}

TEST_F(DerivedDocuments, DiagramStaysAsItWas) {
    session.DiagramStates[1].Dirty = false;
    window.DataOrder();
    ActivateChild(session, window);
    window.Matrix();
    EXPECT_FALSE(session.DiagramStates[1].Dirty);
    EXPECT_EQ(NamesOf(window), "ABC");
}

} // namespace
} // namespace dorvan::test
