#pragma once

#include "platform/child_window.h"
#include "platform/grid.h"
#include "session/document_grid.h"
#include "session/session.h"
#include "sheet/sheet_table.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace dorvan {

// The window that shows and edits one data sheet, a table of n records by m variables. The table lives in the
// grid, as text: n + 1 rows, m + 2 columns; row 0 holds the headers, column 0 the record's number, column 1
// its name, the columns from 2 the values through "###0.000" or "N/A".
class frmNotePad : public ChildWindow {
public:
    static constexpr std::string_view Kind = DocumentKind::Data;

    explicit frmNotePad(Session& session);

    // TopPanel lies at the top over the whole width and holds the label, OpisText (which follows the panel's
    // width) and EditPanel with EditCell; Grid1 fills the rest.
    Frame TopPanel{"TopPanel"};
    Label Label1{"Label1", "Description:"};
    TextBox OpisText{"OpisText"}; // the description
    Frame EditPanel{"EditPanel"}; // shown only while a cell is edited
    TextBox EditCell{"EditCell"};
    Grid Grid1{"Grid1"};

    std::int16_t EditRow = 0; // the cell being edited
    std::int16_t EditCol = 0;
    std::string OldText; // the cell's text when the edit began
    bool Editing = false;

    // The record and the variable of the cell that is edited, else of the current one: "Georgia, Height:".
    std::string CellTitle() const;

    // The path as it was chosen or opened. The caption shows it in lower case; a save to the caption's path
    // goes to this one, which is the same file where case does not tell files apart.
    std::string FilePath;

    // The file that the caption names.
    std::string NamedFile() const;

    int RecordCount() const { return DocumentGrid::RecordCount(Grid1); }
    int VariableCount() const { return DocumentGrid::ValueCount(Grid1); }

    // What the grid holds.
    SheetTable Table() const;

    // Sizes the grid for n records by m variables, with the headers "Number" and "Record Name", the column
    // widths and alignments, and the records' numbers in column 0. Clears all cells.
    void LayOut(int recordCount, int variableCount);

    // Fills the window from the working arrays of the session (names, values) and sets the description.
    void Present(const std::string& description);

    // Opens the edit of the cell (EditRow, EditCol), and gives EditCell the focus. In mode 1 EditCell starts
    // with the cell's text and the caret at its end, else empty. The character `key`, unless it is 0, goes
    // through EditCell_KeyPress into the field.
    void StartCellEdit(int key, int mode);

    // Ends the edit and writes the cell; an arrow key code then moves the grid's current cell. A number that
    // is too large, or a failure, is told in a message and leaves the cell as it stands.
    void CommitCell(int key);

    // Keys of the grid. A key that starts an edit is taken by the handler, its character included: a face
    // only mirrors the controls and the focus, and inserts nothing itself.
    void Grid1_KeyDown(int& keyCode);
    void Grid1_KeyPress(int& keyAscii);
    void Grid1_DblClick();
    // Tab moves to the right, Shift+Tab to the left. False at the end of the row, where the face moves the
    // focus.
    bool Grid1_Tab(bool back);
    // True when the face has to open the menu mnuEdit at the pointer.
    bool Grid1_MouseDown(int button);

    // A face calls EditCell_Change after a change of the text by the user, not after one that it mirrors, and
    // EditCell_LostFocus once another control of the program has the focus.
    void EditCell_Change();
    void EditCell_KeyDown(int& keyCode);
    void EditCell_KeyPress(int& keyAscii);
    void EditCell_LostFocus();
    // Tab commits and moves to the right, Shift+Tab (`back`) to the left, as the arrows do.
    void EditCell_Tab(bool back);
    void LeaveField() override; // commits an open edit

    void OpisText_Change(); // after any change of the text by the user
    void OpisText_KeyPress(int& keyAscii);

    // The rows of the grid have changed: an edit that has not been committed is no step any more.
    void ForgetEdit() { before_.reset(); }

    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    void Form_Resize() override;

private:
    bool AtEditedCell() const { return Grid1.Row() == EditRow && Grid1.Column() == EditCol; }
    bool CurrentCellCanBeEdited() const;
    void TakeCurrentCell();
    std::shared_ptr<ChildWindow> OwnReference() const;
    void TypeIntoEditCell(int key);
    int FilterOfValueCell(int keyAscii) const;
    void RestoreOldText();
    void EndEdit();
    std::optional<Message> WriteCell(const std::string& text);
    bool WriteEditedCell(const std::string& text);
    bool WriteCellLeftBehind(const std::string& text);
    void MarkChanged();
    void KeepStep();

    Session& session_;
    std::optional<std::string> before_; // the edited cell's text, until its step is kept
};

// A value as its cell shows it: a number of three decimals, "N/A", or nothing for an EmptyValue.
std::string CellText(float value, char decimalSeparator);

// The data window of a slot; the registry's own reference.
frmNotePad& DataWindow(Session& session, std::int16_t slot);

// The active window as a data sheet. Fails with InvalidProcedureCall when it is none.
frmNotePad& ActiveDataWindow(Session& session);

} // namespace dorvan
