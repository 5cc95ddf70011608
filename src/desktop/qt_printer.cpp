#include "desktop/qt_printer.h"

#include "desktop/event_dispatch.h"
#include "desktop/qt_platform.h"
#include "desktop/qt_text.h"
#include "files/disk.h"
#include "painting/page_player.h"
#include "painting/pdf_pages.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>

#include <stdexcept>
#include <utility>

namespace dorvan {

namespace {

constexpr int TwipsPerInch = 1440;

bool IsFile(const QPrinter& printer) { return printer.outputFormat() == QPrinter::PdfFormat; }

// One that the system does not know, or none, is the PDF file.
std::unique_ptr<QPrinter> PrinterNamed(const QString& name) {
    auto printer = std::make_unique<QPrinter>(QPrinter::ScreenResolution);
    if (QPrinterInfo::printerInfo(name).isNull())
        printer->setOutputFormat(QPrinter::PdfFormat);
    else
        printer->setPrinterName(name);
    printer->setResolution(TwipsPerInch);
    return printer;
}

std::string NameOf(const QPrinter& printer) {
    return IsFile(printer) ? painting::PdfDeviceName : FromQt(printer.printerName());
}

int ValueOf(const QPrinter& printer, PrinterValue which) {
    switch (which) {
    case PrinterValue::Copies: return printer.copyCount();
    case PrinterValue::Orientation: return int(printer.pageLayout().orientation());
    case PrinterValue::PaperSize: return int(printer.pageLayout().pageSize().id());
    case PrinterValue::PaperSource: return int(printer.paperSource());
    case PrinterValue::Duplex: return int(printer.duplex());
    case PrinterValue::ColourMode: return int(printer.colorMode());
    default: throw std::runtime_error("The printer does not have this value.");
    }
}

bool Accepts(QPrinter& printer, PrinterValue which, int number) {
    switch (which) {
    case PrinterValue::Copies: printer.setCopyCount(number); return true;
    case PrinterValue::Orientation: return printer.setPageOrientation(QPageLayout::Orientation(number));
    case PrinterValue::PaperSize:
        return number != int(QPageSize::Custom) &&
               printer.setPageSize(QPageSize(QPageSize::PageSizeId(number)));
    case PrinterValue::PaperSource: printer.setPaperSource(QPrinter::PaperSource(number)); return true;
    case PrinterValue::Duplex: printer.setDuplex(QPrinter::DuplexMode(number)); return true;
    case PrinterValue::ColourMode: printer.setColorMode(QPrinter::ColorMode(number)); return true;
    default: return false;
    }
}

void ReadValues(const QPrinter& printer, PrinterSetup& setup) {
    setup.DeviceName = NameOf(printer);
    for (auto& value : setup.Values) value.Number = ValueOf(printer, value.Which);
}

// The dialog chooses a printer; it does not print.
void NameAsSetup(QPrintDialog& dialog) {
    dialog.setObjectName("PrinterDialog");
    dialog.setWindowTitle("Printer options");
    for (const auto option :
         {QAbstractPrintDialog::PrintPageRange, QAbstractPrintDialog::PrintSelection,
          QAbstractPrintDialog::PrintCurrentPage, QAbstractPrintDialog::PrintCollateCopies})
        dialog.setOption(option, false);
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>())
        for (auto* button : buttons->buttons())
            if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole) button->setText("OK");
}

} // namespace

QPrinter& QtPrinter::Current() {
    if (!printer_) printer_ = PrinterNamed(QPrinterInfo::defaultPrinterName());
    return *printer_;
}

std::string QtPrinter::deviceName() { return NameOf(Current()); }

std::vector<std::string> QtPrinter::deviceNames() {
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames()) names.push_back(FromQt(name));
    names.emplace_back(painting::PdfDeviceName);
    return names;
}

void QtPrinter::choose(const std::string& deviceName) { printer_ = PrinterNamed(ToQt(deviceName)); }

int QtPrinter::value(PrinterValue which) { return ValueOf(Current(), which); }

void QtPrinter::setValue(PrinterValue which, int number) {
    if (!Accepts(Current(), which, number)) throw std::runtime_error("The printer refuses this value.");
}

bool QtPrinter::showSetup(PrinterSetup& setup) {
    const auto printer = PrinterNamed(ToQt(setup.DeviceName));
    for (const auto& value : setup.Values) Accepts(*printer, value.Which, value.Number);
    dispatch_.Mirror();
    QPrintDialog dialog(printer.get(), ParentOfDialogs());
    NameAsSetup(dialog);
    if (dialog.exec() != QDialog::Accepted) return false;
    ReadValues(*printer, setup);
    file_ = IsFile(*printer) ? FromQt(printer->outputFileName()) : std::string();
    return true;
}

std::vector<std::string> QtPrinter::fontNames() {
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families())
        if (!QFontDatabase::isPrivateFamily(family)) names.push_back(FromQt(family));
    return names;
}

double QtPrinter::printableWidth() { return painting::PrintableOn(Current().pageLayout()).Width; }
double QtPrinter::printableHeight() { return painting::PrintableOn(Current().pageLayout()).Height; }

void QtPrinter::print(const Drawing& pages, const std::string& documentName) {
    QPrinter& printer = Current();
    if (IsFile(printer)) return PrintToFile(pages, documentName);
    printer.setDocName(ToQt(documentName));
    if (!painting::PlayPages(pages, printer)) throw std::runtime_error("The printer does not print.");
}

void QtPrinter::PrintToFile(const Drawing& pages, const std::string& documentName) {
    std::string path = std::exchange(file_, {});
    if (path.empty())
        path = files_.toSave({.Title = "Dorvan - Print to File (PDF)",
                              .Filters = {{"PDF file (*.pdf)", "*.pdf"}},
                              .Extension = "pdf",
                              .StartFolder = {}});
    if (path.empty()) return;
    ReplaceFile(path, painting::PdfOfPages(pages, Current().pageLayout(), documentName));
}

} // namespace dorvan
