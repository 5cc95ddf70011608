#include "view/frmDiagram.h"

#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/document_grid.h"
#include "view/classes.h"
#include "view/diagram_history.h"
#include "view/document_order.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <utility>

// Selecting a row and moving it: ordering by hand.
namespace dorvan {

namespace {

// Why a move only beeps.
constexpr const char* IsFirst = "The selected record stands first already.";
constexpr const char* IsLast = "The selected record stands last already.";
constexpr const char* NoneSelected = "No record is selected: select one by a double click on its row.";
constexpr const char* NoTarget =
    "Insert moves the selected record to the row of the current cell: click another row first.";

} // namespace

void frmDiagram::SelectThisRow() {
    if (RefusedWhileBusy(session_)) return;
    if (RowSelected == 0 && Siatka.Row() >= 1) {
        SelectCurrentRow();
    } else if (RowSelected == 1) {
        Siatka.SetCurrent(SelectedRow, DocumentGrid::NumberColumn);
        DropSelection();
    }
}

void frmDiagram::SelectCurrentRow() {
    SelectedRow = static_cast<std::int16_t>(Siatka.Row());
    Siatka.SetCurrent(SelectedRow, DocumentGrid::NumberColumn);
    SelectRow(SelectedRow);
    SetIcons(true);
    RowSelected = 1;
}

void frmDiagram::DropSelection() {
    Siatka.SetCurrent(Siatka.Row(), DocumentGrid::NumberColumn);
    UnSelectRow(SelectedRow);
    SelectedRow = 0;
    SetIcons(false);
    RowSelected = 0;
}

void frmDiagram::SelectRow(std::int16_t& row) { PaintCross(row, true); }

void frmDiagram::UnSelectRow(std::int16_t& row) { PaintCross(row, false); }

void frmDiagram::PaintCross(std::int16_t row, bool selected) {
    for (int record = 1; record <= DocumentGrid::ValueCount(Siatka); ++record)
        PaintCell(row, record, selected);
    for (int other = 1; other < Siatka.Rows(); ++other) PaintCell(other, row, selected);
    Siatka.SetCurrent(row, DocumentGrid::ValueColumn(row));
}

void frmDiagram::StartOrder() {
    std::iota(RowOrder.Cells().begin(), RowOrder.Cells().end(), std::int16_t(1));
}

// The places behind close up; the last place is left over.
void frmDiagram::TakeOut(std::int32_t place) {
    for (std::int32_t k = place; k <= RowOrder.Count() - 1; ++k) RowOrder(k) = RowOrder(k + 1);
}

// From the last place on, all move one further.
void frmDiagram::MakeRoom(std::int32_t place) {
    for (std::int32_t k = RowOrder.Count(); k >= place + 1; --k) RowOrder(k) = RowOrder(k - 1);
}

// Selects the moved record at its new place.
void frmDiagram::LandOn(std::int16_t place) {
    SelectedRow = place;
    Siatka.SetCurrent(place, Siatka.Column());
    SelectRow(SelectedRow);
}

// Of the selected record: "Move Georgia Up".
std::string frmDiagram::NameOfMove(const char* how) const {
    return fmt::format("Move {} {}", TrimSpaces(Siatka.Text(SelectedRow, DocumentGrid::NameColumn)), how);
}

void frmDiagram::Exchange(std::int16_t neighbour, const char* direction) {
    const WaitCursor cursor(session_.platform);
    std::string name = NameOfMove(direction);
    StartOrder();
    std::swap(RowOrder(SelectedRow), RowOrder(neighbour));
    ApplyRowOrder();
    Siatka.SetCurrent(SelectedRow, DocumentGrid::NumberColumn);
    UnSelectRow(SelectedRow);
    LandOn(neighbour);
    RecordReordering(session_, *this, std::move(name), RowOrder);
}

void frmDiagram::Down() {
    if (RefusedWhileBusy(session_)) return;
    if (SelectedRow >= Siatka.Rows() - 1) return Beep(IsLast);
    Exchange(static_cast<std::int16_t>(SelectedRow + 1), "Down");
}

void frmDiagram::Up() {
    if (RefusedWhileBusy(session_)) return;
    if (SelectedRow <= 1) return Beep(RowSelected == 1 ? IsFirst : NoneSelected);
    Exchange(static_cast<std::int16_t>(SelectedRow - 1), "Up");
}

void frmDiagram::Home() {
    if (RefusedWhileBusy(session_)) return;
    if (SelectedRow <= 1) return Beep(RowSelected == 1 ? IsFirst : NoneSelected);
    const WaitCursor cursor(session_.platform);
    std::string name = NameOfMove("Home");
    StartOrder();
    TakeOut(SelectedRow);
    MakeRoom(1);
    RowOrder(1) = SelectedRow;
    ApplyRowOrder();
    LandOn(1);
    RecordReordering(session_, *this, std::move(name), RowOrder);
}

void frmDiagram::EndRow() {
    if (RefusedWhileBusy(session_)) return;
    const std::int16_t last = Document().RecCount;
    if (SelectedRow >= last) return Beep(IsLast);
    const WaitCursor cursor(session_.platform);
    std::string name = NameOfMove("to the End");
    StartOrder();
    TakeOut(SelectedRow);
    RowOrder(last) = SelectedRow;
    ApplyRowOrder();
    LandOn(last);
    RecordReordering(session_, *this, std::move(name), RowOrder);
}

void frmDiagram::Insert() {
    if (RefusedWhileBusy(session_)) return;
    const auto target = static_cast<std::int16_t>(Siatka.Row());
    if (target == SelectedRow || target < 1) return Beep(NoTarget);
    const WaitCursor cursor(session_.platform);
    std::string name = NameOfMove(fmt::format("to Place {}", target).c_str());
    StartOrder();
    TakeOut(SelectedRow);
    MakeRoom(target);
    RowOrder(target) = SelectedRow;
    ApplyRowOrder();
    LandOn(target);
    RecordReordering(session_, *this, std::move(name), RowOrder);
}

void frmDiagram::TakeOrder(const Array1<std::int16_t>& order) {
    if (RefusedWhileBusy(session_)) return;
    Reorder(order);
    RecordReordering(session_, *this, "Best Order", order);
}

// Without a selection the current cell keeps its place, and the window what it shows.
void frmDiagram::Reorder(const Array1<std::int16_t>& order) {
    const WaitCursor cursor(session_.platform);
    const int row = Siatka.Row();
    const int column = Siatka.Column();
    RowOrder = order;
    ApplyRowOrder();
    Siatka.SetCurrent(row, column);
    if (RowSelected != 1) return;
    const auto& places = RowOrder.Cells();
    LandOn(static_cast<std::int16_t>(std::ranges::find(places, SelectedRow) - places.begin() + 1));
}

void frmDiagram::Refresh() {
    StartOrder();
    Reorder(Array1<std::int16_t>(RowOrder));
}

void frmDiagram::ApplyRowOrder() {
    auto& document = Document();
    ReorderRecords(document, RowOrder);
    ClassifyDiagram(document);
    PaintNames();
    PaintCells();
}

} // namespace dorvan
