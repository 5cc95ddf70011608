#include "sheet/standardization.h"
#include "sheet/sheet_values.h"

#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"
#include "sheet/frmStandard.h"
#include "sheet/sheet_history.h"
#include "sheet/sheet_structure.h"
#include "sheet/standardizing.h"

#include <fmt/format.h>

namespace dorvan {

using namespace DocumentGrid;

namespace {

constexpr int FewestRecords = 2;

// False at a data error, after its message. A missing value has no leading number and reads as 0.
bool LoadCell(Session& session, Grid& grid, int record, int variable) {
    const int column = ValueColumn(variable);
    const std::string text = ReplaceAll(grid.Text(record, column), ",", ".");
    session.tables.DataValues(record, variable) = RoundToFloat(LeadingNumber(TrimSpaces(text)));
    if (session.Of<SheetValues>().PendingError) {
        session.platform.messages.show(
            {.Text = DataErrorText(record, variable), .Icon = MessageIcon::Critical});
        return false;
    }
    if (TrimSpaces(text).empty()) grid.SetText(record, column, "0.0");
    return true;
}

bool LoadValues(Session& session, frmNotePad& sheet) {
    const SheetStep step(session, sheet, "Fill Empty Cells");
    session.tables.RecordNames = Names(sheet.RecordCount());
    session.tables.DataValues = FloatTable(sheet.RecordCount(), sheet.VariableCount());
    TakeVariableNames(session);
    for (int record = 1; record <= sheet.RecordCount(); ++record)
        session.tables.RecordNames(record) = TrimSpaces(sheet.Grid1.Text(record, NameColumn));
    for (int record = 1; record <= sheet.RecordCount(); ++record)
        for (int variable = 1; variable <= sheet.VariableCount(); ++variable)
            if (!LoadCell(session, sheet.Grid1, record, variable)) return false;
    return true;
}

// Whichever variable it is: the text says 2.
void TellConstant(Session& session) {
    session.platform.messages.show({.Text = "Invalid data - variable number 2 is always the same!"});
}

void Standardize(Session& session, std::int16_t method) {
    if (method == frmStandard::ByDeviation)
        StandardizeByDeviation(session.tables.DataValues);
    else
        StandardizeToRange(session.tables.DataValues, [&session] { TellConstant(session); });
}

// No value is missing in the new sheet, the one that stands for missing ones neither.
void ShowAllAsNumbers(const Session& session, Grid& grid) {
    for (int record = 1; record <= session.tables.DataValues.Rows(); ++record)
        for (int variable = 1; variable <= session.tables.DataValues.Columns(); ++variable)
            if (session.tables.DataValues(record, variable) == NaValue)
                grid.SetText(record, ValueColumn(variable),
                             FormatPattern(NaValue, "###0.000", session.DecimalSeparator));
}

bool AskForMethod(Session& session, std::int16_t& method) {
    const bool accepted = Accepted<frmStandard>(session);
    method = session.forms.Load<frmStandard>(session).StandardMethod;
    session.forms.Unload<frmStandard>();
    return accepted;
}

} // namespace

void Standardization(Session& session) {
    if (RefusedWhileBusy(session)) return;
    frmNotePad& sheet = ActiveDataWindow(session);
    session.Of<SheetValues>().PendingError = false;
    if (sheet.RecordCount() < FewestRecords) {
        session.platform.messages.show(
            {.Text = "The number of records is less than 2. How make standarization?",
             .Icon = MessageIcon::Critical});
        return;
    }
    std::int16_t method = 0;
    if (!AskForMethod(session, method)) return;
    const WaitCursor wait(session.platform);
    const std::string description = fmt::format("STANDARD: {}", TrimSpaces(sheet.OpisText.Text));
    if (!LoadValues(session, sheet)) return;
    Standardize(session, method);
    OpenDocumentWindow<frmNotePad>(session, {}, [&](frmNotePad& made) {
        made.Present(description);
        ShowAllAsNumbers(session, made.Grid1);
    });
}

} // namespace dorvan
