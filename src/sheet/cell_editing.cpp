// The part of frmNotePad that edits one cell.
#include "sheet/frmNotePad.h"

#include "numbers/number_text.h"
#include "numbers/runtime_failure.h"
#include "numbers/text.h"
#include "numbers/utf8.h"
#include "platform/keys.h"
#include "session/busy.h"
#include "sheet/expression.h"
#include "sheet/sheet_history.h"
#include "sheet/sheet_values.h"

#include <utility>

namespace dorvan {

using DocumentGrid::FirstValueColumn;
using DocumentGrid::NameColumn;

namespace {

constexpr int LongestName = 15; // characters
constexpr int LongestValue = 12;

// The two limits differ by a factor of ten, and the message speaks of a third number: kept so.
constexpr double LimitOfEditedCell = 10000000.0;
constexpr double LimitOfCellLeftBehind = 1000000.0;

constexpr int Delete = 127; // a character code that shows nothing

constexpr const char* RefusalTitle = "Invalid Number";

Message TooLarge() {
    return {.Text = "Number is way too large!\nEnter a number under 100 000 or so!",
            .Icon = MessageIcon::Exclamation,
            .Title = RefusalTitle};
}

Message Unexpected(const RuntimeFailure& failure) {
    return {.Text = "Unexpected error #" + SignedText(failure.Number()) +
                    " in processing that number.  Try again.",
            .Icon = MessageIcon::Exclamation,
            .Title = RefusalTitle};
}

bool IsOperator(int character) {
    return character == '/' || character == '*' || character == '-' || character == '+';
}

bool IsArrow(int keyCode) { return keyCode >= key::Left && keyCode <= key::Down; }

} // namespace

bool frmNotePad::CurrentCellCanBeEdited() const {
    return Grid1.Row() >= Grid1.FixedRows && Grid1.Row() < Grid1.Rows() &&
           Grid1.Column() >= Grid1.FixedColumns && Grid1.Column() < Grid1.Columns();
}

void frmNotePad::TakeCurrentCell() {
    EditRow = static_cast<std::int16_t>(Grid1.Row());
    EditCol = static_cast<std::int16_t>(Grid1.Column());
    OldText = Grid1.Text(EditRow, EditCol);
    EditCell.TextAlignment = EditCol == NameColumn ? Alignment::Left : Alignment::Right;
}

void frmNotePad::StartCellEdit(int key, int mode) {
    Editing = true;
    before_ = Grid1.Text(EditRow, EditCol);
    EditCell.Text = mode == 1 ? Grid1.Text(EditRow, EditCol) : std::string();
    EditCell.SelStart = static_cast<int>(CharacterCount(EditCell.Text));
    EditCell.SelLength = 0;
    EditPanel.Visible = true;
    SetFocus(EditCell);
    if (key != key::None) TypeIntoEditCell(key);
}

// As the field itself would take the key: filtered, not over its longest length, told as a change.
void frmNotePad::TypeIntoEditCell(int key) {
    EditCell_KeyPress(key);
    if (key < key::Space || CharacterCount(EditCell.Text) >= std::size_t(EditCell.MaxLength)) return;
    AppendUtf8(EditCell.Text, static_cast<char32_t>(key));
    EditCell.SelStart = static_cast<int>(CharacterCount(EditCell.Text));
    EditCell_Change();
}

void frmNotePad::Grid1_KeyDown(int& keyCode) {
    if (IsBusy(session_)) keyCode = key::None; // the arrows do nothing either
    if ((keyCode != key::Enter && keyCode != key::F2) || !CurrentCellCanBeEdited()) return;
    keyCode = key::None;
    TakeCurrentCell();
    StartCellEdit(key::None, 1);
}

void frmNotePad::Grid1_KeyPress(int& keyAscii) {
    if (IsBusy(session_)) keyAscii = key::None;
    const int typed = keyAscii;
    if (typed == key::Enter || typed == key::Escape || typed >= key::Space) keyAscii = key::None;
    if (typed <= key::Space || typed == Delete || !CurrentCellCanBeEdited()) return;
    TakeCurrentCell();
    StartCellEdit(typed, 0);
}

void frmNotePad::Grid1_DblClick() {
    if (Grid1.Column() < 1) return;
    session_.platform.keyboard.send("{F2}");
    MarkChanged();
}

bool frmNotePad::Grid1_MouseDown(int button) { return button == mouse::Right && !IsBusy(session_); }

bool frmNotePad::Grid1_Tab(bool back) {
    if (IsBusy(session_)) return true;
    const int column = Grid1.Column() + (back ? -1 : 1);
    if (column < Grid1.FixedColumns || column >= Grid1.Columns()) return false;
    Grid1.ArrowKey(back ? key::Left : key::Right);
    return true;
}

std::string frmNotePad::CellTitle() const {
    const int row = Editing ? EditRow : Grid1.Row();
    const int column = Editing ? EditCol : Grid1.Column();
    if (row <= 0 || row >= Grid1.Rows() || column <= 0 || column >= Grid1.Columns()) return {};
    // A name that is edited changes while it is typed: its record goes by its number then.
    std::string record(TrimSpaces(Grid1.Text(row, NameColumn)));
    if (column == NameColumn || record.empty())
        record = TrimSpaces(Grid1.Text(row, DocumentGrid::NumberColumn));
    return record + ", " + std::string(TrimSpaces(Grid1.Text(DocumentGrid::HeaderRow, column))) + ":";
}

void frmNotePad::EditCell_Tab(bool back) { CommitCell(back ? key::Left : key::Right); }

void frmNotePad::EditCell_Change() {
    if (Editing && AtEditedCell()) Grid1.SetText(EditRow, EditCol, EditCell.Text);
}

void frmNotePad::EditCell_KeyDown(int& keyCode) {
    const bool atStart = EditCell.SelStart == 0;
    const bool atEnd = EditCell.SelStart == static_cast<int>(CharacterCount(EditCell.Text));
    int move = key::None;
    if (keyCode == key::Enter || keyCode == key::Down) move = key::Down;
    if (keyCode == key::Left && atStart) move = key::Left;
    if (keyCode == key::Up && atEnd) move = key::Up;
    if (keyCode == key::Right && atEnd) move = key::Right;
    if (move == key::None) return;
    keyCode = key::None;
    CommitCell(move);
}

void frmNotePad::EditCell_KeyPress(int& keyAscii) {
    EditCell.MaxLength = EditCol == NameColumn ? LongestName : LongestValue;
    if (RefusedWhileBusy(session_)) return;
    if (keyAscii == key::Enter) {
        keyAscii = key::None; // key down has already committed
    } else if (keyAscii == key::Escape) {
        keyAscii = key::None;
        RestoreOldText();
    } else if (EditCol != NameColumn) {
        keyAscii = FilterOfValueCell(keyAscii);
    }
}

// The character that a value cell takes for the one typed; 0 when it takes none. "N/A" can be typed.
int frmNotePad::FilterOfValueCell(int keyAscii) const {
    if (keyAscii == ',' || keyAscii == '.') {
        const bool separatorStands = EditCell.Text.find_first_of(",.") != std::string::npos;
        const bool operatorStands = EditCell.Text.find_first_of("/*-+") != std::string::npos;
        return separatorStands && !operatorStands ? key::None : keyAscii;
    }
    if (key::IsDigit(keyAscii) || IsOperator(keyAscii) || keyAscii == key::Backspace) return keyAscii;
    if (keyAscii == 'n' || keyAscii == 'N') return 'N';
    if (keyAscii == 'a' || keyAscii == 'A') return 'A';
    return key::None;
}

void frmNotePad::RestoreOldText() {
    if (Editing && EditRow < Grid1.Rows() && EditCol < Grid1.Columns())
        Grid1.SetText(EditRow, EditCol, OldText);
    OldText.clear();
    EditCell.Text.clear();
    EndEdit();
    ForgetEdit();
}

// Also a refused text stands in its cell, and can be undone.
void frmNotePad::KeepStep() {
    if (before_) RecordCellEdit(session_, *this, EditRow, EditCol, *std::exchange(before_, std::nullopt));
}

// The edit field goes and the grid has the focus again. What the field loses by that is already taken out of
// it, so the loss of focus that a face reports next commits nothing.
void frmNotePad::EndEdit() {
    Editing = false;
    EditCell.SelStart = 0;
    EditPanel.Visible = false;
    SetFocus(Grid1);
}

void frmNotePad::EditCell_LostFocus() {
    const auto keepAlive = OwnReference();
    Editing = false;
    if (!EditCell.Text.empty())
        CommitCell(key::None);
    else
        KeepStep();
    EditPanel.Visible = false;
    if (ActiveControl == &EditCell) SetFocus(Grid1); // no other control of this window has taken it
}

// A commit lets events run: the window may close then, and another one get its slot.
std::shared_ptr<ChildWindow> frmNotePad::OwnReference() const {
    return session_.DataWindows.at(std::size_t(Index));
}

void frmNotePad::LeaveField() {
    if (Editing) EditCell_LostFocus();
}

void frmNotePad::CommitCell(int key) {
    const auto keepAlive = OwnReference();
    if (std::exchange(session_.Of<SheetValues>().SuppressCommit, false)) {
        EditCell.Text.clear();
        EditCell.SelStart = 0;
        KeepStep();
        if (Editing && EditRow < Grid1.Rows() && EditCol < Grid1.Columns()) // the edit stays open
            before_ = Grid1.Text(EditRow, EditCol);
        return;
    }
    const std::string withPoints = ReplaceAll(EditCell.Text, ",", ".");
    const std::string text(TrimSpaces(withPoints));
    EditCell.Text.clear();
    if (key == key::None)
        EditPanel.Visible = false;
    else
        EndEdit();
    // The loss of focus that the field tells while events run is no end of its own.
    auto before = std::exchange(before_, std::nullopt);
    const auto refusal = WriteCell(text);
    if (before) RecordCellEdit(session_, *this, EditRow, EditCol, std::move(*before));
    if (refusal) {
        session_.platform.messages.show(*refusal);
        return;
    }
    if (IsArrow(key)) Grid1.ArrowKey(key);
}

// The message of a refusal, if there is one.
std::optional<Message> frmNotePad::WriteCell(const std::string& text) {
    const WaitCursor wait(session_.platform);
    try {
        if (WriteEditedCell(text)) return std::nullopt;
        return TooLarge();
    } catch (const RuntimeFailure& failure) {
        return Unexpected(failure);
    }
}

// False: refused, and the cell keeps what stands in it. A change of the current cell that caused the commit
// takes place while the pending events run.
bool frmNotePad::WriteEditedCell(const std::string& text) {
    double value = 0.0;
    if (Grid1.Column() >= FirstValueColumn) {
        value = text == NaText ? double(NaValue) : EvaluateCellText(text).Value;
        if (value >= LimitOfEditedCell) return false;
    }
    session_.platform.events.run();
    if (Grid1.Column() < FirstValueColumn || !AtEditedCell()) return WriteCellLeftBehind(text);
    Grid1.SetText(EditRow, EditCol,
                  value == double(NaValue) ? std::string(NaText)
                                           : FormatPattern(value, "###0.000", session_.DecimalSeparator));
    return true;
}

// Writes the edited cell when the current cell is another one, or one of names. A refusal leaves the edited
// cell current. False: refused.
bool frmNotePad::WriteCellLeftBehind(const std::string& text) {
    const int row = Grid1.Row();
    const int column = Grid1.Column();
    Grid1.SetCurrent(EditRow, EditCol);
    std::string shown = text;
    if (EditCol >= FirstValueColumn && text != NaText) {
        const double value = EvaluateCellText(text).Value;
        if (value >= LimitOfCellLeftBehind) return false;
        shown = FormatPattern(value, "###0.000", session_.DecimalSeparator);
    }
    Grid1.SetText(EditRow, EditCol, std::move(shown));
    Grid1.SetCurrent(row, column);
    return true;
}

} // namespace dorvan
