#include "session/children.h"
#include "view/diagram_session.h"

#include "numbers/runtime_failure.h"
#include "support/command_switches.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan::test {
namespace {

using Words = std::vector<std::string>;

TEST(DiagramGrid, HasNumbersAndNamesAlongItsEdge) {
    DiagramSession at;
    auto& grid = at.Open(3).Siatka;
    ASSERT_EQ(grid.Rows(), 4);
    ASSERT_EQ(grid.Columns(), 5);
    EXPECT_EQ(grid.FixedRows, 1);
    EXPECT_EQ(grid.FixedColumns, 1);
    EXPECT_FALSE(grid.GridLines);
    const Words headers{"", "Name", "1", "2", "3"};
    for (int column = 0; column < 5; ++column) EXPECT_EQ(grid.Text(0, column), headers[std::size_t(column)]);
    const Words names{"", "A", "B", "C"};
    for (int row = 1; row <= 3; ++row) {
        EXPECT_EQ(grid.Text(row, 0), std::to_string(row));
        EXPECT_EQ(grid.Text(row, 1), names[std::size_t(row)]);
        for (int column = 2; column < 5; ++column) EXPECT_EQ(grid.Text(row, column), "");
    }
}

TEST(DiagramGrid, SizesInTwips) {
    DiagramSession at;
    auto& grid = at.Open(3).Siatka;
    const std::vector<int> widths{382, 1800, 255, 255, 255};
    for (int column = 0; column < 5; ++column)
        EXPECT_EQ(grid.ColumnWidth(column), widths[std::size_t(column)]);
    for (int row = 0; row < 4; ++row) EXPECT_EQ(grid.RowHeight(row), 255);
}

TEST(DiagramGrid, NamesStandLeftAndSymbolsCentredButForTheLastColumn) {
    DiagramSession at;
    auto& grid = at.Open(3).Siatka;
    const std::vector<Alignment> alignments{Alignment::Left, Alignment::Left, Alignment::Centre,
                                            Alignment::Centre, Alignment::Left};
    for (int column = 0; column < 5; ++column) {
        EXPECT_EQ(grid.ColumnAlignment(column), alignments[std::size_t(column)]) << column;
        EXPECT_EQ(grid.HeaderAlignment(column), alignments[std::size_t(column)]) << column;
    }
}

TEST(DiagramGrid, NumbersOfThreeDigitsTakeASmallerFont) {
    DiagramSession at;
    EXPECT_EQ(at.Open(99).Siatka.FontSize, 8);
    EXPECT_EQ(at.Open(100).Siatka.FontSize, 7);
}

TEST(DiagramGrid, ShowsTheTileOfEachCellAndLeavesTheCurrentCellOnTheLast) {
    DiagramSession at;
    auto document = SampleDocument(3); // distances A-B 12, A-C 13, B-C 23
    document.RecordHasNA(3) = true;
    document.Matrix(2, 1) = 35.0f;
    auto& window = at.Open(document);
    EXPECT_EQ(TileAt(window, 1, 1), Tile::picCircle05);
    EXPECT_EQ(TileAt(window, 1, 2), Tile::picCircle04);
    EXPECT_EQ(TileAt(window, 1, 3), Tile::picCircle03NA);
    EXPECT_EQ(TileAt(window, 2, 1), Tile::picColor01);
    EXPECT_EQ(TileAt(window, 2, 3), Tile::picCircle02NA);
    EXPECT_EQ(TileAt(window, 3, 3), Tile::picCircle05NA);
    EXPECT_EQ(window.Siatka.Row(), 3);
    EXPECT_EQ(window.Siatka.Column(), 4);
    for (int row = 0; row <= 3; ++row)
        for (int column = 0; column < 2; ++column) EXPECT_EQ(window.Siatka.Picture(row, column), 0);
}

TEST(DiagramGrid, ACellWithoutAClassGetsNoPicture) {
    DiagramSession at;
    auto document = SampleDocument(2);
    document.Matrix(1, 2) = -1.0f;
    auto& window = at.Open(document);
    EXPECT_EQ(TileAt(window, 1, 2), Tile::None);
    EXPECT_EQ(TileAt(window, 2, 1), Tile::picCircle04);
}

TEST(DiagramGrid, TakesTheTypeOfItsDocument) {
    DiagramSession at;
    auto document = SampleDocument(2);
    document.DiagType = 1;
    EXPECT_EQ(TileAt(at.Open(document), 1, 2), Tile::picColor04);
    document.DiagType = 3;
    EXPECT_EQ(TileAt(at.Open(document), 1, 2), Tile::picClassic04);
}

TEST(DiagramGrid, ADocumentWithoutRecordsIsAnEmptySquare) {
    DiagramSession at;
    auto& grid = at.Open(0).Siatka;
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Columns(), 2);
    EXPECT_EQ(grid.Text(0, 1), "Name");
}

