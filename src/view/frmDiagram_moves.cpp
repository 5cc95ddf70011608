#include "view/frmDiagram.h"

#include "numbers/runtime_failure.h"
#include "session/busy.h"
#include "session/document_grid.h"
#include "view/classes.h"
#include "view/document_order.h"

#include <algorithm>
#include <numeric>
#include <utility>

// Selecting a row and moving it: ordering by hand.
namespace dorvan {

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

void frmDiagram::Exchange(std::int16_t neighbour) {
    const WaitCursor cursor(session_.platform);
    StartOrder();
    std::swap(RowOrder(SelectedRow), RowOrder(neighbour));
    ApplyRowOrder();
    Siatka.SetCurrent(SelectedRow, DocumentGrid::NumberColumn);
    UnSelectRow(SelectedRow);
    LandOn(neighbour);
}

void frmDiagram::Down() {
    if (RefusedWhileBusy(session_)) return;
    if (SelectedRow >= Siatka.Rows() - 1) return Beep();
    Exchange(static_cast<std::int16_t>(SelectedRow + 1));
}

void frmDiagram::Up() {
    if (RefusedWhileBusy(session_)) return;
    if (SelectedRow <= 1) return Beep();
    Exchange(static_cast<std::int16_t>(SelectedRow - 1));
}

void frmDiagram::Home() {
    if (RefusedWhileBusy(session_)) return;
    if (SelectedRow <= 1) return Beep();
    const WaitCursor cursor(session_.platform);
    StartOrder();
    TakeOut(SelectedRow);
    MakeRoom(1);
    RowOrder(1) = SelectedRow;
    ApplyRowOrder();
    LandOn(1);
}

void frmDiagram::EndRow() {
    if (RefusedWhileBusy(session_)) return;
    const std::int16_t last = Document().RecCount;
    if (SelectedRow >= last) return Beep();
    const WaitCursor cursor(session_.platform);
    StartOrder();
    TakeOut(SelectedRow);
    RowOrder(last) = SelectedRow;
    ApplyRowOrder();
    LandOn(last);
}

void frmDiagram::Insert() {
    if (RefusedWhileBusy(session_)) return;
    const auto target = static_cast<std::int16_t>(Siatka.Row());
    if (target == SelectedRow || target < 1) return Beep();
    const WaitCursor cursor(session_.platform);
    StartOrder();
    TakeOut(SelectedRow);
    MakeRoom(target);
    RowOrder(target) = SelectedRow;
    ApplyRowOrder();
    LandOn(target);
}

void frmDiagram::TakeOrder(const Array1<std::int16_t>& order) {
    if (RefusedWhileBusy(session_)) return;
    const WaitCursor cursor(session_.platform);
    const std::int16_t selected = SelectedRow;
    RowOrder = order;
    ApplyRowOrder();
    if (RowSelected != 1) return;
    const auto& places = RowOrder.Cells();
    LandOn(static_cast<std::int16_t>(std::ranges::find(places, selected) - places.begin() + 1));
}

void frmDiagram::ApplyRowOrder() {
    auto& document = Document();
    ReorderRecords(document, RowOrder);
    ClassifyDiagram(document);
    PaintNames();
    PaintCells();
}

} // namespace dorvan
