#include "export/excel_export.h"

#include "export/worksheet.h"
#include "sheet/frmNotePad.h"

namespace dorvan {

void ExportDataToExcel(Session& session) {
    const std::string path = PickWorksheet(session);
    if (path.empty()) return;
    const WaitCursor wait(session.platform);
    const Grid& sheet = ActiveDataWindow(session).Grid1;
    Worksheet worksheet(session, path);
    worksheet.SetColumnWidth(2, sheet.Columns() - 1, 8);
    for (int column = 1; column < sheet.Columns(); ++column) worksheet.Text(1, column, sheet.Text(0, column));
    for (int row = 1; row < sheet.Rows(); ++row) {
        worksheet.Text(row + 1, 1, sheet.Text(row, 1));
        for (int column = 2; column < sheet.Columns(); ++column)
            worksheet.Number(row + 1, column, sheet.Text(row, column));
    }
    worksheet.Close();
}

} // namespace dorvan
