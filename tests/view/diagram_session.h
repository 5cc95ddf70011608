#pragma once

#include "session/registry.h"
#include "support/test_platform.h"
#include "view/classes.h"
#include "view/frmDiagram.h"
#include "view/tiles.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace dorvan::test {

// A diagram of records named "A", "B", ... (or as told), every pair with a distance of its own: the one of
// the places i < j is 10 i + j. Data: row i holds i and 100 + i.
inline DiagramDocument SampleDocument(int count) {
    DiagramDocument document;
    document.RecCount = static_cast<std::int16_t>(count);
    document.VarCount = 2;
    document.DistType = 1;
    document.DiagType = 2;
    document.Matrix = FloatTable(count, count);
    document.Data = FloatTable(count, 2);
    document.VariableNames = Names(2, "v");
    document.RecordNames = Names(count);
    document.RecordHasNA = Flags(count);
    document.Classes = Array2<std::int16_t>(count, count);
    for (int i = 1; i <= count; ++i) {
        document.RecordNames(i) = std::string(1, static_cast<char>('A' + (i - 1) % 26));
        document.Data(i, 1) = static_cast<float>(i);
        document.Data(i, 2) = static_cast<float>(100 + i);
        for (int j = 1; j <= count; ++j)
            if (i != j) document.Matrix(i, j) = static_cast<float>(10 * std::min(i, j) + std::max(i, j));
    }
    document.SectionLimits.Cells() = {1.0f, 13.0f, 23.0f, 30.0f};
    return document;
}

// A session that can open diagram windows.
struct DiagramSession : TestSession {
    frmDiagram& Open(DiagramDocument document, const std::string& description = "") {
        const std::int16_t slot = FindFreeDiagramSlot(session);
        session.NewWindowIndex = slot;
        ClassifyDiagram(document);
        session.DiagramDocuments.at(std::size_t(slot)) = std::move(document);
        PutIntoRegistry(session, DocumentKind::Diagram, std::make_shared<frmDiagram>(session));
        auto& window = DiagramWindow(session, slot);
        window.Caption = UntitledCaption("DIAGRAM", slot);
        window.Present(description);
        return window;
    }
    frmDiagram& Open(int count) { return Open(SampleDocument(count)); }
};

inline std::string NamesOf(frmDiagram& window) {
    std::string names;
    for (const auto& name : window.Document().RecordNames.Cells()) names += name;
    return names;
}

inline std::string NamesShownBy(const frmDiagram& window) {
    std::string names;
    for (int row = 1; row < window.Siatka.Rows(); ++row) names += window.Siatka.Text(row, 1);
    return names;
}

inline Tile TileAt(const frmDiagram& window, int row, int record) {
    return static_cast<Tile>(window.Siatka.Picture(row, record + 1));
}

} // namespace dorvan::test
