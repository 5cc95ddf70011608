#include "print/diagram_pages.h"
#include "print/frmOpisDiagramu.h"
#include "print/modPrinterDlg.h"
#include "print/print_values.h"
#include "print/printing.h"
#include "session/busy.h"
#include "session/dialog.h"
#include "view/frmDiagram.h"

namespace dorvan {

void frmDiagram::PrintDiagram() {
    if (RefusedWhileBusy(session_) || !PrinterInstalled(session_)) return;
    if (!AcceptedForOutput<frmOpisDiagramu>(session_)) return;
    PrintOnPaper(session_, Caption, [this](const Paper& paper) {
        return DiagramPages(Document(), BottomText.Text, session_.Of<PrintValues>().DiagramPrintSize, paper,
                            session_.platform.fonts, session_.DecimalSeparator);
    });
}

} // namespace dorvan
