#include "view/frmDiagram.h"

#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/children.h"
#include "session/document_grid.h"
#include "session/registry.h"
#include "session/status_bar.h"
#include "session/window_switches.h"
#include "view/tiles.h"

#include <fmt/format.h>

#include <algorithm>

namespace dorvan {

using namespace DocumentGrid;

namespace {

constexpr int NumberColumnWidth = 382; // 1.5 boxes, the tie rounded to even
constexpr int NameColumnWidth = 1800;
constexpr int BoxSide = 255; // 16 pixels of a tile and a spare one
constexpr int MostDescriptionCharacters = 150;

} // namespace

frmDiagram::frmDiagram(Session& session) : GridWindow("frmDiagram", session) {
    BottomText.MaxLength = MostDescriptionCharacters;
    Siatka.GridLines = false;
}

DiagramDocument& frmDiagram::Document() {
    if (Index < 1 || std::size_t(Index) >= session_.DiagramDocuments.size())
        throw RuntimeFailure(Failure::SubscriptOutOfRange, "a diagram's slot");
    return session_.DiagramDocuments[std::size_t(Index)];
}

void frmDiagram::Present(const std::string& description) {
    LayOut();
    RowOrder = Array1<std::int16_t>(Document().RecCount);
    PaintNames();
    PaintCells();
    BottomText.Text = LeftCharacters(description, MostDescriptionCharacters);
}

void frmDiagram::LayOut() {
    const int count = Document().RecCount;
    DocumentGrid::SetSize(Siatka, count, count);
    Siatka.Clear();
    Siatka.FixedRows = 1;
    Siatka.FixedColumns = 1;
    Siatka.GridLines = false;
    Siatka.FontSize = count > 99 ? 7 : 8; // three digits have to fit a box
    for (int column = 0; column < Siatka.Columns(); ++column) {
        // The last column keeps the default; only its number shows that.
        const auto alignment =
            column >= FirstValueColumn && column <= count ? Alignment::Centre : Alignment::Left;
        Siatka.SetColumnAlignment(column, alignment);
        Siatka.SetHeaderAlignment(column, alignment);
        Siatka.SetColumnWidth(column, column == NumberColumn ? NumberColumnWidth
                                      : column == NameColumn ? NameColumnWidth
                                                             : BoxSide);
    }
    for (int row = 0; row <= count; ++row) Siatka.SetRowHeight(row, BoxSide);
    for (int place = 1; place <= count; ++place) {
        Siatka.SetText(place, NumberColumn, fmt::format("{}", place));
        Siatka.SetText(HeaderRow, ValueColumn(place), fmt::format("{}", place));
    }
}

void frmDiagram::PaintNames() {
    const auto& document = Document();
    Siatka.SetText(HeaderRow, NameColumn, "Name");
    for (int row = 1; row <= document.RecCount; ++row)
        Siatka.SetText(row, NameColumn, document.RecordNames(row));
    Siatka.PassTo(document.RecCount, NameColumn);
}

void frmDiagram::PaintCells() {
    const int count = Document().RecCount;
    for (int row = 1; row <= count; ++row)
        for (int record = 1; record <= count; ++record) PaintCell(row, record, false);
    if (count > 0) Siatka.PassTo(count, ValueColumn(count));
}

// A cell without a tile keeps the picture that it shows.
void frmDiagram::PaintCell(int row, int record, bool selected) {
    const Tile tile = CellTile(Document(), row, record, selected);
    if (tile != Tile::None) Siatka.SetPicture(row, ValueColumn(record), static_cast<std::uint8_t>(tile));
}

void frmDiagram::Siatka_DblClick() {
    if (RefusedWhileBusy(session_) || Siatka.FixedRowPressed()) return;
    if (RowSelected == 0 && Siatka.Row() >= 1)
        SelectCurrentRow();
    else if (RowSelected == 1 && Siatka.Row() == SelectedRow)
        DropSelection();
}

void frmDiagram::SetIcons(bool enabled) {
    for (const auto* key : {"Up", "Down", "Home", "End", "Insert"})
        session_.mainWindow.EnableButton("toolDiagram", key, enabled);
}

void frmDiagram::BottomText_Change() { session_.DiagramStates.at(std::size_t(Index)).Dirty = true; }

void frmDiagram::BottomText_KeyPress(int&) { RefusedWhileBusy(session_); } // the character is still taken

void frmDiagram::Form_Load() {
    SetIcons(false);
    RowOrder = Array1<std::int16_t>(Document().RecCount);
}

void frmDiagram::Form_Activate() {
    auto& mainWindow = session_.mainWindow;
    const bool hasData = !Document().NoData;
    SwitchCommands(mainWindow, DocumentKind::Diagram, WindowEvent::Activated);
    mainWindow.EnableMenu("mnuEditCreateDataset", hasData);
    mainWindow.ShowButton("toolDiagram", "DataOrder", hasData);
    SetIcons(RowSelected == 1); // another diagram may have left them as it needs them
    TypeOfForm = DocumentKind::Diagram;
}

void frmDiagram::Form_Deactivate() {
    SwitchCommands(session_.mainWindow, DocumentKind::Diagram, WindowEvent::Deactivated);
}

bool frmDiagram::Form_QueryUnload() {
    if (!session_.DiagramStates.at(std::size_t(Index)).Dirty) return true;
    switch (AskToSave(session_, "diagram", ReplaceAll(Caption, "[DIAGRAM]: ", ""), MessageIcon::None)) {
    case Answer::Cancel: return false;
    case Answer::Yes: session_.commands.Call("Save"); return true; // saves the active window
    default: return true;
    }
}

void frmDiagram::Form_Unload() {
    session_.DiagramStates.at(std::size_t(Index)).Deleted = true;
    SwitchCommands(session_.mainWindow, DocumentKind::Diagram, WindowEvent::Unloaded);
}

void frmDiagram::Form_Resize() { KeepLeastSize({.Height = 2500, .HeightInstead = 4500, .Width = 9480}); }

void frmDiagram::Beep(const char* reason) { BeepBecause(session_, reason); }

frmDiagram& DiagramWindow(Session& session, std::int16_t slot) {
    return WindowInSlot<frmDiagram>(session.DiagramWindows, slot);
}

} // namespace dorvan
