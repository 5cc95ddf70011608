#pragma once

#include "cli/offscreen_drawing.h"
#include "painting/pdf_pages.h"
#include "platform/printer.h"

#include <string>
#include <vector>

namespace dorvan::cli {

// The printer of the command line: a PDF file, and no other. The toolkit starts when it is needed first.
class PdfFilePrinter : public Printer {
public:
    explicit PdfFilePrinter(OffscreenDrawing& drawing) : drawing_(drawing) {}

    std::string Path;
    painting::PageChoices Page;

    std::string deviceName() override { return painting::PdfDeviceName; }
    std::vector<std::string> deviceNames() override { return {deviceName()}; }
    void choose(const std::string&) override {}
    int value(PrinterValue which) override;
    void setValue(PrinterValue which, int number) override;
    bool showSetup(PrinterSetup&) override { return false; }
    std::vector<std::string> fontNames() override { return {}; } // any name will do
    std::string fontName() override { return fontName_; }
    void setFontName(const std::string& name) override { fontName_ = name; }
    double printableWidth() override;
    double printableHeight() override;
    void print(const Drawing& pages, const std::string& documentName) override;

private:
    OffscreenDrawing& drawing_;
    std::string fontName_; // empty: a plain one
};

} // namespace dorvan::cli
