#include "program/registering.h"
#include "view/frmBMP.h"
#include "view/frmDiagram.h"

namespace dorvan {

void RegisterExportOperations(Session& session) {
    Register(session, "frmBMP.SaveBMP", BitmapWindow, &frmBMP::SaveBMP);
    Register(session, "frmDiagram.Metafile", DiagramWindow, &frmDiagram::Metafile);
}

} // namespace dorvan
