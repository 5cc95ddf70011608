#include "cli/pdf_file_printer.h"

#include "files/disk.h"

#include <stdexcept>

namespace dorvan::cli {

int PdfFilePrinter::value(PrinterValue) { throw std::runtime_error("A file does not have this value."); }
void PdfFilePrinter::setValue(PrinterValue, int) { throw std::runtime_error("A file refuses this value."); }

double PdfFilePrinter::printableWidth() {
    drawing_.StartToolkit();
    return painting::PrintableOn(Page).Width;
}

double PdfFilePrinter::printableHeight() {
    drawing_.StartToolkit();
    return painting::PrintableOn(Page).Height;
}

void PdfFilePrinter::print(const Drawing& pages, const std::string& documentName) {
    drawing_.StartToolkit();
    ReplaceFile(Path, painting::PdfOfPages(pages, Page, documentName));
}

} // namespace dorvan::cli
