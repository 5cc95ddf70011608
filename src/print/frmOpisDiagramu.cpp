#include "print/frmOpisDiagramu.h"

#include "platform/printer.h"
#include "print/modPrinterDlg.h"
#include "print/print_values.h"

namespace dorvan {

frmOpisDiagramu::frmOpisDiagramu(Session& session)
    : Form("frmOpisDiagramu", "Print setup"), session_(session) {
    Option1.Value = true;
}

// There may be very many fonts: the windows stay alive while the list fills.
void frmOpisDiagramu::Form_Load() {
    Combo1.List.clear();
    Combo1.ListIndex = -1;
    if (!PrinterInstalled(session_)) return;
    for (const std::string& name : session_.platform.printer.fontNames()) {
        Combo1.List.push_back(name);
        session_.platform.events.run();
    }
    if (!Combo1.List.empty()) Combo1.ListIndex = 0;
}

void frmOpisDiagramu::Enter(std::int16_t size, const std::string& font) {
    Option1.Value = size == 1;
    Option2.Value = size == 2;
    Option3.Value = size == 3;
    Combo1.List = {font};
    Combo1.ListIndex = 0;
}

void frmOpisDiagramu::Command1_Click() {
    session_.OutputDialogOutcome = 1;
    std::int16_t& size = session_.Of<PrintValues>().DiagramPrintSize;
    if (Option1.Value) size = 1;
    if (Option2.Value) size = 2;
    if (Option3.Value) size = 3;
    if (PrinterInstalled(session_)) session_.platform.printer.setFontName(Combo1.Text());
    Hide();
}

void frmOpisDiagramu::Command2_Click() {
    session_.OutputDialogOutcome = 0;
    Hide();
}

void frmOpisDiagramu::Command3_Click() {
    if (PrinterInstalled(session_)) ShowPrinterDialog(session_);
}

} // namespace dorvan
