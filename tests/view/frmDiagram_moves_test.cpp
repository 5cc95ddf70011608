#include "numbers/runtime_failure.h"
#include "view/diagram_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace dorvan::test {
namespace {

// Every cell shows its tile, the cross of the selected row (0: none) the selected ones.
void ExpectPicture(frmDiagram& window, int selectedRow) {
    const auto& document = window.Document();
    for (int row = 1; row <= document.RecCount; ++row)
        for (int record = 1; record <= document.RecCount; ++record) {
            const bool selected = selectedRow > 0 && (row == selectedRow || record == selectedRow);
            EXPECT_EQ(TileName(TileAt(window, row, record)),
                      TileName(CellTile(document, row, record, selected)))
                << "row " << row << ", column " << record;
        }
}

void ExpectNumbersArePlaces(const frmDiagram& window) {
    for (int place = 1; place < window.Siatka.Rows(); ++place) {
        EXPECT_EQ(window.Siatka.Text(place, 0), std::to_string(place));
        EXPECT_EQ(window.Siatka.Text(0, place + 1), std::to_string(place));
    }
}

frmDiagram& OpenSelected(DiagramSession& at, int count, int row) {
    auto& window = at.Open(count);
    window.Siatka.SetCurrent(row, 3);
    window.SelectThisRow();
    return window;
}

bool MovingButtonsOn(const Session& session) {
    for (const auto* key : {"Up", "Down", "Home", "End", "Insert"})
        if (!session.mainWindow.ButtonEnabled("toolDiagram", key)) return false;
    return true;
}

using Move = void (frmDiagram::*)();

TEST(DiagramSelection, SelectsTheCurrentRowAsACross) {
    DiagramSession at;
    auto& window = OpenSelected(at, 4, 2);
    EXPECT_EQ(window.SelectedRow, 2);
    EXPECT_EQ(window.RowSelected, 1);
    EXPECT_TRUE(MovingButtonsOn(at.session));
    ExpectPicture(window, 2);
    EXPECT_EQ(TileAt(window, 2, 2), Tile::picSelectCircle05);
    EXPECT_EQ(TileAt(window, 2, 3), Tile::picSelectCircle02);
    EXPECT_EQ(TileAt(window, 1, 2), Tile::picSelectCircle04);
    EXPECT_EQ(TileAt(window, 1, 3), Tile::picCircle03);
    EXPECT_EQ(window.Siatka.Row(), 2);
    for (int row = 0; row < 5; ++row)
        for (int column = 0; column < 2; ++column) EXPECT_EQ(window.Siatka.Picture(row, column), 0);
}

TEST(DiagramSelection, LeavesTheCurrentCellOnTheDiagonal) {
    DiagramSession at;
    auto& window = OpenSelected(at, 4, 2);
    EXPECT_EQ(window.Siatka.Row(), 2);
    EXPECT_EQ(window.Siatka.Column(), 3);
    window.Down();
    EXPECT_EQ(window.Siatka.Row(), 3);
    EXPECT_EQ(window.Siatka.Column(), 4);
    window.Home();
    EXPECT_EQ(window.Siatka.Row(), 1);
    EXPECT_EQ(window.Siatka.Column(), 2);
    window.Siatka.SetCurrent(4, 1);
    window.SelectThisRow(); // taken back
    EXPECT_EQ(window.Siatka.Row(), 1);
    EXPECT_EQ(window.Siatka.Column(), 2);
    std::int16_t row = 3;
    window.SelectRow(row);
    EXPECT_EQ(window.Siatka.Column(), 4);
    window.Siatka.SetCurrent(1, 1);
    window.UnSelectRow(row);
    EXPECT_EQ(window.Siatka.Row(), 3);
    EXPECT_EQ(window.Siatka.Column(), 4);
}

TEST(DiagramSelection, ADoubleClickOnTheFixedRowLeavesItAsItIs) {
    DiagramSession at;
    auto& window = at.Open(4);
    window.Siatka.SetCurrent(2, 1);
    window.Siatka.Press(0, 3);
    window.Siatka_DblClick();
    EXPECT_EQ(window.RowSelected, 0);
    EXPECT_EQ(window.Siatka.Row(), 2);
    window.Siatka.Press(2, 0); // the fixed column selects
    window.Siatka_DblClick();
    EXPECT_EQ(window.SelectedRow, 2);
    window.Siatka.Press(0, 3);
    window.Siatka_DblClick();
    EXPECT_EQ(window.SelectedRow, 2);
    EXPECT_EQ(window.RowSelected, 1);
    ExpectPicture(window, 2);
    EXPECT_EQ(at.signals.beeps, 0);
    at.session.DiagramBusy = 1;
    window.Siatka_DblClick();
    EXPECT_EQ(at.signals.beeps, 1);
}

TEST(DiagramSelection, IsTakenBackFromAnyCurrentRow) {
    DiagramSession at;
    auto& window = OpenSelected(at, 4, 2);
    window.Siatka.SetCurrent(4, 1);
    window.SelectThisRow();
    EXPECT_EQ(window.SelectedRow, 0);
    EXPECT_EQ(window.RowSelected, 0);
    EXPECT_FALSE(at.session.mainWindow.ButtonEnabled("toolDiagram", "Up"));
    EXPECT_FALSE(at.session.mainWindow.ButtonEnabled("toolDiagram", "Insert"));
    ExpectPicture(window, 0);
    EXPECT_EQ(window.Siatka.Row(), 2);
}

TEST(DiagramSelection, AFixedRowCannotBeSelected) {
    DiagramSession at;
    auto& window = at.Open(3);
    window.Siatka.SetCurrent(0, 1);
    window.SelectThisRow();
    window.Siatka_DblClick();
    EXPECT_EQ(window.RowSelected, 0);
    EXPECT_EQ(window.SelectedRow, 0);
    ExpectPicture(window, 0);
}

TEST(DiagramSelection, ADoubleClickSelectsAndTakesBackTheSameRowOnly) {
    DiagramSession at;
    auto& window = at.Open(4);
    window.Siatka.SetCurrent(3, 1);
    window.Siatka_DblClick();
    EXPECT_EQ(window.SelectedRow, 3);
    EXPECT_EQ(window.RowSelected, 1);
    EXPECT_TRUE(MovingButtonsOn(at.session));
    ExpectPicture(window, 3);

    window.Siatka.SetCurrent(1, 1);
    window.Siatka_DblClick();
    EXPECT_EQ(window.SelectedRow, 3) << "a double click on another row does nothing";
    EXPECT_EQ(window.RowSelected, 1);
    EXPECT_EQ(window.Siatka.Row(), 1);
    ExpectPicture(window, 3);

    window.Siatka.SetCurrent(3, 4);
    window.Siatka_DblClick();
    EXPECT_EQ(window.SelectedRow, 0);
    EXPECT_EQ(window.RowSelected, 0);
    EXPECT_FALSE(MovingButtonsOn(at.session));
    ExpectPicture(window, 0);
    EXPECT_EQ(at.signals.beeps, 0);
}

TEST(DiagramSelection, AMissingValueMarksTheCellsOfTheCross) {
    DiagramSession at;
    auto document = SampleDocument(3);
    document.RecordHasNA(3) = true;
    auto& window = at.Open(document);
    std::int16_t row = 1;
    window.SelectRow(row);
    EXPECT_EQ(TileAt(window, 1, 1), Tile::picSelectCircle05);
    EXPECT_EQ(TileAt(window, 1, 3), Tile::picSelectCircle03NA);
    EXPECT_EQ(TileAt(window, 3, 1), Tile::picSelectCircle03NA);
    ExpectPicture(window, 1);
    EXPECT_EQ(row, 1);
    EXPECT_EQ(window.Siatka.Row(), 1);
    window.UnSelectRow(row);
    EXPECT_EQ(TileAt(window, 1, 3), Tile::picCircle03NA);
    ExpectPicture(window, 0);
}

TEST(DiagramSelection, ACellWithoutAClassIsNotRepainted) {
    DiagramSession at;
    auto document = SampleDocument(3);
    document.Matrix(1, 2) = -1.0f;
    auto& window = at.Open(document);
    std::int16_t row = 2;
    window.SelectRow(row);
    EXPECT_EQ(TileAt(window, 1, 2), Tile::None);
    EXPECT_EQ(TileAt(window, 2, 1), Tile::picSelectCircle04);
}

TEST(DiagramSelection, ARowOutsideIsASubscriptFailure) {
    DiagramSession at;
    auto& window = at.Open(3);
    for (std::int16_t row : {0, 4, -1}) {
        EXPECT_THROW(window.SelectRow(row), RuntimeFailure);
        EXPECT_THROW(window.UnSelectRow(row), RuntimeFailure);
    }
}

struct MoveCase {
    const char* what;
    Move move;
    int count, selected, cursor;
    const char* names;
    int place;
};

class DiagramMove : public ::testing::TestWithParam<MoveCase> {};

TEST_P(DiagramMove, CarriesTheRecordAndTheSelection) {
    const auto& param = GetParam();
    DiagramSession at;
    auto& window = OpenSelected(at, param.count, param.selected);
    const FloatTable before = window.Document().Matrix;
    const std::string record = window.Document().RecordNames(param.selected);
    window.Siatka.SetCurrent(param.cursor, 3);
    at.signals.cursors.clear();
    (window.*param.move)();

    EXPECT_EQ(NamesOf(window), param.names);
    EXPECT_EQ(NamesShownBy(window), param.names);
    EXPECT_EQ(window.SelectedRow, param.place);
    EXPECT_EQ(window.RowSelected, 1);
    EXPECT_EQ(window.Siatka.Row(), param.place);
    EXPECT_EQ(window.Document().RecordNames(param.place), record);
    EXPECT_TRUE(MovingButtonsOn(at.session));
    ExpectPicture(window, param.place);
    ExpectNumbersArePlaces(window);
    const auto& names = window.Document().RecordNames;
    const auto& matrix = window.Document().Matrix;
    for (int i = 1; i <= param.count; ++i)
        for (int j = 1; j <= param.count; ++j) {
            EXPECT_EQ(matrix(i, j), before(names(i)[0] - 'A' + 1, names(j)[0] - 'A' + 1));
            EXPECT_EQ(matrix(i, j), matrix(j, i)) << "stays symmetric";
        }
    EXPECT_EQ(at.signals.beeps, 0);
    EXPECT_EQ(at.signals.cursors, (std::vector<Cursor>{Cursor::Wait, Cursor::Default}));
    EXPECT_FALSE(at.session.DiagramStates.at(1).Dirty) << "a move leaves that to the toolbar's handler";
}

INSTANTIATE_TEST_SUITE_P(
    All, DiagramMove,
    ::testing::Values(MoveCase{"DownFromTheTop", &frmDiagram::Down, 4, 1, 1, "BACD", 2},
                      MoveCase{"DownToTheBottom", &frmDiagram::Down, 4, 3, 1, "ABDC", 4},
                      MoveCase{"UpFromTheBottom", &frmDiagram::Up, 4, 4, 4, "ABDC", 3},
                      MoveCase{"UpToTheTop", &frmDiagram::Up, 4, 2, 4, "BACD", 1},
                      MoveCase{"HomeFromTheMiddle", &frmDiagram::Home, 4, 3, 3, "CABD", 1},
                      MoveCase{"HomeFromTheBottom", &frmDiagram::Home, 4, 4, 1, "DABC", 1},
                      MoveCase{"HomeFromTheSecondRow", &frmDiagram::Home, 4, 2, 1, "BACD", 1},
                      MoveCase{"EndFromTheTop", &frmDiagram::EndRow, 4, 1, 1, "BCDA", 4},
                      MoveCase{"EndFromTheMiddle", &frmDiagram::EndRow, 4, 2, 3, "ACDB", 4},
                      MoveCase{"EndFromTheLastButOne", &frmDiagram::EndRow, 4, 3, 3, "ABDC", 4},
                      MoveCase{"InsertBelow", &frmDiagram::Insert, 4, 1, 3, "BCAD", 3},
                      MoveCase{"InsertAbove", &frmDiagram::Insert, 4, 4, 2, "ADBC", 2},
                      MoveCase{"InsertAtTheTop", &frmDiagram::Insert, 4, 3, 1, "CABD", 1},
                      MoveCase{"InsertAtTheBottom", &frmDiagram::Insert, 4, 1, 4, "BCDA", 4},
                      MoveCase{"InsertAtTheNextRow", &frmDiagram::Insert, 4, 2, 3, "ACBD", 3},
                      MoveCase{"DownOfTwo", &frmDiagram::Down, 2, 1, 1, "BA", 2},
                      MoveCase{"HomeOfSix", &frmDiagram::Home, 6, 5, 2, "EABCDF", 1},
                      MoveCase{"InsertInSixDown", &frmDiagram::Insert, 6, 2, 5, "ACDEBF", 5},
                      MoveCase{"InsertInSixUp", &frmDiagram::Insert, 6, 5, 2, "AEBCDF", 2}),
    [](const auto& param) { return param.param.what; });

struct RefusedCase {
    const char* what;
    Move move;
    int selected, cursor; // selected 0: none
};

class RefusedDiagramMove : public ::testing::TestWithParam<RefusedCase> {};

TEST_P(RefusedDiagramMove, BeepsAndChangesNothing) {
    const auto& param = GetParam();
    DiagramSession at;
    auto& window = param.selected ? OpenSelected(at, 4, param.selected) : at.Open(4);
    window.Siatka.SetCurrent(param.cursor, 1);
    at.signals.cursors.clear();
    const auto order = window.RowOrder;
    (window.*param.move)();
    EXPECT_EQ(at.signals.beeps, 1);
    EXPECT_TRUE(at.signals.cursors.empty()) << "no hourglass";
    EXPECT_EQ(NamesOf(window), "ABCD");
    EXPECT_EQ(window.SelectedRow, param.selected);
    EXPECT_EQ(window.RowSelected, param.selected ? 1 : 0);
    EXPECT_EQ(window.RowOrder, order);
    EXPECT_EQ(window.Siatka.Row(), param.cursor);
    ExpectPicture(window, param.selected);
}

INSTANTIATE_TEST_SUITE_P(All, RefusedDiagramMove,
                         ::testing::Values(RefusedCase{"UpOnTheFirstRow", &frmDiagram::Up, 1, 1},
                                           RefusedCase{"HomeOnTheFirstRow", &frmDiagram::Home, 1, 2},
                                           RefusedCase{"DownOnTheLastRow", &frmDiagram::Down, 4, 2},
                                           RefusedCase{"EndOnTheLastRow", &frmDiagram::EndRow, 4, 1},
                                           RefusedCase{"InsertOnTheSelectedRow", &frmDiagram::Insert, 3, 3},
                                           RefusedCase{"InsertOnTheFixedRow", &frmDiagram::Insert, 3, 0},
                                           RefusedCase{"UpWithoutASelection", &frmDiagram::Up, 0, 2},
                                           RefusedCase{"HomeWithoutASelection", &frmDiagram::Home, 0, 2},
                                           RefusedCase{"InsertWithNeither", &frmDiagram::Insert, 0, 0}),
                         [](const auto& param) { return param.param.what; });

TEST(DiagramMoves, DownEndAndInsertWithoutASelectionFailBeforeAnythingShows) {
    for (const Move move : {&frmDiagram::Down, &frmDiagram::EndRow, &frmDiagram::Insert}) {
        DiagramSession at;
        auto& window = at.Open(4);
        window.Siatka.SetCurrent(2, 1);
        const auto revision = window.Siatka.Revision();
        try {
            (window.*move)();
            ADD_FAILURE() << "no failure";
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.Kind(), Failure::SubscriptOutOfRange);
        }
        EXPECT_EQ(window.Siatka.Revision(), revision);
        EXPECT_EQ(NamesOf(window), "ABCD");
        EXPECT_EQ(window.SelectedRow, 0);
        EXPECT_EQ(at.signals.beeps, 0);
    }
}

