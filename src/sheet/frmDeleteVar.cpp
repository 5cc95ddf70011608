#include "sheet/frmDeleteVar.h"

#include "numbers/number_text.h"
#include "numbers/text.h"
#include "sheet/frmNotePad.h"
#include "sheet/sheet_history.h"
#include "sheet/sheet_structure.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace dorvan {

using namespace DocumentGrid;

namespace {

constexpr int EmptiedColumnWidth = 900; // twips

// All values of a sheet, by the strict conversion.
FloatTable ValuesOf(const frmNotePad& sheet, char decimalSeparator) {
    FloatTable values(sheet.RecordCount(), sheet.VariableCount());
    for (int record = 1; record <= sheet.RecordCount(); ++record)
        for (int variable = 1; variable <= sheet.VariableCount(); ++variable)
            values(record, variable) =
                StrictFloat(TrimSpaces(sheet.Grid1.Text(record, ValueColumn(variable))), decimalSeparator);
    return values;
}

// Puts the names of the header back when a failure passes: the sheet is whole when it is rescued.
class WholeHeader {
public:
    explicit WholeHeader(frmNotePad& sheet) : grid_(sheet.Grid1), failures_(std::uncaught_exceptions()) {
        for (int column = 0; column < grid_.Columns(); ++column)
            texts_.push_back(grid_.Text(HeaderRow, column));
    }
    ~WholeHeader() {
        if (std::uncaught_exceptions() == failures_) return;
        for (int column = 0; column < grid_.Columns(); ++column)
            grid_.SetText(HeaderRow, column, std::move(texts_[std::size_t(column)]));
    }
    WholeHeader(const WholeHeader&) = delete;
    WholeHeader& operator=(const WholeHeader&) = delete;

private:
    Grid& grid_;
    int failures_;
    std::vector<std::string> texts_;
};

} // namespace

void frmDeleteVar::Form_Load() {
    TakeVariableNames(session_);
    ShowVariableNames(session_, List1, 0);
}

void frmDeleteVar::Command1_Click() {
    if (List1.ListIndex < 0 || !Asked()) return;
    frmNotePad& sheet = ActiveDataWindow(session_);
    const SheetStep step(session_, sheet, "Delete " + List1.Text());
    if (sheet.VariableCount() == 1)
        EmptyOnlyVariable();
    else
        Delete(List1.ListIndex + 1);
    MarkSheetChanged(session_);
    List1.List.clear();
    List1.ListIndex = -1;
    Hide();
}

bool frmDeleteVar::Asked() {
    return session_.platform.messages.show({.Text = fmt::format("Delete variable: {}?", List1.Text()),
                                            .Icon = MessageIcon::Question,
                                            .Buttons = MessageButtons::YesNo,
                                            .Title = "Delete",
                                            .Default = Answer::No}) == Answer::Yes;
}

// The column goes, and a new one comes in its place.
void frmDeleteVar::EmptyOnlyVariable() {
    frmNotePad& sheet = ActiveDataWindow(session_);
    const int records = sheet.RecordCount();
    DocumentGrid::SetSize(sheet.Grid1, records, 0);
    DocumentGrid::SetSize(sheet.Grid1, records, 1);
    sheet.Grid1.SetColumnWidth(FirstValueColumn, EmptiedColumnWidth);
    sheet.Grid1.SetText(HeaderRow, FirstValueColumn, "VAR 1");
}

// The names reach the header before the values are read, of which one may end the run.
void frmDeleteVar::Delete(std::int32_t variable) {
    frmNotePad& sheet = ActiveDataWindow(session_);
    const WholeHeader header(sheet);
    auto& names = session_.tables.VariableNames.Cells();
    names.erase(names.begin() + (variable - 1));
    WriteVariableNames(session_);
    session_.tables.DataValues = ValuesOf(sheet, session_.DecimalSeparator);
    DocumentGrid::SetSize(sheet.Grid1, sheet.RecordCount(), sheet.VariableCount() - 1);
    for (int record = 1; record <= sheet.RecordCount(); ++record) {
        float* values = session_.tables.DataValues.Row(record);
        std::copy(values + variable, values + session_.tables.DataValues.Columns(), values + variable - 1);
        for (int kept = 1; kept <= sheet.VariableCount(); ++kept)
            sheet.Grid1.SetText(record, ValueColumn(kept),
                                PlainText(values[kept - 1], session_.DecimalSeparator));
    }
}

} // namespace dorvan
