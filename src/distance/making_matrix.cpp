#include "distance/making_matrix.h"

#include "distance/distance.h"
#include "distance/frmMacierz.h"
#include "distance/frmOpcjeMacierzy.h"
#include "distance/loading.h"
#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "session/busy.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"
#include "sheet/sheet_values.h"

namespace dorvan {

namespace {

constexpr int FewestRecords = 2;
constexpr int MostRecords = 150; // fewer than a diagram takes

bool RecordCountFits(Session& session, int count) {
    const char* refusal = nullptr;
    if (count < FewestRecords)
        refusal = "The number of records is less than 2. I can't create matrix!";
    else if (count > MostRecords)
        refusal = "The number of records is > 150 (max. number of records)!";
    if (refusal) session.platform.messages.show({.Text = refusal, .Icon = MessageIcon::Critical});
    return !refusal;
}

// The record of a slot, from the working arrays.
void FillDocument(const Session& session, std::int16_t n, DistanceMatrix& document) {
    document.Size = n;
    document.Names = session.tables.RecordNames;
    document.Cells = Array2<std::string>(n, n);
    for (std::int32_t row = 1; row <= n; ++row)
        for (std::int32_t column = 1; column <= n; ++column)
            document.Cells(row, column) =
                PlainText(session.tables.DistanceValues(row, column), session.DecimalSeparator);
}

void OpenMadeMatrix(Session& session, std::int16_t n, const std::string& description) {
    const WaitCursor waiting(session.platform);
    OpenDocumentWindow<frmMacierz>(session, {}, [&](frmMacierz& window) {
        FillDocument(session, n, window.Document());
        window.PresentDistances(session.tables.DistanceValues, description);
    });
}

} // namespace

void MakeMatrix(Session& session) {
    if (RefusedWhileBusy(session)) return;
    const frmNotePad& sheet = ActiveDataWindow(session);
    const int n = sheet.RecordCount();
    const int m = sheet.VariableCount();
    if (!RecordCountFits(session, n) || !Accepted<frmOpcjeMacierzy>(session)) return;
    session.Of<SheetValues>().PendingError = false;
    const std::string description = sheet.OpisText.Text;
    if (!LoadWorkingData(session)) return;
    ComputeDistanceMatrix(session, n, m);
    OpenMadeMatrix(session, NarrowToInt16(n), description);
}

} // namespace dorvan
