#include "files/diagram_documents.h"

#include "distance/distance.h"
#include "files/diagram_file.h"
#include "files/disk.h"
#include "files/document_bytes.h"
#include "files/file_dialogs.h"
#include "files/file_fault.h"
#include "files/reading.h"
#include "session/busy.h"
#include "session/opening.h"
#include "view/classes.h"
#include "view/frmDiagram.h"

#include <fmt/format.h>

namespace dorvan {

namespace {

void OpenDiagramWindow(Session& session, const std::string& path, const DiagramHeader& header, bool dirty) {
    const std::int16_t slot = session.NewWindowIndex = FindFreeDiagramSlot(session);
    OpensWithoutFault(session, path, DocumentKind::Diagram, [&] {
        DiagramDocument& document = session.DiagramDocuments.at(std::size_t(slot));
        document = DiagramOf(header, session.tables);
        document.Classes = Array2<std::int16_t>(header.RecCount, header.RecCount);
        ClassifyDiagram(document);
        OpenDocumentWindow<frmDiagram>(
            session, {.Caption = fmt::format("[DIAGRAM]: {}", path), .Dirty = dirty, .Slot = slot},
            [&](frmDiagram& window) { window.Present(header.Description); });
    });
}

// Both triangles from one computation of each pair, the lower-numbered record first.
FloatTable DistancesOfRecords(const FloatTable& values, const Measure& measure) {
    const std::int32_t n = values.Rows();
    FloatTable distances(n, n);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = i + 1; j <= n; ++j) try {
                distances(i, j) = distances(j, i) =
                    DistanceBetween(values.Row(i), values.Row(j), values.Columns(), measure);
            } catch (const RuntimeFailure& failure) {
                throw FileFault::OfWholeFile(fmt::format("The records {} and {} have no distance: {}", i, j,
                                                         FailureText(failure.Kind())));
            }
    return distances;
}

// Reads the older format into the working arrays and the analysis options.
DiagramHeader ReadOldDiagram(Session& session, const std::string& path) {
    const std::string bytes = LoadDocument(path, session.codePage);
    DiagramHeader header = ParseOldDiagramFile(bytes, FileTextOf(session), session.tables);
    session.SectionLimits = header.SectionLimits;
    session.CurrentDistType = header.DistType;
    if (header.DistType == DistanceType::Customized) {
        session.Par_R = header.Par_R;
        session.Par_P = header.Par_P;
    }
    session.tables.DistanceValues = DistancesOfRecords(session.tables.DataValues, CurrentMeasure(session));
    return header;
}

} // namespace

void OpenDiagramFile(Session& session) {
    if (RefusedWhileBusy(session)) return;
    const std::string path = PickFileToOpen(session, DiagramFileFilters(), " - Select dgr file");
    if (path.empty()) return;
    session.platform.events.run();
    UpdateRecentFiles(session, path);
    ReadDiagramFile(session, path);
}

void ReadDiagramFile(Session& session, const std::string& path) {
    DiagramHeader header;
    bool current = true;
    const auto read = [&] {
        const std::string bytes = LoadDocument(path, session.codePage);
        current = IsCurrentDiagramFile(bytes);
        if (!current) return;
        header = ParseDiagramFile(bytes, FileTextOf(session), session.tables);
    };
    if (!ReadsWithoutFault(session, path, Wait::No, read)) return;
    if (current) return OpenDiagramWindow(session, path, header, false);
    TellOlderVersion(session);
    ReadOldDiagramFile(session, path);
}

void ReadOldDiagramFile(Session& session, const std::string& path) {
    DiagramHeader header;
    const auto read = [&] { header = ReadOldDiagram(session, path); };
    if (!ReadsWithoutFault(session, path, Wait::Yes, read)) return;
    session.PendingRecCount = header.RecCount;
    session.PendingVarCount = header.VarCount;
    header.DiagType = session.CurrentDiagType;
    header.Par_P = session.Par_P;
    header.Par_R = session.Par_R;
    OpenDiagramWindow(session, path, header, true);
}

bool WriteDiagramFile(Session& session, const std::string& path, const DiagramDocument& document,
                      const std::string& description) {
    const WaitCursor wait(session.platform);
    std::string& silentFailure = session.Of<FileValues>().SilentFailure;
    silentFailure.clear();
    try {
        ReplaceFile(path, ComposeDiagramFile(document, description, FileTextOf(session)));
    } catch (const FileError& error) {
        silentFailure = error.what();
    } catch (const RuntimeFailure& failure) { // a value that no file can hold
        silentFailure = failure.what();
    }
    return silentFailure.empty();
}

} // namespace dorvan