TEST(DiagramMoves, OnlyBeepWhileADiagramIsMade) {
    for (const Move move : {&frmDiagram::Up, &frmDiagram::Down, &frmDiagram::Home, &frmDiagram::EndRow,
                            &frmDiagram::Insert, &frmDiagram::SelectThisRow, &frmDiagram::Siatka_DblClick}) {
        for (const int selected : {0, 2}) {
            DiagramSession at;
            auto& window = selected ? OpenSelected(at, 4, selected) : at.Open(4);
            at.signals.cursors.clear();
            const auto revision = window.Siatka.Revision();
            at.session.DiagramBusy = 1;
            (window.*move)();
            EXPECT_EQ(at.signals.beeps, 1);
            EXPECT_EQ(NamesOf(window), "ABCD");
            EXPECT_EQ(window.SelectedRow, selected);
            EXPECT_EQ(window.Siatka.Revision(), revision);
            EXPECT_TRUE(at.signals.cursors.empty());
        }
    }
}

TEST(DiagramMoves, DownComparesWithTheGridsRows) {
    DiagramSession at;
    auto& window = OpenSelected(at, 4, 2);
    window.Siatka.SetSize(3, window.Siatka.Columns()); // row 2 is now the grid's last
    window.Down();
    EXPECT_EQ(at.signals.beeps, 1);
    EXPECT_EQ(NamesOf(window), "ABCD");
}

