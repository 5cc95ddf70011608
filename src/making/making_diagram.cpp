#include "making/making_diagram.h"

#include "distance/distance.h"
#include "distance/frmMacierz.h"
#include "distance/loading.h"
#include "making/frmPrzedzal.h"
#include "making/making_values.h"
#include "making/ordering_method.h"
#include "making/orderings.h"
#include "making/section_limits.h"
#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "session/busy.h"
#include "session/opening.h"
#include "sheet/frmNotePad.h"
#include "view/classes.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>

namespace dorvan {

namespace {

// What the diagram is made of: the active sheet of n records by m variables, or the matrix of n records in
// `MatrixSlot` (m = 0). `Session::DiagramFromMatrix` tells which. A search lets events run, so the copies
// stand in for what was closed or loaded meanwhile.
struct Source {
    std::int32_t n = 0;
    std::int32_t m = 0;
    std::int16_t MatrixSlot = 0;
    std::shared_ptr<ChildWindow> Window; // the active one at the start
    std::string Description;             // of Window, at the start
    DistanceMatrix SavedMatrix;
    FloatTable SavedValues;
    Names SavedNames;
    Names SavedVariableNames;
    Flags SavedHasNA;
};

bool IsOpen(const Session& session, const std::shared_ptr<ChildWindow>& window) {
    return std::find(session.Children.begin(), session.Children.end(), window) != session.Children.end();
}

DistanceMatrix& DocumentOf(Session& session, const Source& source) {
    if (source.MatrixSlot < 0 || std::size_t(source.MatrixSlot) >= session.MatrixDocuments.size())
        throw RuntimeFailure(Failure::SubscriptOutOfRange);
    return session.MatrixDocuments[std::size_t(source.MatrixSlot)];
}

// The slot of a closed matrix may hold another one by now.
const DistanceMatrix& MatrixOf(Session& session, const Source& source) {
    return IsOpen(session, source.Window) ? DocumentOf(session, source) : source.SavedMatrix;
}

Source ActiveSource(Session& session) {
    Source source;
    if (session.DiagramFromMatrix) {
        if (!session.ActiveWindow) throw RuntimeFailure(Failure::InvalidProcedureCall, "no window is active");
        source.MatrixSlot = session.ActiveWindow->Index;
        source.n = DocumentOf(session, source).Size;
    } else {
        const auto& sheet = ActiveDataWindow(session);
        source.n = sheet.RecordCount();
        source.m = sheet.VariableCount();
    }
    for (const auto& window : session.Children)
        if (window.get() == session.ActiveWindow) source.Window = window;
    return source;
}

bool CountAccepted(Session& session, std::int32_t n) {
    std::string refusal;
    if (n < 2)
        refusal = "The number of records is less than 2. How make diagram?";
    else if (n > session.MaxDiagramRecords)
        refusal = fmt::format("The number of records is more than {}!", session.MaxDiagramRecords);
    else
        return true;
    session.platform.messages.show({.Text = refusal, .Icon = MessageIcon::Critical});
    return false;
}

bool OptionsAccepted(Session& session) {
    if (!ShowDiagramOptions(session)) return false;
    session.platform.events.run();
    return true;
}

// For a matrix as well, with `DataHasNA` as the last load of a sheet left it.
bool MeasureAccepted(Session& session) {
    if (!session.tables.DataHasNA || KnowsMissingValues(session.CurrentDistType)) return true;
    session.platform.messages.show({.Text = "Nieprawidłowa funkcja odległości dla danych niepełnych!",
                                    .Icon = MessageIcon::Exclamation,
                                    .Title = "Dorvan"});
    return false;
}

// The cells as numbers of the process's own locale.
void ReadMatrixCells(Session& session, const Source& source) {
    const auto& cells = DocumentOf(session, source).Cells;
    session.tables.DistanceValues = FloatTable(source.n, source.n);
    for (std::int32_t i = 1; i <= source.n; ++i)
        for (std::int32_t j = 1; j <= source.n; ++j)
            session.tables.DistanceValues(i, j) = StrictFloat(cells(i, j), session.DecimalSeparator);
}

void TakeDistances(Session& session, const Source& source) {
    if (session.DiagramFromMatrix)
        ReadMatrixCells(session, source);
    else
        ComputeDistanceMatrix(session, source.n, source.m);
}

// The largest cell, but at least 0.
float MaxDistance(const FloatTable& distances) {
    float maxDistance = 0;
    for (const float distance : distances.Cells()) maxDistance = std::max(maxDistance, distance);
    return maxDistance;
}

Order FindOrder(Session& session, float maxDistance) {
    if (session.CurrentOrderMethod == 2) return SimpleOrder(session.tables.DistanceValues, maxDistance);
    const auto& methods = session.Of<OrderingMethods>();
    const auto method = methods.find(session.CurrentOrderMethod);
    if (method == methods.end()) throw RuntimeFailure(Failure::InvalidProcedureCall, "no such ordering");
    const FloatTable distances = session.tables.DistanceValues; // a document read meanwhile may replace them
    return method->second.run(session, distances);
}

// `RecordHasNA` stays in the order of the sheet.
void RewriteData(Session& session, const Source& source, const Order& order) {
    session.tables.DataValues = FloatTable(source.n, source.m);
    session.tables.RecordNames = Names(source.n);
    for (std::int32_t p = 1; p <= source.n; ++p) {
        for (std::int32_t v = 1; v <= source.m; ++v)
            session.tables.DataValues(p, v) = source.SavedValues(order(p), v);
        session.tables.RecordNames(p) = source.SavedNames(order(p));
    }
    session.tables.VariableNames = source.SavedVariableNames;
    session.tables.RecordHasNA = source.SavedHasNA;
    ComputeDistanceMatrix(session, source.n, source.m);
}

void RewriteMatrix(Session& session, const Source& source, const Order& order) {
    const DistanceMatrix& matrix = MatrixOf(session, source);
    session.tables.RecordNames = Names(source.n);
    session.tables.DistanceValues = FloatTable(source.n, source.n);
    for (std::int32_t p = 1; p <= source.n; ++p) {
        session.tables.RecordNames(p) = matrix.Names(order(p));
        for (std::int32_t q = 1; q <= source.n; ++q)
            session.tables.DistanceValues(p, q) =
                StrictFloat(matrix.Cells(order(p), order(q)), session.DecimalSeparator);
    }
}

void PutInOrder(Session& session, const Source& source, float maxDistance) {
    if (session.CurrentOrderMethod == 1) return;
    const Order order = FindOrder(session, maxDistance);
    if (session.DiagramFromMatrix)
        RewriteMatrix(session, source, order);
    else
        RewriteData(session, source, order);
}

std::string DescriptionNow(Session& session, const Source& source) {
    return session.DiagramFromMatrix ? MatrixWindow(session, source.MatrixSlot).BottomText.Text
                                     : ActiveDataWindow(session).OpisText.Text;
}

void SaveCopies(Session& session, Source& source) {
    source.Description = DescriptionNow(session, source);
    if (session.DiagramFromMatrix) {
        source.SavedMatrix = DocumentOf(session, source);
        return;
    }
    source.SavedValues = session.tables.DataValues;
    source.SavedNames = session.tables.RecordNames;
    source.SavedVariableNames = session.tables.VariableNames;
    source.SavedHasNA = session.tables.RecordHasNA;
}

// Distances, limits and order, with `DiagramBusy` at 1: a failure on the way leaves it there.
void Analyse(Session& session, Source& source) {
    session.DiagramBusy = 1;
    TakeDistances(session, source);
    SaveCopies(session, source);
    const float maxDistance = MaxDistance(session.tables.DistanceValues);
    session.SectionLimits = ComputeAutomaticLimits(session.tables.DistanceValues);
    PutInOrder(session, source, maxDistance);
    session.DiagramBusy = 0;
}

// The record of a slot is used again: for a matrix, `DistType`, `Data` and `VariableNames` keep what an
// earlier diagram of the slot left, as `Par_P` and `Par_R` always do. The names of a matrix stay in its own
// order, although its distances are in the new one.
void FillDocument(Session& session, const Source& source, DiagramDocument& document) {
    document.RecCount = NarrowToInt16(source.n);
    document.VarCount = NarrowToInt16(source.m);
    document.NoData = session.DiagramFromMatrix;
    document.DiagType = session.CurrentDiagType;
    document.Matrix = session.tables.DistanceValues;
    document.Classes = Array2<std::int16_t>(source.n, source.n);
    if (session.DiagramFromMatrix) {
        document.RecordNames = MatrixOf(session, source).Names;
        document.RecordHasNA = Flags(source.n);
    } else {
        document.DistType = session.CurrentDistType;
        document.Data = session.tables.DataValues;
        document.VariableNames = session.tables.VariableNames;
        document.RecordNames = session.tables.RecordNames;
        document.RecordHasNA = session.tables.RecordHasNA;
    }
    document.SectionLimits = session.SectionLimits;
    ClassifyDiagram(document);
}

// Clicks during the search may have brought another window to the front, or closed this one.
std::string DescriptionOf(Session& session, const Source& source) {
    if (!IsOpen(session, source.Window)) return source.Description;
    if (session.ActiveWindow != source.Window.get()) ShowChild(session, *source.Window);
    return DescriptionNow(session, source);
}

void OpenDiagram(Session& session, const Source& source) {
    const WaitCursor wait(session.platform);
    const std::string description = DescriptionOf(session, source);
    const std::int16_t slot = FindFreeDiagramSlot(session);
    FillDocument(session, source, session.DiagramDocuments.at(std::size_t(slot)));
    OpenDocumentWindow<frmDiagram>(session, {.Slot = slot},
                                   [&](frmDiagram& window) { window.Present(description); });
}

} // namespace

void MakeDiagram(Session& session) {
    if (RefusedWhileBusy(session)) return;
    Source source = ActiveSource(session);
    if (!CountAccepted(session, source.n)) return;
    session.Of<MakingValues>().DiagramRecordCount = source.n;
    if (!OptionsAccepted(session)) return;
    // Read only now: the dialog comes before any data error.
    if (!session.DiagramFromMatrix && !LoadWorkingData(session)) return;
    if (!MeasureAccepted(session)) return;
    Analyse(session, source);
    OpenDiagram(session, source);
}

} // namespace dorvan
