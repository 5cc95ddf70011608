#include "distance/frmMacierz.h"
#include "export/excel_export.h"
#include "export/picture_commands.h"
#include "export/text_export.h"
#include "program/registering.h"
#include "view/frmBMP.h"
#include "view/frmDiagram.h"

namespace dorvan {

void RegisterExportOperations(Session& session) {
    Register(session, "ExportData", ExportData);
    Register(session, "ExportDataToExcel", ExportDataToExcel);
    Register(session, "frmMacierz.ExportMatrix", MatrixWindow, &frmMacierz::ExportMatrix);
    Register(session, "frmMacierz.ExportMatrixToExcel", MatrixWindow, &frmMacierz::ExportMatrixToExcel);
    Register(session, "frmDiagram.ExportDiagramToExcel", DiagramWindow, &frmDiagram::ExportDiagramToExcel);
    Register(session, "frmBMP.SaveBMP", BitmapWindow, &frmBMP::SaveBMP);
    Register(session, "frmDiagram.Metafile", DiagramWindow, &frmDiagram::Metafile);
    Register(session, "frmDiagram.SavePicture", SavePicture);
    Register(session, "frmDiagram.CopyPicture", CopyPicture);
}

} // namespace dorvan