TEST(DiagramMoves, EndComparesWithTheDocumentsRecords) {
    DiagramSession at;
    auto& window = OpenSelected(at, 4, 4);
    window.Siatka.SetSize(8, window.Siatka.Columns()); // the grid goes on behind the last record
    window.EndRow();
    EXPECT_EQ(at.signals.beeps, 1);
    EXPECT_EQ(NamesOf(window), "ABCD");
    EXPECT_EQ(window.SelectedRow, 4);
}

TEST(DiagramMoves, FollowEachOtherWithTheRecord) {
    DiagramSession at;
    auto& window = OpenSelected(at, 5, 2); // B
    window.Down();
    EXPECT_EQ(NamesOf(window), "ACBDE");
    window.Down();
    EXPECT_EQ(NamesOf(window), "ACDBE");
    window.Up();
    EXPECT_EQ(NamesOf(window), "ACBDE");
    window.EndRow();
    EXPECT_EQ(NamesOf(window), "ACDEB");
    window.Home();
    EXPECT_EQ(NamesOf(window), "BACDE");
    window.Siatka.SetCurrent(3, 1);
    window.Insert();
    EXPECT_EQ(NamesOf(window), "ACBDE");
    ExpectPicture(window, 3);
    window.SelectThisRow();
    ExpectPicture(window, 0);
    EXPECT_EQ(NamesShownBy(window), "ACBDE");
}

