#include "program/status_line.h"

#include "distance/frmMacierz.h"
#include "program_session.h"
#include "session/busy.h"
#include "session/frmMDI.h"
#include "session/opening.h"
#include "session/status_bar.h"
#include "view/classes.h"
#include "view/frmDiagram.h"

namespace dorvan::test {
namespace {

class StatusLineTest : public ProgramSession {
protected:
    Session& session = made.session;
    StatusBar& bar = session.forms.Load<StatusBar>(session);

    // Of three records with the distances 1 (a, b), 2.5 (a, c) and 4 (b, c).
    frmDiagram& NewDiagram() {
        DiagramDocument document;
        document.RecCount = 3;
        document.DistType = 3;
        document.DiagType = 2;
        document.NoData = true;
        document.RecordNames.Cells() = {"ann ", "bob", "cid"};
        document.RecordHasNA = Flags(3);
        document.Matrix = FloatTable(3, 3);
        document.Matrix.Cells() = {0, 1, 2.5F, 1, 0, 4, 2.5F, 4, 0};
        document.SectionLimits.Cells() = {1, 2, 3, 4};
        ClassifyDiagram(document);
        const std::int16_t slot = FindFreeDiagramSlot(session);
        session.DiagramDocuments.at(std::size_t(slot)) = document;
        return OpenDocumentWindow<frmDiagram>(session, {.Slot = slot},
                                              [](frmDiagram& window) { window.Present(""); });
    }
};

TEST_F(StatusLineTest, ACellOfADiagramHasBothNamesItsDistanceClassAndLimits) {
    auto& window = NewDiagram();
    EXPECT_EQ(CellWords(session, window, 1, 4), "ann – cid: 2.500, class 3 (2.00 - 3.00)");
    EXPECT_EQ(CellWords(session, window, 2, 2), "bob – ann: 1.000, class 4 (1.00 - 2.00)");
    EXPECT_EQ(CellWords(session, window, 3, 4), "cid – cid: 0.000, class 5 (0 - 1.00)");
    EXPECT_EQ(CellWords(session, window, 3, 3), "cid – bob: 4.000, class 1 (>= 4.00)");
    EXPECT_EQ(CellWords(session, window, 2, 1), "bob, place 2");
    EXPECT_EQ(CellWords(session, window, 2, 0), "bob, place 2");
    EXPECT_EQ(CellWords(session, window, 0, 4), "cid, place 3");
    EXPECT_EQ(CellWords(session, window, 0, 1), "");
    EXPECT_EQ(CellWords(session, window, 4, 1), "") << "behind the last row";
    EXPECT_EQ(CellWords(session, window, -1, -1), "");
    window.Document().Classes(1, 2) = 6;
    EXPECT_EQ(CellWords(session, window, 1, 3), "ann – bob: 1.000, in no class");
}

TEST_F(StatusLineTest, ACellOfASheetHasItsRecordAndVariable) {
    auto& sheet = NewSheet();
    EXPECT_EQ(CellWords(session, sheet, 2, 3), "rec2, b: 4.000");
    EXPECT_EQ(CellWords(session, sheet, 2, 1), "rec2, record 2");
    EXPECT_EQ(CellWords(session, sheet, 0, 3), "b");
    EXPECT_EQ(CellWords(session, sheet, 0, 1), "");
    sheet.Grid1.SetText(2, 3, "");
    EXPECT_EQ(CellWords(session, sheet, 2, 3), "rec2, b: empty");
    EXPECT_EQ(WindowWords(session, sheet), "3 records, 2 variables");
}

TEST_F(StatusLineTest, ACellOfAMatrixHasTheWholeText) {
    auto& diagram = NewDiagram();
    diagram.Document().Matrix(1, 3) = 2.123456F;
    diagram.Matrix();
    auto& matrix = dynamic_cast<frmMacierz&>(*session.ActiveWindow);
    EXPECT_EQ(CellWords(session, matrix, 1, 4), "ann – cid: 2.123456");
    EXPECT_EQ(CellWords(session, matrix, 0, 3), "bob, place 2");
    EXPECT_EQ(CellWords(session, matrix, 1, 0), "ann, place 1");
    EXPECT_EQ(WindowWords(session, matrix), "3 records");
    EXPECT_TRUE(LegendOf(session, matrix).empty());
}

TEST_F(StatusLineTest, ADiagramTellsMeasureTypeCriterionAndSelection) {
    auto& window = NewDiagram();
    // (1 / 2 + 4 / 3 + 1 / 5) / 4.5, the distance 2.5 as the byte 2
    EXPECT_EQ(WindowWords(session, window), "Euclidean, dots, UM 0.4519");
    window.Siatka.SetCurrent(3, 1);
    window.SelectThisRow();
    EXPECT_EQ(WindowWords(session, window), "Euclidean, dots, UM 0.4519, selected: cid");
    window.Up();
    // (4 / 2 + 1 / 3 + 1 / 5) / 4.5
    EXPECT_EQ(WindowWords(session, window), "Euclidean, dots, UM 0.5630, selected: cid");
    window.Document().DiagType = 3;
    EXPECT_TRUE(WindowWords(session, window).starts_with("Euclidean, classic, "));
}

TEST_F(StatusLineTest, DistancesWithoutACriterionLeaveItOut) {
    auto& window = NewDiagram();
    EXPECT_EQ(WindowWords(session, window), "Euclidean, dots, UM 0.4519");
    window.Document().Matrix(1, 2) = window.Document().Matrix(2, 1) = -3;
    EXPECT_EQ(WindowWords(session, window), "Euclidean, dots");
}

TEST_F(StatusLineTest, TheLegendGoesFromTheNearestClassOn) {
    auto& window = NewDiagram();
    std::vector<std::string> shown;
    for (const auto& [symbol, text] : LegendOf(session, window))
        shown.push_back(std::string(TileName(symbol)) + ": " + text);
    EXPECT_EQ(shown, (std::vector<std::string>{"picCircle05: 0 - 1.00", "picCircle04: 1.00 - 2.00",
                                               "picCircle03: 2.00 - 3.00", "picCircle02: 3.00 - 4.00",
                                               "picColor01: >= 4.00"}));
    window.Document().DiagType = 1;
    EXPECT_EQ(LegendOf(session, window).front().Symbol, Tile::picColor05);
}

TEST_F(StatusLineTest, ThePointedCellIsToldElseTheCurrentOne) {
    auto& sheet = NewSheet();
    sheet.Grid1.SetCurrent(1, 2);
    RefreshStatusBar(session);
    EXPECT_EQ(bar.Cell.Caption, "rec1, a: 1.000");
    EXPECT_EQ(bar.Window.Caption, "3 records, 2 variables");
    PointAt(session, sheet, 3, 3);
    RefreshStatusBar(session);
    EXPECT_EQ(bar.Cell.Caption, "rec3, b: 6.000");
    auto& diagram = NewDiagram();
    diagram.Siatka.SetCurrent(2, 1);
    RefreshStatusBar(session);
    EXPECT_EQ(bar.Cell.Caption, "bob, place 2") << "the pointed window is not the active one";
    PointAway(session);
    ActivateChild(session, sheet);
    RefreshStatusBar(session);
    EXPECT_EQ(bar.Cell.Caption, "rec1, a: 1.000");
}

TEST_F(StatusLineTest, IsEmptyWithoutAWindow) {
    auto& sheet = NewSheet();
    RefreshStatusBar(session);
    CloseChild(session, sheet);
    RefreshStatusBar(session);
    EXPECT_EQ(bar.Cell.Caption, "");
    EXPECT_EQ(bar.Window.Caption, "");
}

TEST_F(StatusLineTest, ABeepSaysWhyUntilTheNextCommand) {
    frmMDI shell(session);
    auto& window = NewDiagram();
    const auto reason = [this](int beeps) {
        EXPECT_EQ(made.signals.beeps, beeps);
        return StatusText(session);
    };
    window.Up();
    EXPECT_EQ(reason(1), "No record is selected: select one by a double click on its row.");
    window.Siatka.SetCurrent(1, 1);
    window.SelectThisRow();
    window.Up();
    EXPECT_EQ(reason(2), "The selected record stands first already.");
    window.Home();
    EXPECT_EQ(reason(3), "The selected record stands first already.");
    window.EndRow();
    window.Down();
    EXPECT_EQ(reason(4), "The selected record stands last already.");
    window.EndRow();
    EXPECT_EQ(reason(5), "The selected record stands last already.");
    window.Insert();
    EXPECT_EQ(reason(6), "Insert moves the selected record to the row of the current cell: click another row "
                         "first.");
    session.DiagramBusy = 1;
    window.Up();
    EXPECT_EQ(reason(7), "A diagram is being made: this command has to wait.");
    session.DiagramBusy = 0;
    shell.MenuClick("mnuEditUp");
    EXPECT_EQ(reason(7), "");
}

} // namespace
} // namespace dorvan::test
