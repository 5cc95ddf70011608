#include "print/frmPrintMatrix.h"

#include "print/modPrinterDlg.h"

namespace dorvan {

frmPrintMatrix::frmPrintMatrix(Session& session)
    : Form("frmPrintMatrix", "Print matrix"), session_(session) {}

void frmPrintMatrix::Command1_Click() {
    session_.OutputDialogOutcome = 1;
    Hide();
}

void frmPrintMatrix::Command2_Click() {
    session_.OutputDialogOutcome = 0;
    Hide();
}

void frmPrintMatrix::Command3_Click() {
    if (PrinterInstalled(session_)) ShowPrinterDialog(session_);
}

} // namespace dorvan
