#include "sheet/frmNotePad.h"

#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/children.h"
#include "session/registry.h"
#include "session/window_switches.h"

#include <algorithm>

namespace dorvan {

using namespace DocumentGrid;

namespace {

constexpr int NumberColumnWidth = 900;
constexpr int NameColumnWidth = 1800;
constexpr int ValueColumnWidth = 900;
constexpr int MinimalHeight = 2500; // twips
constexpr int MinimalWidth = 3000;

} // namespace

frmNotePad::frmNotePad(Session& session) : ChildWindow("frmNotePad"), session_(session) {
    EditPanel.Visible = false;
}

std::string frmNotePad::NamedFile() const {
    const std::string path = CaptionPath(Caption);
    return LowerCase(FilePath) == path ? FilePath : path;
}

SheetTable frmNotePad::Table() const {
    SheetTable table(RecordCount(), VariableCount());
    for (int variable = 1; variable <= VariableCount(); ++variable)
        table.VariableNames(variable) = Grid1.Text(HeaderRow, ValueColumn(variable));
    for (int record = 1; record <= RecordCount(); ++record) {
        table.RecordNames(record) = Grid1.Text(record, NameColumn);
        for (int variable = 1; variable <= VariableCount(); ++variable)
            table.Cells(record, variable) = Grid1.Text(record, ValueColumn(variable));
    }
    return table;
}

void frmNotePad::LayOut(int recordCount, int variableCount) {
    DocumentGrid::SetSize(Grid1, recordCount, variableCount);
    Grid1.Clear();
    Grid1.SetText(HeaderRow, NumberColumn, "Number");
    Grid1.SetText(HeaderRow, NameColumn, "Record Name");
    for (int column = 0; column < Grid1.Columns(); ++column) {
        Grid1.SetColumnWidth(column, column == NumberColumn ? NumberColumnWidth
                                     : column == NameColumn ? NameColumnWidth
                                                            : ValueColumnWidth);
        if (column == NumberColumn) continue;
        Grid1.SetHeaderAlignment(column, Alignment::Centre);
        Grid1.SetColumnAlignment(column, Alignment::Centre);
    }
    for (int row = 1; row <= recordCount; ++row) Grid1.SetText(row, NumberColumn, SignedText(row));
}

void frmNotePad::Present(const std::string& description) {
    const auto& values = session_.tables.DataValues;
    LayOut(session_.tables.RecordNames.Count(), session_.tables.VariableNames.Count());
    OpisText.Text = description;
    for (int variable = 1; variable <= VariableCount(); ++variable)
        Grid1.SetText(HeaderRow, ValueColumn(variable), session_.tables.VariableNames(variable));
    for (int row = 1; row <= RecordCount(); ++row) {
        Grid1.SetText(row, NameColumn, session_.tables.RecordNames(row));
        for (int variable = 1; variable <= VariableCount(); ++variable) {
            Grid1.SetText(row, ValueColumn(variable),
                          CellText(values(row, variable), session_.DecimalSeparator));
        }
    }
    if (RecordCount() >= 1) Grid1.SetCurrent(1, NameColumn);
}

void frmNotePad::Form_Activate() {
    TypeOfForm = DocumentKind::Data;
    SwitchCommands(session_.mainWindow, DocumentKind::Data, WindowEvent::Activated);
}

void frmNotePad::Form_Deactivate() {
    SwitchCommands(session_.mainWindow, DocumentKind::Data, WindowEvent::Deactivated);
}

bool frmNotePad::Form_QueryUnload() {
    if (!session_.DataStates.at(std::size_t(Index)).Dirty) return true;
    switch (AskToSave(session_, "data", Caption, MessageIcon::Exclamation)) {
    case Answer::Cancel: return false;
    case Answer::Yes: session_.commands.Call("SaveData"); return true;
    default: return true;
    }
}

void frmNotePad::Form_Unload() {
    SwitchCommands(session_.mainWindow, DocumentKind::Data, WindowEvent::Unloaded);
    session_.DataStates.at(std::size_t(Index)).Deleted = true;
}

// The limits hold for the active child window, whichever is being resized.
void frmNotePad::Form_Resize() {
    auto* active = session_.ActiveWindow;
    if (Mode != WindowMode::Normal || !active) return;
    if (active->Height >= MinimalHeight && active->Width >= MinimalWidth) return;
    active->Height = std::max(active->Height, MinimalHeight);
    active->Width = std::max(active->Width, MinimalWidth);
    session_.platform.children.update(*active);
}

void frmNotePad::MarkChanged() { session_.DataStates.at(std::size_t(Index)).Dirty = true; }

void frmNotePad::OpisText_Change() { MarkChanged(); }

// The key takes effect all the same.
void frmNotePad::OpisText_KeyPress(int&) { RefusedWhileBusy(session_); }

std::string CellText(float value, char decimalSeparator) {
    if (IsEmptyValue(value)) return {};
    return value == NaValue ? std::string(NaText) : FormatPattern(value, "###0.000", decimalSeparator);
}

frmNotePad& DataWindow(Session& session, std::int16_t slot) {
    return WindowInSlot<frmNotePad>(session.DataWindows, slot);
}

frmNotePad& ActiveDataWindow(Session& session) {
    auto* window = dynamic_cast<frmNotePad*>(session.ActiveWindow);
    if (!window) throw RuntimeFailure(Failure::InvalidProcedureCall, "the active window is not a data sheet");
    return *window;
}

} // namespace dorvan
