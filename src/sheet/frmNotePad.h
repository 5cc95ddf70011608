#pragma once

#include "platform/child_window.h"
#include "platform/grid.h"
#include "session/session.h"

#include <cstdint>
#include <string>

namespace dorvan {

// The window that shows and edits one data sheet, a table of n records by m variables. The table lives in the
// grid, as text: n + 1 rows, m + 2 columns; row 0 holds the headers, column 0 the record's number, column 1
// its name, the columns from 2 the values through "###0.000" or "N/A".
class frmNotePad : public ChildWindow {
public:
    explicit frmNotePad(Session& session);

    Grid Grid1{"Grid1"};
    TextBox OpisText{"OpisText"}; // the description
    TextBox EditCell{"EditCell"};
    Frame EditPanel{"EditPanel"}; // shown only while a cell is edited

    std::int16_t EditRow = 0;
    std::int16_t EditCol = 0;
    std::string OldText; // the cell's text when the edit began
    bool Editing = false;

    // The path as it was chosen or opened. The caption shows it in lower case; a save to the caption's path
    // goes to this one, which is the same file where case does not tell files apart.
    std::string FilePath;

    int RecordCount() const { return Grid1.Rows() - 1; }
    int VariableCount() const { return Grid1.Columns() - 2; }

    // Sizes the grid for n records by m variables, with the headers "Number" and "Record Name", the column
    // widths and alignments, and the records' numbers in column 0. Clears all cells.
    void LayOut(int recordCount, int variableCount);

    // Fills the window from the working arrays of the session (names, values) and sets the description.
    void Present(const std::string& description) override;

    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

private:
    Session& session_;
};

// The data window of a slot; the registry's own reference.
frmNotePad& DataWindow(Session& session, std::int16_t slot);

// The active window as a data sheet. Fails with InvalidProcedureCall when it is none.
frmNotePad& ActiveDataWindow(Session& session);

} // namespace dorvan
