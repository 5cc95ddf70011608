#include "distance/frmMacierz.h"

#include "files/file_dialogs.h"
#include "files/matrix_documents.h"
#include "session/busy.h"

namespace dorvan {

void frmMacierz::SaveMatrix(const std::string& path) {
    if (RefusedWhileBusy(session_)) return;
    const std::string target =
        path.empty() ? PickFileToSave(session_, MatrixFileFilters(), " - Save matrix As", "*.mtx") : path;
    if (!target.empty()) SaveMatrixNew(target);
}

// The document stays changed: a saved matrix still asks when it is closed.
void frmMacierz::SaveMatrixNew(const std::string& path) {
    WriteMatrixFile(session_, path, Document(), BottomText.Text);
    if (session_.ActiveWindow) session_.ActiveWindow->Caption = "[MATRIX]: " + path;
}

} // namespace dorvan
