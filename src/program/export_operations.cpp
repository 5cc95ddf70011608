#include "program/registering.h"
#include "view/frmBMP.h"

namespace dorvan {

void RegisterExportOperations(Session& session) {
    Register(session, "frmBMP.SaveBMP", BitmapWindow, &frmBMP::SaveBMP);
}

} // namespace dorvan
