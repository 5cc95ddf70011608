#pragma once

#include "distance/frmMacierz.h"
#include "distance/frmOpcjeMacierzy.h"
#include "distance/making_matrix.h"
#include "session/children.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"
#include "support/test_platform.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace dorvan::test {

using Rows = std::vector<std::vector<std::string>>;

// A session that can open data sheets and matrices.
struct MatrixSession : TestSession {
    // An active sheet of records "r1", "r2", ... by variables "v1", ...; empty when `rows` is.
    frmNotePad& OpenSheet(const Rows& rows) {
        frmNotePad& sheet = OpenSheet(int(rows.size()), rows.empty() ? 0 : int(rows[0].size()));
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (std::size_t column = 0; column < rows[row].size(); ++column)
                sheet.Grid1.SetText(int(row) + 1, int(column) + 2, rows[row][column]);
        return sheet;
    }

    // The same with the value r at each place of record r.
    frmNotePad& OpenSheet(int records, int variables) {
        auto& opened = OpenDocumentWindow<frmNotePad>(session, {.Dirty = false}, [&](frmNotePad& sheet) {
            sheet.LayOut(records, variables);
            for (int column = 1; column <= variables; ++column)
                sheet.Grid1.SetText(0, column + 1, "v" + std::to_string(column));
            for (int row = 1; row <= records; ++row) {
                sheet.Grid1.SetText(row, 1, "r" + std::to_string(row));
                for (int column = 1; column <= variables; ++column)
                    sheet.Grid1.SetText(row, column + 1, std::to_string(row));
            }
        });
        children.log.clear();
        return opened;
    }

    // The user chooses a measure in the dialog of the next matrix.
    void ChooseMeasure(int dataKind, int position) {
        forms.scripts.push_back([dataKind, position](Form& form) {
            auto& dialog = dynamic_cast<frmOpcjeMacierzy&>(form);
            dialog.cboData.ListIndex = dataKind;
            dialog.cboData_Click();
            dialog.Combo1.ListIndex = position;
            dialog.Command2_Click();
        });
    }

    // A matrix of the active sheet under "Euclidean".
    frmMacierz& Make() {
        forms.scripts.push_back([](Form& form) { dynamic_cast<frmOpcjeMacierzy&>(form).Command2_Click(); });
        MakeMatrix(session);
        return dynamic_cast<frmMacierz&>(*session.ActiveWindow);
    }
    frmMacierz& Make(const Rows& rows) {
        OpenSheet(rows);
        return Make();
    }
};

} // namespace dorvan::test