TEST(DiagramGrid, AReusedSlotStartsWithTheNewDocumentsSizes) {
    DiagramSession at;
    auto& first = at.Open(100);
    ShowChild(at.session, first);
    first.Siatka.SetCurrent(50, 2);
    first.SelectThisRow();
    ASSERT_TRUE(CloseChild(at.session, first));
    auto& second = at.Open(3);
    EXPECT_EQ(second.Index, 1);
    EXPECT_EQ(second.Siatka.Rows(), 4);
    EXPECT_EQ(second.Siatka.Columns(), 5);
    EXPECT_EQ(second.Siatka.FontSize, 8);
    EXPECT_EQ(second.RowOrder.Count(), 3);
    EXPECT_EQ(second.SelectedRow, 0);
    EXPECT_EQ(second.RowSelected, 0);
}

TEST(DiagramGrid, ShownAgainForASmallerDocumentKeepsNothingOfTheLarger) {
    DiagramSession at;
    auto& window = at.Open(4);
    at.session.DiagramDocuments.at(1) = SampleDocument(2);
    ClassifyDiagram(at.session.DiagramDocuments.at(1));
    at.session.DiagramDocuments.at(1).Classes(1, 2) = 6;
    window.Present("");
    EXPECT_EQ(window.Siatka.Columns(), 4);
    EXPECT_EQ(window.Siatka.ColumnAlignment(3), Alignment::Left);
    EXPECT_EQ(TileAt(window, 1, 2), Tile::None);
    EXPECT_EQ(window.RowOrder.Count(), 2);
}

TEST(DiagramWindow, LoadsWithoutASelectionAndWithTheMovingButtonsOff) {
    DiagramSession at;
    auto& window = at.Open(3);
    EXPECT_EQ(window.Index, 1);
    EXPECT_EQ(window.Name, "frmDiagram");
    EXPECT_EQ(window.TypeOfForm, "") << "set by the first activation";
    EXPECT_EQ(window.SelectedRow, 0);
    EXPECT_EQ(window.RowSelected, 0);
    EXPECT_EQ(window.RowOrder.Count(), 3);
    for (const auto* key : {"Up", "Down", "Home", "End", "Insert"})
        EXPECT_FALSE(at.session.mainWindow.ButtonEnabled("toolDiagram", key)) << key;
}

TEST(DiagramWindow, SetIconsSwitchesTheFiveMovingButtonsAndNoMenuItem) {
    DiagramSession at;
    auto& window = at.Open(3);
    const auto& main = at.session.mainWindow;
    window.Form_Activate();
    for (const bool enabled : {true, false}) {
        window.SetIcons(enabled);
        for (const auto* key : {"Up", "Down", "Home", "End", "Insert"})
            EXPECT_EQ(main.ButtonEnabled("toolDiagram", key), enabled) << key;
        for (const auto* item : {"mnuEditUp", "mnuEditDown", "mnuEditHome", "mnuEditEnd", "mnuEditInsert"})
            EXPECT_TRUE(main.MenuEnabled(item)) << item;
        for (const auto* key : {"Select", "Bitmap", "Metafile", "Matrix", "Histogram", "Linear"})
            EXPECT_TRUE(main.ButtonEnabled("toolDiagram", key)) << key;
    }
}

TEST(DiagramWindow, IsFoundByItsSlot) {
    DiagramSession at;
    auto& first = at.Open(2);
    auto& second = at.Open(3);
    EXPECT_EQ(&DiagramWindow(at.session, 1), &first);
    EXPECT_EQ(&DiagramWindow(at.session, 2), &second);
    EXPECT_EQ(second.Document().RecCount, 3);
    EXPECT_THROW(DiagramWindow(at.session, 0), RuntimeFailure);
    EXPECT_THROW(DiagramWindow(at.session, 3), RuntimeFailure);
    EXPECT_THROW(DiagramWindow(at.session, -1), RuntimeFailure);
}

