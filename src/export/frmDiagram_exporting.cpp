#include "export/worksheet.h"
#include "view/frmDiagram.h"

namespace dorvan {

void frmDiagram::ExportDiagramToExcel() {
    const std::string path = PickWorksheet(session_);
    if (path.empty()) return;
    const DiagramDocument& diagram = Document();
    Worksheet worksheet(session_, path);
    worksheet.SetColumnWidth(2, diagram.RecCount + 1, 3);
    for (std::int32_t row = 1; row <= diagram.RecCount; ++row) {
        worksheet.Text(row, 1, diagram.RecordNames(row));
        for (std::int32_t column = 1; column <= diagram.RecCount; ++column)
            worksheet.Integer(row, column + 1, diagram.Classes(row, column));
    }
    worksheet.Close();
}

} // namespace dorvan
