#include "distance/loading.h"

#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "numbers/text.h"
#include "sheet/frmNotePad.h"
#include "sheet/sheet_history.h"
#include "sheet/sheet_values.h"

namespace dorvan {

namespace {

std::string Trimmed(const std::string& text) { return std::string(TrimSpaces(text)); }

void LoadNames(Session& session, const Grid& grid) {
    for (std::int32_t record = 1; record <= session.tables.RecordNames.Count(); ++record)
        session.tables.RecordNames(record) = Trimmed(grid.Text(record, DocumentGrid::NameColumn));
    for (std::int32_t variable = 1; variable <= session.tables.VariableNames.Count(); ++variable)
        session.tables.VariableNames(variable) =
            Trimmed(grid.Text(DocumentGrid::HeaderRow, DocumentGrid::ValueColumn(variable)));
}

// Stores one value. Only the text "N/A" marks the record: a number equal to the marker does not.
void LoadCell(Session& session, const std::string& cell, std::int32_t record, std::int32_t variable) {
    const std::string text = ReplaceAll(cell, ",", ".");
    const bool missing = TrimSpaces(text) == NaText;
    session.tables.DataValues(record, variable) =
        missing ? NaValue : RoundToFloat(LeadingNumber(TrimSpaces(text)));
    if (!missing) return;
    session.tables.RecordHasNA(record) = true;
    session.tables.DataHasNA = true;
}

void ShowDataError(Session& session, std::int32_t record, std::int32_t variable) {
    session.platform.messages.show({.Text = DataErrorText(record, variable), .Icon = MessageIcon::Critical});
}

// False at a data error.
bool LoadRecord(Session& session, Grid& grid, std::int32_t record) {
    const bool& pendingError = session.Of<SheetValues>().PendingError;
    for (std::int32_t variable = 1; variable <= session.tables.VariableNames.Count(); ++variable) {
        const int column = DocumentGrid::ValueColumn(variable);
        grid.PassTo(record, column);
        LoadCell(session, grid.Text(record, column), record, variable);
        if (pendingError) {
            ShowDataError(session, record, variable);
            return false;
        }
        if (TrimSpaces(grid.Text(record, column)).empty()) grid.SetText(record, column, "0.00");
    }
    return true;
}

} // namespace

bool LoadWorkingData(Session& session) {
    frmNotePad& window = ActiveDataWindow(session);
    Grid& grid = window.Grid1;
    const std::int32_t n = window.RecordCount();
    const std::int32_t m = window.VariableCount();
    window.LeaveField(); // the grid gets the focus
    const SheetStep step(session, window, "Fill Empty Cells");
    window.SetFocus(grid);
    if (n >= 1 && m >= 1) grid.PassTo(1, DocumentGrid::FirstValueColumn);
    session.tables.RecordNames = Names(n);
    session.tables.DataValues = FloatTable(n, m);
    session.tables.RecordHasNA = Flags(n);
    session.tables.VariableNames = Names(m);
    LoadNames(session, grid);
    session.tables.DataHasNA = false;
    for (std::int32_t record = 1; record <= n; ++record)
        if (!LoadRecord(session, grid, record)) return false;
    return true;
}

} // namespace dorvan
