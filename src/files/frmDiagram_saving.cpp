#include "view/frmDiagram.h"

#include "files/diagram_documents.h"
#include "files/file_dialogs.h"
#include "numbers/text.h"
#include "session/busy.h"

namespace dorvan {

void frmDiagram::SaveDiagram(const std::string& path) {
    if (RefusedWhileBusy(session_)) return;
    const std::string target =
        path.empty() ? PickFileToSave(session_, DiagramFileSaveFilters(), " - Save diagram As", "") : path;
    if (target.empty()) return;
    SaveDiagramNew(target);
    if (session_.ActiveWindow) session_.ActiveWindow->Caption = "[DIAGRAM]: " + target;
}

bool frmDiagram::SaveDiagramNew(const std::string& path) {
    const std::string description = ReplaceAll(BottomText.Text, ",", ";");
    if (description != BottomText.Text) {
        BottomText.Text = description;
        BottomText_Change();
    }
    return WriteDiagramFile(session_, path, Document(), description);
}

} // namespace dorvan
