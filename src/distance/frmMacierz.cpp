#include "distance/frmMacierz.h"

#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "session/children.h"
#include "session/registry.h"
#include "session/window_switches.h"

#include <fmt/format.h>

#include <algorithm>

namespace dorvan {

namespace {

constexpr int NameWidthFactor = 3;

// The scan starts from 0, so that a matrix of numbers below 0 gives 0.
float HighestOf(const FloatTable& distances) {
    float highest = 0;
    for (const float distance : distances.Cells())
        if (distance >= highest) highest = distance;
    return highest;
}

// By how much the default width grows for numbers whose highest has a text of so many characters.
double WidthFactor(std::size_t length) {
    static constexpr double factors[] = {1.3, 1.5, 1.75, 2, 2.3, 2.5, 2.75};
    return factors[std::clamp<std::size_t>(length, 4, 10) - 4];
}

} // namespace

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
    if (BottomText.Text != description) {
        BottomText.Text = description;
        BottomText_Change();
    }
    Siatka.SetSize(Document().Size + 1, Document().Size + 2);
    Siatka.Clear();
    LayOutColumns(HighestOf(distances));
    FillGrid(distances);
}

// The header of the last column keeps its alignment; the loop over them ends one short.
void frmMacierz::LayOutColumns(float highest) {
    const std::size_t length = CharacterCount(PlainText(highest, session_.DecimalSeparator));
    const int width = RoundToInt32(Grid::DefaultColumnWidth * WidthFactor(length));
    for (int column = 0; column < Siatka.Columns() - 1; ++column)
        Siatka.SetHeaderAlignment(column, Alignment::Centre);
    Siatka.SetColumnWidth(1, Grid::DefaultColumnWidth * NameWidthFactor);
    for (int column = 2; column < Siatka.Columns(); ++column) {
        Siatka.SetColumnAlignment(column, Alignment::Right);
        Siatka.SetColumnWidth(column, width);
        Siatka.SetText(0, column, fmt::format("{}", column - 1));
    }
}

void frmMacierz::FillGrid(const FloatTable& distances) {
    const DistanceMatrix& document = Document();
    for (int row = 1; row <= document.Size; ++row) {
        Siatka.SetText(row, 0, fmt::format("{}", row));
        Siatka.SetText(row, 1, document.Names(row));
        for (int column = 1; column <= document.Size; ++column)
            Siatka.SetText(row, column + 1,
                           FormatPattern(distances(row, column), "###0.000", session_.DecimalSeparator));
    }
    if (document.Size >= 1) Siatka.SetCurrent(1, 1);
}

void frmMacierz::BottomText_Change() { session_.MatrixStates.at(std::size_t(Index)).Dirty = true; }

// The key takes effect all the same.
void frmMacierz::BottomText_KeyPress(int&) {
    if (session_.DiagramBusy == 1) session_.platform.signals.beep();
}

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
