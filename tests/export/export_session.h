#pragma once

#include "distance/matrix_session.h"
#include "export/frmExportOptions.h"
#include "export/frmTextOptions.h"
#include "program/program.h"
#include "support/golden.h"
#include "view/diagram_session.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

namespace dorvan::test {

// A session in which the whole program is composed, with a folder for what it writes.
class ExportSession : public ::testing::Test, protected MatrixSession {
protected:
    TemporaryFolder folder;
    std::string target = folder / "out";

    ExportSession() { Compose(session); }
    ~ExportSession() override { expectScriptsUsedUp(); }

    // Two records by three variables.
    frmNotePad& OpenSmallSheet() {
        frmNotePad& sheet = OpenSheet({{"1.000", "2.500", "N/A"}, {"-4.000", "0.000", "1234.567"}});
        const char* variables[] = {" VAR  1", "Width", "Depth "};
        for (int column = 0; column < 3; ++column) sheet.Grid1.SetText(0, column + 2, variables[column]);
        return sheet;
    }

    frmMacierz& OpenMatrix(DistanceMatrix matrix) {
        const std::int16_t slot = FindFreeMatrixSlot(session);
        session.MatrixDocuments.at(std::size_t(slot)) = std::move(matrix);
        return OpenDocumentWindow<frmMacierz>(session, {.Slot = slot},
                                              [](frmMacierz& window) { window.Present("a matrix"); });
    }
    static DistanceMatrix SmallMatrix() {
        DistanceMatrix matrix{Array1<std::string>(2), Array2<std::string>(2, 2), 2};
        matrix.Names.Cells() = {"Łódź", "b;c"};
        matrix.Cells.Cells() = {"0", "1.234568E-05", "1.234568E-05", "0"};
        return matrix;
    }

    frmDiagram& OpenDiagram(DiagramDocument diagram) {
        const std::int16_t slot = FindFreeDiagramSlot(session);
        ClassifyDiagram(diagram);
        session.DiagramDocuments.at(std::size_t(slot)) = std::move(diagram);
        return OpenDocumentWindow<frmDiagram>(session, {.Slot = slot},
                                              [](frmDiagram& window) { window.Present("a diagram"); });
    }

    // What the user does in the next dialog.
    template <class Dialog> void InDialog(std::function<void(Dialog&)> action) {
        forms.scripts.push_back([action](Form& form) { action(dynamic_cast<Dialog&>(form)); });
    }
};

} // namespace dorvan::test
