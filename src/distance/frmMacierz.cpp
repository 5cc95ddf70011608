#include "distance/frmMacierz.h"

#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/children.h"
#include "session/document_grid.h"
#include "session/registry.h"
#include "session/window_switches.h"

#include <fmt/format.h>

#include <algorithm>

namespace dorvan {

using namespace DocumentGrid;

namespace {

constexpr int NameWidthFactor = 3;

// The scan starts from 0, so that a matrix of numbers below 0 gives 0.
float HighestOf(const FloatTable& distances) {
    float highest = 0;
    for (const float distance : distances.Cells())
        if (distance >= highest) highest = distance;
    return highest;
}

} // namespace

int MatrixColumnWidth(std::size_t textLength) {
    static constexpr double factors[] = {1.3, 1.5, 1.75, 2, 2.3, 2.5, 2.75};
    const double factor = factors[std::clamp<std::size_t>(textLength, 4, 10) - 4];
    return RoundToInt32(frmMacierz::BaseColumnWidth * factor);
}

frmMacierz::frmMacierz(Session& session) : GridWindow("frmMacierz", session) {}

DistanceMatrix& frmMacierz::Document() { return session_.MatrixDocuments.at(std::size_t(Index)); }

void frmMacierz::Present(const std::string& description) {
    const DistanceMatrix& document = Document();
    FloatTable distances(document.Size, document.Size);
    for (std::int32_t row = 1; row <= document.Size; ++row)
        for (std::int32_t column = 1; column <= document.Size; ++column)
            distances(row, column) = ParseSheetNumber(document.Cells(row, column), session_.DecimalSeparator);
    PresentDistances(distances, description);
}

void frmMacierz::PresentDistances(const FloatTable& distances, const std::string& description) {
    const std::string highest = PlainText(HighestOf(distances), session_.DecimalSeparator);
    PresentDistances(distances, description, MatrixColumnWidth(CharacterCount(highest)));
}

void frmMacierz::PresentDistances(const FloatTable& distances, const std::string& description,
                                  int columnWidth) {
    if (BottomText.Text != description) {
        BottomText.Text = description;
        BottomText_Change();
    }
    DocumentGrid::SetSize(Siatka, Document().Size, Document().Size);
    Siatka.Clear();
    LayOutColumns(columnWidth);
    FillGrid(distances);
}

// The header of the last column keeps its alignment; the loop over them ends one short.
void frmMacierz::LayOutColumns(int valueColumnWidth) {
    for (int column = 0; column < Siatka.Columns() - 1; ++column)
        Siatka.SetHeaderAlignment(column, Alignment::Centre);
    Siatka.SetColumnWidth(NumberColumn, BaseColumnWidth);
    Siatka.SetColumnWidth(NameColumn, BaseColumnWidth * NameWidthFactor);
    for (int record = 1; record <= Document().Size; ++record) {
        const int column = ValueColumn(record);
        Siatka.SetColumnAlignment(column, Alignment::Right);
        Siatka.SetColumnWidth(column, valueColumnWidth);
        Siatka.SetText(HeaderRow, column, fmt::format("{}", record));
    }
}

void frmMacierz::FillGrid(const FloatTable& distances) {
    const DistanceMatrix& document = Document();
    for (int row = 1; row <= document.Size; ++row) {
        Siatka.SetText(row, NumberColumn, fmt::format("{}", row));
        Siatka.SetText(row, NameColumn, document.Names(row));
        for (int column = 1; column <= document.Size; ++column)
            Siatka.SetText(row, ValueColumn(column),
                           FormatPattern(distances(row, column), "###0.000", session_.DecimalSeparator));
    }
    if (document.Size >= 1) Siatka.SetCurrent(1, NameColumn);
}

void frmMacierz::BottomText_Change() { session_.MatrixStates.at(std::size_t(Index)).Dirty = true; }

// The key takes effect all the same.
void frmMacierz::BottomText_KeyPress(int&) { RefusedWhileBusy(session_); }

void frmMacierz::Form_Activate() {
    TypeOfForm = DocumentKind::Matrix;
    SwitchCommands(session_.mainWindow, DocumentKind::Matrix, WindowEvent::Activated);
}

void frmMacierz::Form_Deactivate() {
    SwitchCommands(session_.mainWindow, DocumentKind::Matrix, WindowEvent::Deactivated);
}

bool frmMacierz::Form_QueryUnload() {
    if (!session_.MatrixStates.at(std::size_t(Index)).Dirty) return true;
    const std::string name = ReplaceAll(Caption, "[MATRIX]: ", "");
    const Answer answer = AskToSave(session_, "matrix", name, MessageIcon::None);
    if (answer == Answer::Yes) session_.commands.Call("Save");
    return answer != Answer::Cancel;
}

void frmMacierz::Form_Unload() {
    SwitchCommands(session_.mainWindow, DocumentKind::Matrix, WindowEvent::Unloaded);
    session_.MatrixStates.at(std::size_t(Index)).Deleted = true;
}

// It is the active window that is kept from getting too small, which need not be this one.
void frmMacierz::Form_Resize() { KeepLeastSize({.Height = 2500, .HeightInstead = 3200, .Width = 5000}); }

frmMacierz& MatrixWindow(Session& session, std::int16_t slot) {
    return WindowInSlot<frmMacierz>(session.MatrixWindows, slot);
}

} // namespace dorvan
