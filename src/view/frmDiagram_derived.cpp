#include "distance/frmMacierz.h"
#include "numbers/number_text.h"
#include "numbers/text.h"
#include "session/busy.h"
#include "session/document_grid.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"
#include "view/frmDiagram.h"

#include <algorithm>

// The documents that a diagram gives birth to: a sheet and a matrix in its current order.
namespace dorvan {

namespace {

// Names stand in the diagram's order, values in that of its making. A missing value is a number like others.
void FillSheet(frmNotePad& sheet, const DiagramDocument& document, char decimalSeparator) {
    using namespace DocumentGrid;
    auto& grid = sheet.Grid1;
    sheet.LayOut(document.RecCount, document.VarCount);
    for (int variable = 1; variable <= document.VarCount; ++variable)
        grid.SetText(HeaderRow, ValueColumn(variable), document.VariableNames(variable));
    for (int row = 1; row <= document.RecCount; ++row) {
        grid.SetText(row, NameColumn, document.RecordNames(row));
        for (int variable = 1; variable <= document.VarCount; ++variable)
            grid.SetText(row, ValueColumn(variable),
                         FormatPattern(document.Data(row, variable), "#0.000", decimalSeparator));
    }
    grid.SetCurrent(1, NameColumn);
}

// Gives the length of the longest text of a cell.
std::size_t FillMatrix(DistanceMatrix& matrix, const DiagramDocument& document, char decimalSeparator) {
    const std::int16_t n = document.RecCount;
    matrix.Size = n;
    matrix.Names = document.RecordNames;
    matrix.Cells = Array2<std::string>(n, n);
    std::size_t longest = 0;
    for (std::int32_t row = 1; row <= n; ++row)
        for (std::int32_t column = 1; column <= n; ++column) {
            std::string& cell = matrix.Cells(row, column);
            cell = PlainText(document.Matrix(row, column), decimalSeparator);
            longest = std::max(longest, cell.size());
        }
    return longest;
}

} // namespace

void frmDiagram::DataOrder() {
    if (RefusedWhileBusy(session_)) return;
    OpenDocumentWindow<frmNotePad>(session_, {}, [this](frmNotePad& sheet) {
        sheet.OpisText.Text = TrimSpaces(BottomText.Text);
        FillSheet(sheet, Document(), session_.DecimalSeparator);
    });
}

// The columns of the new matrix are as wide as the longest text asks, which need not be that of the highest
// value.
void frmDiagram::Matrix() {
    if (RefusedWhileBusy(session_)) return;
    const WaitCursor waiting(session_.platform);
    OpenDocumentWindow<frmMacierz>(session_, {}, [this](frmMacierz& window) {
        const std::size_t longest = FillMatrix(window.Document(), Document(), session_.DecimalSeparator);
        window.PresentDistances(Document().Matrix, BottomText.Text, MatrixColumnWidth(longest));
    });
}

} // namespace dorvan
