#include "distance/frmMacierz.h"
#include "files/data_documents.h"
#include "files/diagram_documents.h"
#include "files/matrix_documents.h"
#include "files/recent_document.h"
#include "program/registering.h"
#include "view/frmDiagram.h"

namespace dorvan {

void RegisterFilesOperations(Session& session) {
    Register(session, "OpenDataFile", OpenDataFile);
    Register(session, "OpenMatrixFile", OpenMatrixFile);
    Register(session, "OpenDiagramFile", OpenDiagramFile);
    Register(session, "OpenRecentFile", OpenRecentFile);
    Register(session, "SaveData", SaveData);
    Register(session, "SaveDataAs", SaveDataAs);
    Register(session, "frmMacierz.SaveMatrix", MatrixWindow, &frmMacierz::SaveMatrix);
    Register(session, "frmDiagram.SaveDiagram", DiagramWindow, &frmDiagram::SaveDiagram);
}

} // namespace dorvan
