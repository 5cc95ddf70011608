#include "distance/frmMacierz.h"
#include "print/frmPrintMatrix.h"
#include "print/matrix_pages.h"
#include "print/modPrinterDlg.h"
#include "print/printing.h"
#include "session/busy.h"
#include "session/dialog.h"

namespace dorvan {

void frmMacierz::PrintMatrix() {
    if (RefusedWhileBusy(session_) || !PrinterInstalled(session_)) return;
    if (!AcceptedForOutput<frmPrintMatrix>(session_)) return;
    PrintOnPaper(session_, Caption, [this](const Paper& paper) {
        return MatrixPages(Document(), BottomText.Text, paper, session_.platform.fonts,
                           session_.DecimalSeparator);
    });
}

} // namespace dorvan