TEST(DiagramMoves, MoveTheMissingValueMarksAndNotTheData) {
    DiagramSession at;
    auto document = SampleDocument(4);
    document.RecordHasNA(1) = true;
    const auto data = document.Data;
    const auto variables = document.VariableNames;
    auto& window = at.Open(document);
    window.Siatka.SetCurrent(1, 1);
    window.SelectThisRow();
    window.EndRow();
    EXPECT_EQ(window.Document().RecordNames(4), "A");
    EXPECT_EQ(window.Document().RecordHasNA.Cells(), (std::vector<bool>{false, false, false, true}));
    EXPECT_EQ(window.Document().Data, data) << "row 1 of the data still describes A";
    EXPECT_EQ(window.Document().VariableNames, variables);
    EXPECT_EQ(TileAt(window, 4, 4), Tile::picSelectCircle05NA);
    ExpectPicture(window, 4);
}

TEST(DiagramMoves, ACellWithoutAClassKeepsItsEarlierPicture) {
    DiagramSession at;
    auto document = SampleDocument(3);
    document.Matrix(1, 3) = document.Matrix(3, 1) = -1.0f;
    auto& window = at.Open(document);
    ASSERT_EQ(TileAt(window, 1, 3), Tile::None);
    ASSERT_EQ(TileAt(window, 2, 3), Tile::picCircle02);
    window.Siatka.SetCurrent(1, 1);
    window.SelectThisRow();
    window.Down(); // B A C: the distance without a class is now of the places 2 and 3
    EXPECT_EQ(window.Document().Classes(2, 3), 6);
    EXPECT_EQ(TileAt(window, 2, 3), Tile::picCircle02) << "what the cell showed before";
    EXPECT_EQ(TileAt(window, 3, 2), Tile::picCircle02);
    EXPECT_EQ(TileAt(window, 1, 3), Tile::picCircle02) << "now B and C";
    EXPECT_EQ(TileAt(window, 2, 2), Tile::picSelectCircle05);
}