TEST(DiagramDescription, HoldsAtMostItsFieldsCharacters) {
    DiagramSession at;
    EXPECT_EQ(at.Open(SampleDocument(2), "żółw, two").BottomText.Text, "żółw, two");
    std::string longText;
    for (int k = 0; k < 151; ++k) longText += "ż";
    auto& window = at.Open(SampleDocument(2), longText);
    EXPECT_EQ(window.BottomText.MaxLength, 150);
    EXPECT_EQ(window.BottomText.Text, longText.substr(0, 300)); // two bytes a character
}

TEST(DiagramDescription, AChangeMarksTheDocumentAndMovingTheCursorDoesNot) {
    DiagramSession at;
    at.Open(2);
    auto& window = at.Open(2);
    window.Siatka.SetCurrent(1, 2);
    EXPECT_FALSE(at.session.DiagramStates.at(2).Dirty);
    window.BottomText_Change();
    EXPECT_TRUE(at.session.DiagramStates.at(2).Dirty);
    EXPECT_FALSE(at.session.DiagramStates.at(1).Dirty);
}

TEST(DiagramDescription, AKeyBeepsWhileADiagramIsMadeAndIsStillTaken) {
    DiagramSession at;
    auto& window = at.Open(2);
    int key = 'x';
    window.BottomText_KeyPress(key);
    EXPECT_EQ(at.signals.beeps, 0);
    at.session.DiagramBusy = 1;
    window.BottomText_KeyPress(key);
    EXPECT_EQ(at.signals.beeps, 1);
    EXPECT_EQ(key, 'x');
}

TEST(DiagramActivation, SwitchesTheCommandsOfADiagram) {
    DiagramSession at;
    auto& window = at.Open(2);
    ExpectSwitches(at.session, DocumentKind::Diagram, WindowPhase::Activated,
                   [&] { window.Form_Activate(); });
    EXPECT_EQ(window.TypeOfForm, "DIAGRAM");
}

TEST(DiagramActivation, OnlyADiagramWithDataHasADatasetToCreate) {
    for (const bool noData : {false, true}) {
        DiagramSession at;
        auto document = SampleDocument(2);
        document.NoData = noData;
        auto& window = at.Open(document);
        auto& main = at.session.mainWindow;
        for (const bool before : {false, true}) {
            main.EnableMenu("mnuEditCreateDataset", before);
            main.ShowButton("toolDiagram", "DataOrder", before);
            window.Form_Activate();
            EXPECT_EQ(main.MenuEnabled("mnuEditCreateDataset"), !noData);
            EXPECT_EQ(main.ButtonShown("toolDiagram", "DataOrder"), !noData);
        }
    }
}

TEST(DiagramActivation, TheMovingButtonsGoWithTheSelectionOfTheDiagramInFront) {
    DiagramSession at;
    const auto moving = [&] {
        std::string on;
        for (const auto* key : {"Up", "Down", "Home", "End", "Insert"})
            if (at.session.mainWindow.ButtonEnabled("toolDiagram", key)) on += key;
        return on;
    };
    auto& selected = at.Open(3);
    ShowChild(at.session, selected);
    selected.Siatka.SetCurrent(2, 1);
    selected.SelectThisRow();
    EXPECT_EQ(moving(), "UpDownHomeEndInsert");
    auto& other = at.Open(3);
    ShowChild(at.session, other);
    EXPECT_EQ(moving(), "");
    ActivateChild(at.session, selected);
    EXPECT_EQ(moving(), "UpDownHomeEndInsert");
    ActivateChild(at.session, other);
    EXPECT_EQ(moving(), "");
    CloseChild(at.session, other);
    EXPECT_EQ(moving(), "UpDownHomeEndInsert");
}

TEST(DiagramDeactivation, SwitchesTheCommandsOfADiagram) {
    DiagramSession at;
    auto& window = at.Open(2);
    auto& main = at.session.mainWindow;
    ExpectSwitches(at.session, DocumentKind::Diagram, WindowPhase::Deactivated,
                   [&] { window.Form_Deactivate(); });
    for (const bool shown : {false, true}) {
        main.ShowButton("toolDiagram", "DataOrder", shown);
        window.Form_Deactivate();
        EXPECT_EQ(main.ButtonShown("toolDiagram", "DataOrder"), shown);
    }
}

