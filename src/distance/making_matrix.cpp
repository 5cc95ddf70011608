#include "distance/making_matrix.h"

#include "distance/frmMacierz.h"
#include "distance/frmOpcjeMacierzy.h"
#include "distance/loading.h"
#include "distance/measures.h"
#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "session/children.h"
#include "session/registry.h"
#include "sheet/frmNotePad.h"

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

bool AskForMeasure(Session& session) {
    session.platform.forms.showModal(session.forms.Load<frmOpcjeMacierzy>(session));
    return session.DialogOutcome != -99;
}

// The record of a slot, from the working arrays.
void FillDocument(const Session& session, DistanceMatrix& document) {
    const std::int16_t n = document.Size;
    document.Names = session.RecordNames;
    document.Cells = Array2<std::string>(n, n);
    for (std::int32_t row = 1; row <= n; ++row)
        for (std::int32_t column = 1; column <= n; ++column)
            document.Cells(row, column) =
                PlainText(session.DistanceValues(row, column), session.DecimalSeparator);
}

void OpenMadeMatrix(Session& session, std::int16_t n, const std::string& description) {
    const WaitCursor waiting(session.platform);
    const std::int16_t slot = FindFreeMatrixSlot(session);
    session.NewWindowIndex = slot;
    session.MatrixDocuments.at(std::size_t(slot)).Size = n;
    auto& window = dynamic_cast<frmMacierz&>(CreateChildWindow(session, DocumentKind::Matrix));
    window.Caption = UntitledCaption(DocumentKind::Matrix, slot);
    FillDocument(session, window.Document());
    window.PresentDistances(session.DistanceValues, description);
    session.MatrixStates.at(std::size_t(slot)).Dirty = true;
    PlaceNewWindow(session, window);
    ShowChild(session, window);
}

} // namespace

void MakeMatrix(Session& session) {
    if (session.DiagramBusy == 1) {
        session.platform.signals.beep();
        return;
    }
    const frmNotePad& sheet = ActiveDataWindow(session);
    const int n = sheet.RecordCount();
    const int m = sheet.VariableCount();
    if (!RecordCountFits(session, n) || !AskForMeasure(session)) return;
    session.PendingError = false;
    const std::string description = sheet.OpisText.Text;
    if (!LoadWorkingData(session)) return;
    ComputeDistanceMatrix(session, n, m);
    OpenMadeMatrix(session, NarrowToInt16(n), description);
}

} // namespace dorvan