TEST(ApplyRowOrder, TakesEachPlaceFromTheOrderAndClassifiesAgain) {
    DiagramSession at;
    auto& window = at.Open(3);
    window.Document().Matrix(1, 2) = 99.0f; // not symmetric, and not classified yet
    window.RowOrder.Cells() = {3, 1, 2};
    window.ApplyRowOrder();
    EXPECT_EQ(NamesOf(window), "CAB");
    EXPECT_EQ(NamesShownBy(window), "CAB");
    const auto& matrix = window.Document().Matrix;
    EXPECT_EQ(matrix.Cells(), (std::vector<float>{0, 13, 23, 13, 0, 99, 23, 12, 0}));
    EXPECT_EQ(window.Document().Classes.Cells(), (std::vector<std::int16_t>{5, 3, 2, 3, 5, 1, 2, 4, 5}));
    ExpectPicture(window, 0);
    ExpectNumbersArePlaces(window);
    EXPECT_EQ(window.Siatka.Text(0, 1), "Name");
    EXPECT_EQ(window.Siatka.Row(), 3);
    EXPECT_EQ(window.Siatka.Column(), 4);
}

TEST(ApplyRowOrder, WithTheIdentityRepaintsOnly) {
    DiagramSession at;
    auto& window = at.Open(3);
    const auto matrix = window.Document().Matrix;
    window.Document().DiagType = 3;
    window.Document().SectionLimits.Cells() = {100, 200, 300, 400};
    window.Document().RecordNames(2) = "Beta";
    window.RowOrder.Cells() = {1, 2, 3};
    window.ApplyRowOrder();
    EXPECT_EQ(window.Document().Matrix, matrix);
    EXPECT_EQ(TileAt(window, 2, 3), Tile::picClassic05);
    EXPECT_EQ(window.Siatka.Text(2, 1), "Beta");
    ExpectPicture(window, 0);
}

TEST(ApplyRowOrder, AnOrderThatNamesNoPlaceIsASubscriptFailure) {
    DiagramSession at;
    auto& window = at.Open(3);
    for (const std::vector<std::int16_t>& order :
         {std::vector<std::int16_t>{0, 1, 2}, {1, 2, 4}, {1, 2}, {1, 2, 3, 3}}) {
        window.RowOrder.Cells() = order;
        EXPECT_THROW(window.ApplyRowOrder(), RuntimeFailure);
        EXPECT_EQ(NamesOf(window), "ABC");
    }
}

} // namespace
} // namespace dorvan::test