TEST(DiagramUnload, SwitchesTheCommandsOfADiagramAndFreesTheSlot) {
    DiagramSession at;
    auto& window = at.Open(2);
    ExpectSwitches(at.session, DocumentKind::Diagram, WindowPhase::Unloaded, [&] { window.Form_Unload(); });
    EXPECT_TRUE(at.session.DiagramStates.at(1).Deleted);
    EXPECT_EQ(at.session.DiagramDocuments.at(1).RecCount, 2) << "the record stays until the slot is reused";
}

TEST(DiagramClosing, AnUnchangedDiagramClosesWithoutAQuestion) {
    DiagramSession at;
    EXPECT_TRUE(at.Open(2).Form_QueryUnload());
    EXPECT_TRUE(at.messages.shown.empty());
}

TEST(DiagramClosing, AsksAboutTheChangesWithoutThePrefixOfTheCaption) {
    DiagramSession at;
    auto& window = at.Open(2);
    window.Caption = "[DIAGRAM]: /Home/Cars.dgr";
    at.session.DiagramStates.at(1).Dirty = true;
    int saves = 0;
    at.session.commands.Set("Save", [&](const CommandCall&) { ++saves; });

    at.messages.answers = {Answer::Cancel, Answer::No, Answer::Yes};
    EXPECT_FALSE(window.Form_QueryUnload());
    EXPECT_EQ(saves, 0);
    EXPECT_TRUE(window.Form_QueryUnload());
    EXPECT_EQ(saves, 0);
    EXPECT_TRUE(window.Form_QueryUnload());
    EXPECT_EQ(saves, 1);

    const Message question{.Text = "The diagram in [/Home/Cars.dgr] has changed.\r\n"
                                   "Do you want to save the changes?",
                           .Icon = MessageIcon::None,
                           .Buttons = MessageButtons::YesNoCancel,
                           .Title = "Dorvan 3.3.44"};
    ASSERT_EQ(at.messages.shown.size(), 3u);
    for (const auto& shown : at.messages.shown) EXPECT_EQ(shown, question);
    at.expectScriptsUsedUp();
}

TEST(DiagramClosing, TheLastWindowHidesTheToolbar) {
    DiagramSession at;
    auto& window = at.Open(2);
    ShowChild(at.session, window);
    EXPECT_TRUE(at.session.mainWindow.ToolbarShown("toolDiagram"));
    EXPECT_TRUE(CloseChild(at.session, window));
    EXPECT_FALSE(at.session.mainWindow.ToolbarShown("toolDiagram"));
    EXPECT_FALSE(at.session.mainWindow.MenuEnabled("mnuFilePrint"));
}

TEST(DiagramResize, TheActiveWindowSnapsToALeastSize) {
    DiagramSession at;
    auto& active = at.Open(2);
    auto& other = at.Open(2);
    ShowChild(at.session, active);
    const auto resized = [&](int width, int height) {
        active.Width = width;
        active.Height = height;
        other.Width = other.Height = 100;
        other.Form_Resize(); // the event of one window, the size of the active one
        EXPECT_EQ(other.Width, 100);
        EXPECT_EQ(other.Height, 100);
        return std::pair(active.Width, active.Height);
    };
    at.children.log.clear();
    EXPECT_EQ(resized(9480, 2500), std::pair(9480, 2500));
    EXPECT_TRUE(at.children.log.empty());
    EXPECT_EQ(resized(9480, 2499), std::pair(9480, 4500));
    EXPECT_EQ(resized(9479, 2500), std::pair(9480, 2500));
    EXPECT_EQ(resized(100, 100), std::pair(9480, 4500));
    EXPECT_EQ(at.children.log, Words(3, "update " + active.Caption));
}

TEST(DiagramResize, OnlyANormalWindowSnapsAndNoneWithoutAnActiveOne) {
    DiagramSession at;
    auto& window = at.Open(2);
    window.Width = window.Height = 100;
    window.Form_Resize();
    EXPECT_EQ(window.Height, 100) << "no window is active";
    ShowChild(at.session, window);
    for (const auto mode : {WindowMode::Minimized, WindowMode::Maximized}) {
        window.Mode = mode;
        window.Form_Resize();
        EXPECT_EQ(window.Width, 100);
        EXPECT_EQ(window.Height, 100);
    }
}

} // namespace
} // namespace dorvan::test
