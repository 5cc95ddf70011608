#include "distance/frmMacierz.h"
#include "export/delimited_text.h"
#include "export/export_files.h"
#include "export/frmTextOptions.h"
#include "export/worksheet.h"
#include "files/disk.h"
#include "session/busy.h"
#include "session/dialog.h"

namespace dorvan {

void frmMacierz::ExportMatrix() {
    if (RefusedWhileBusy(session_) || !AcceptedForOutput<frmTextOptions>(session_)) return;
    const std::string path =
        PickFileToSave(session_, TextFileFilters(), " - Export matrix to text file", "*.txt");
    if (path.empty()) return;
    try {
        const char separator = SeparatorCharacter(session_.MatrixTextSeparator);
        ReplaceFile(path, MatrixAsText(Document(), separator, session_.codePage));
    } catch (const FileError& error) {
        throw FailureOfWriting(error, path);
    }
}

// The last column keeps the default width.
void frmMacierz::ExportMatrixToExcel() {
    const std::string path = PickWorksheet(session_);
    if (path.empty()) return;
    const WaitCursor wait(session_.platform);
    const DistanceMatrix& matrix = Document();
    Worksheet worksheet(session_, path);
    worksheet.SetColumnWidth(2, matrix.Size, 8);
    for (std::int32_t row = 1; row <= matrix.Size; ++row) {
        worksheet.Text(row, 1, matrix.Names(row));
        for (std::int32_t column = 1; column <= matrix.Size; ++column)
            worksheet.Number(row, column + 1, matrix.Cells(row, column));
    }
    worksheet.Close();
}

} // namespace dorvan
